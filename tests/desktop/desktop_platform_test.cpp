#include "desktop/desktop_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "drawing/drawing_export.h"
#include "shell/capture.h"
#include "shell/dialog_form.h"
#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class DesktopPlatformTest : public testing::Test, public WindowSteps {
  protected:
    void step(const std::function<void()>& action) override {
        action();
        windows.refresh();
    }
    std::string outputFolder() const override { return "/tmp"; }

    FormWindow& show() {
        FormWindow& window = windows.open(form, *this);
        window.resize(designSize(form));
        window.refresh();
        window.show();
        QApplication::processEvents();
        return window;
    }

    SampleForm form;
    OpenWindows windows;
    DesktopPlatform platform{windows, *this};
};

TEST_F(DesktopPlatformTest, AQuestionWaitsForItsAnswerOverTheCurrentState) {
    const FormWindow& window = show();
    form.surface.box(0, 0, 299, 199, 12, true);
    YNBx question({}, "Another computational cycle?", "Question", 8);
    question.layOut(platform, "Center");
    QColor behind;
    QTimer::singleShot(50, [&] {
        behind = windows.find(form)->canvas().grab().toImage().pixelColor(100, 300);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y, Qt::AltModifier);
    });
    platform.showModal(question);
    EXPECT_EQ(question.reply, replyYes);
    EXPECT_EQ(behind, QColor(255, 0, 0)) << "drawn before the question came";
    EXPECT_EQ(windows.front(), &window);
}

TEST_F(DesktopPlatformTest, ACaptureHoldsTheClientAreaAsItIsNow) {
    show();
    form.backColour = colour::brightWhite;
    form.cmdSolve.seen = [] { return false; };
    const CapturedPicture picture = captureClient(platform, form);
    EXPECT_EQ(picture.width, 640);
    EXPECT_EQ(picture.height, 480);
    ASSERT_EQ(picture.pixels.size(), 640U * 480U);
    EXPECT_EQ(picture.pixels[440 * 640 + 50], 0xFFFFFFFFU) << "where the hidden button stood";
}

TEST_F(DesktopPlatformTest, ACaptureCanBeDrawnAgain) {
    show();
    form.surface.box(0, 0, 299, 199, 12, true);
    const CapturedPicture whole = captureClient(platform, form);
    const auto* drawing = dynamic_cast<const Drawing*>(whole.drawing.get());
    ASSERT_NE(drawing, nullptr);
    form.surface.clear();
    EXPECT_EQ(imageOf(*drawing, 1).pixelColor(100, 300), QColor(255, 0, 0)) << "as it was then";
    EXPECT_EQ(captureWindow(platform, form, {0, 0, 100, 100}).drawing, nullptr);
}

TEST_F(DesktopPlatformTest, ADialogLeavesTheResultInSight) {
    const FormWindow& window = show();
    form.surface.box(0, 0, 299, 199, 12, true);
    MsgeBx message({}, "Short", "SAMPLE", 8);
    message.layOut(platform, "Center");
    QRect place;
    QTimer::singleShot(50, [&] {
        place = QApplication::activeModalWidget()->frameGeometry();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    });
    platform.showModal(message);
    const QWidget& surface = *window.widgetOf(form.surface);
    const QRect result(surface.mapToGlobal(QPoint(0, 0)), surface.size());
    EXPECT_FALSE(place.intersects(result));
}

TEST_F(DesktopPlatformTest, TheSettingsAreThoseOfTheScreen) {
    EXPECT_EQ(platform.resolution().width, platform.screen().width / twipsPerPixel);
    EXPECT_EQ(platform.dotsPerInch(), 96);
    EXPECT_EQ(platform.language(), "English");
    EXPECT_EQ(platform.volumes().at(0), "/");
}

TEST_F(DesktopPlatformTest, PartOfAWindowIsCutToIt) {
    show();
    const CapturedPicture picture = captureWindow(platform, form, {600, 470, 100, 100});
    EXPECT_EQ(picture.width, 40);
    EXPECT_EQ(picture.height, 10);
}

TEST_F(DesktopPlatformTest, TheClipboardTakesPicturesAndIsEmptied) {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    platform.setPicture({.width = 2, .height = 1, .pixels = {0xFFFF0000, 0xFF0000FF}});
    EXPECT_EQ(clipboard.image().pixelColor(1, 0), QColor(Qt::blue));
    platform.clear();
    EXPECT_TRUE(clipboard.image().isNull());
    EXPECT_EQ(clipboard.text(), "");
}

TEST_F(DesktopPlatformTest, TextsAreMeasuredInTwips) {
    const Font font{"MS Sans Serif", 8, false};
    const Extent line = platform.textExtent("Another computational cycle?", font, 30000);
    EXPECT_GT(line.width, 1800);
    EXPECT_LT(line.width, 2800);
    const Extent wrapped = platform.textExtent("Another computational cycle?", font, 1500);
    EXPECT_LE(wrapped.width, 1500 + 15);
    EXPECT_GE(wrapped.height, 2 * line.height);
    const Extent lines = platform.textExtent("one\r\ntwo\r\nthree", font, 30000);
    EXPECT_NEAR(lines.height, 3 * line.height, 30);
}

TEST_F(DesktopPlatformTest, WaitingRefreshesTheWindowsAndTakesAMoment) {
    const FormWindow& window = show();
    form.runningNote = "MIP.EXE is running, 0:01.";
    QElapsedTimer timer;
    timer.start();
    platform.processEvents();
    EXPECT_GE(timer.elapsed(), 4);
    EXPECT_TRUE(window.findChild<QWidget*>("runningNote")->isVisible());
}

TEST_F(DesktopPlatformTest, TheBusyPointerComesAndGoes) {
    platform.setBusyPointer(true);
    platform.setBusyPointer(true);
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    platform.setBusyPointer(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(DesktopPlatformTest, ThePointerIsNotBusyWhileAQuestionWaits) {
    show();
    for (const bool busy : {true, false}) {
        platform.setBusyPointer(busy);
        YNBx question({}, "Another computational cycle?", "Question", 8);
        question.layOut(platform, "Center");
        bool busyInQuestion = true;
        QTimer::singleShot(50, [&] {
            busyInQuestion = QGuiApplication::overrideCursor() != nullptr;
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Y, Qt::AltModifier);
        });
        platform.showModal(question);
        EXPECT_FALSE(busyInQuestion);
        EXPECT_EQ(QGuiApplication::overrideCursor() != nullptr, busy) << "as before the question";
    }
}

} // namespace
} // namespace vantore::tests
