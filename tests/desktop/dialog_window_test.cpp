#include "desktop/dialog_window.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "desktop/dialog_place.h"
#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

/// A dialog on the screen.
template <class Dialog>
struct OpenDialog {
    explicit OpenDialog(Dialog& dialog) : form(dialog) {
        window.show();
        window.activateWindow();
        QApplication::processEvents();
    }

    template <class Widget>
    Widget& child(const char* name) {
        return *window.template findChild<Widget*>(name);
    }

    Dialog& form;
    PlainSteps steps;
    DialogWindow window{form, steps, nullptr, 1};
};

TEST(DialogWindow, EnterInTheTextBoxPressesOk) {
    InptBx dialog({}, "The add value is?", "COG", 8, "Enter a value");
    OpenDialog<InptBx> open(dialog);
    auto& box = open.child<QLineEdit>("txtInput");
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.selectedText(), "Enter a value") << "typing takes the default's place";
    QTest::keyClicks(&box, "12y");
    EXPECT_FALSE(dialog.closed);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(dialog.closed);
    EXPECT_EQ(dialog.reply, "12y");
}

TEST(DialogWindow, ALetterAloneAnswersAQuestion) {
    YNBx dialog({}, "Another computational cycle?", "Question", 8);
    OpenDialog<YNBx> open(dialog);
    auto& no = open.child<QPushButton>("cmdNo");
    QTest::keyClick(&no, Qt::Key_X);
    EXPECT_FALSE(dialog.closed);
    QTest::keyClick(&no, Qt::Key_Y);
    EXPECT_TRUE(dialog.closed);
    EXPECT_EQ(dialog.reply, replyYes);
    EXPECT_FALSE(open.window.isVisible());
}

TEST(DialogWindow, EscapeAndTheTitleBarAreNoAnswer) {
    YNBx dialog({}, "Save data?", "COG", 8);
    OpenDialog<YNBx> open(dialog);
    QTest::keyClick(&open.window, Qt::Key_Escape);
    EXPECT_TRUE(dialog.closed);
    EXPECT_FALSE(dialog.reply);
    YNBx other({}, "Save data?", "COG", 8);
    OpenDialog<YNBx> closed(other);
    closed.window.close();
    EXPECT_TRUE(other.closed);
    EXPECT_FALSE(other.reply);
}

TEST(DialogWindow, TheFirstButtonIsMarkedAndEnterPressesIt) {
    YNBx dialog({}, "Save data?", "COG", 8);
    OpenDialog<YNBx> open(dialog);
    EXPECT_TRUE(open.child<QPushButton>("cmdYes").isDefault());
    QTest::keyClick(&open.window, Qt::Key_Return);
    EXPECT_EQ(dialog.reply, replyYes);
}

/// The size that the form tells, in pixels.
QSize told(const DialogForm& form) {
    return (QSizeF(form.width, form.height) / twipsPerPixel).toSize();
}

TEST(DialogWindow, IsOfTheSizeToldWhereItsTextFits) {
    YNBx dialog({}, "Save data?", "COG", 8);
    dialog.width = 3825;
    dialog.height = 2220;
    OpenDialog<YNBx> open(dialog);
    EXPECT_EQ(open.window.size(), told(dialog));
}

TEST(DialogWindow, LargeLettersHaveTheRoomThatTheyNeed) {
    const std::string prompt = "Select the number of the appropriate action for this column:";
    InptBx dialog({2.4, 1.8}, prompt, "COG", 8 * 2.4, "Enter selection");
    dialog.width = 4300 * 2.4;
    dialog.height = 2075 + 180;
    dialog.txtInput.design = {150, 1360, 6000, 365};
    OpenDialog<InptBx> open(dialog);
    const auto& label = open.child<QLabel>("lblPrompt");
    EXPECT_GE(label.width(), 39 * QFontMetrics(label.font()).averageCharWidth());
    EXPECT_LE(label.heightForWidth(label.width()), label.height());
    const auto& box = open.child<QLineEdit>("txtInput");
    EXPECT_GE(box.height(), QFontMetrics(box.font()).height() + 4);
    EXPECT_GE(box.width(), 400);
}

TEST(DialogWindow, AVeryLongPromptStaysOnTheScreen) {
    MsgeBx dialog({}, std::string(50000, 'x'), "COG", 8);
    OpenDialog<MsgeBx> open(dialog);
    EXPECT_LE(open.window.height(), open.window.screen()->size().height());
    EXPECT_LE(open.window.width(), open.window.screen()->size().width());
    EXPECT_TRUE(open.child<QLabel>("lblPrompt").text().endsWith(QChar(0x2026)));
}

TEST(DialogWindow, AScreenReaderHearsThePromptWithTheBox) {
    InptBx dialog({}, "The add value is?", "COG", 8, "Enter a value");
    OpenDialog<InptBx> open(dialog);
    QAccessibleInterface& box = *QAccessible::queryAccessibleInterface(&open.child<QLineEdit>("txtInput"));
    EXPECT_EQ(box.text(QAccessible::Name), "The add value is?");
    EXPECT_EQ(box.text(QAccessible::Value), "Enter a value");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&open.window)->text(QAccessible::Description),
              "The add value is?");
}

// Places

constexpr QRect screen(0, 0, 1000, 800);

AskedAbout report(const QRect& place, const QRect& inked) {
    QImage look(place.size(), QImage::Format_RGB32);
    look.fill(Qt::white);
    for (int y = inked.top(); y <= inked.bottom(); ++y)
        for (int x = inked.left(); x <= inked.right(); ++x) look.setPixelColor(x, y, Qt::black);
    return {place, look};
}

TEST(DialogPlace, IsTheToldOneWhereItCoversNothing) {
    EXPECT_EQ(dialogPlace({200, 100}, {500, 400}, screen, {}).center(), QPoint(500, 400));
    const AskedAbout about = report({0, 0, 1000, 800}, {0, 0, 900, 100});
    EXPECT_EQ(dialogPlace({200, 100}, {500, 400}, screen, about).center(), QPoint(500, 400));
}

TEST(DialogPlace, IsBesideWhatItAsksAboutWhereTheScreenHasRoom) {
    const AskedAbout about = report({0, 0, 700, 800}, {0, 0, 700, 800});
    const QRect place = dialogPlace({200, 100}, {500, 400}, screen, about);
    EXPECT_GT(place.left(), 700);
    EXPECT_TRUE(screen.contains(place));
}

TEST(DialogPlace, IsTheEmptiestCornerWhereTheScreenIsFull) {
    const AskedAbout about = report({0, 0, 1000, 800}, {0, 0, 900, 600});
    const QRect place = dialogPlace({200, 100}, {500, 400}, screen, about);
    EXPECT_GT(place.top(), 600);
    EXPECT_TRUE(screen.contains(place));
}

} // namespace
} // namespace vantore::tests
