#include "desktop/form_window.h"

#include <QAbstractScrollArea>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/desktop/sample_form.h"

namespace vantore::tests {
namespace {

class FormWindowTest : public testing::Test {
  protected:
    void refresh() { open.window.refresh(); }

    SampleForm form;
    OpenWindow<SampleForm> open{form};
};

TEST_F(FormWindowTest, ControlsStandWhereTheDesignPutsThem) {
    EXPECT_EQ(open.widget(form.cmdSolve).geometry(), QRect(8, 430, 101, 21));
    EXPECT_EQ(open.widget(form.grid).geometry(), QRect(8, 56, 300, 160));
    EXPECT_EQ(open.window.size(), QSize(640, 480));
    EXPECT_EQ(open.window.windowTitle(), "SAMPLE - a window");
}

TEST_F(FormWindowTest, TheFormsStateIsReadAgain) {
    form.caption = "SAMPLE - /data/x.dat";
    form.cmdSolve.caption = "&Again";
    form.cmdSolve.usable = [] { return false; };
    form.txtName.show("Two towns");
    form.frame.seen = [] { return false; };
    refresh();
    EXPECT_EQ(open.window.windowTitle(), "SAMPLE - /data/x.dat");
    EXPECT_EQ(open.widget<QPushButton>(form.cmdSolve).text(), "&Again");
    EXPECT_FALSE(open.widget(form.cmdSolve).isEnabled());
    EXPECT_EQ(open.widget<QLineEdit>(form.txtName).text(), "Two towns");
    EXPECT_FALSE(open.widget(form.option1).isVisible()) << "it stands in a hidden frame";
}

TEST_F(FormWindowTest, MnemonicsPressAndTipsTell) {
    QTest::keyClick(&open.window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(form.log, "solved ");
    EXPECT_EQ(open.widget(form.cmdSolve).toolTip(), "Finds the best plan");
}

TEST_F(FormWindowTest, EnterAndTheBlankPressTheButtonWithTheFocus) {
    open.widget(form.cmdSolve).setFocus();
    QTest::keyClick(&open.widget(form.cmdSolve), Qt::Key_Return);
    QTest::keyClick(&open.widget(form.cmdSolve), Qt::Key_Space);
    EXPECT_EQ(form.log, "solved solved ");
}

TEST_F(FormWindowTest, OptionsExcludeEachOtherAsTheFormSays) {
    QTest::mouseClick(&open.widget(form.option2), Qt::LeftButton, {}, QPoint(6, 10));
    EXPECT_TRUE(form.option2.selected);
    EXPECT_FALSE(form.option1.selected);
    EXPECT_FALSE(open.widget<QRadioButton>(form.option1).isChecked());
    QTest::mouseClick(&open.widget(form.option2), Qt::LeftButton, {}, QPoint(6, 10));
    EXPECT_TRUE(open.widget<QRadioButton>(form.option2).isChecked());
}

TEST_F(FormWindowTest, TheOptionsAreOneTabStopWhoseArrowsSelect) {
    auto& first = open.widget<QRadioButton>(form.option1);
    auto& second = open.widget<QRadioButton>(form.option2);
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Right);
    EXPECT_TRUE(form.option2.selected);
    EXPECT_TRUE(second.hasFocus());
    EXPECT_FALSE(form.option1.selected);
    QTest::keyClick(&second, Qt::Key_Tab);
    EXPECT_TRUE(open.widget(form.check).hasFocus());
    QTest::keyClick(&open.widget(form.check), Qt::Key_Backtab);
    EXPECT_TRUE(second.hasFocus());
}

TEST_F(FormWindowTest, AnOptionThatTheFormClearsIsCleared) {
    form.option1.selected = false;
    refresh();
    EXPECT_FALSE(open.widget<QRadioButton>(form.option1).isChecked());
}

TEST_F(FormWindowTest, ATabShowsItsPage) {
    auto& bar = *open.widget(form.tabs).findChild<QTabBar*>();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(1).center());
    EXPECT_EQ(form.tabs.selected, 1);
    EXPECT_FALSE(open.widget(form.onFirst).isVisible());
    EXPECT_TRUE(open.widget(form.onSecond).isVisible());
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(form.tabs.selected, 0);
    EXPECT_TRUE(open.widget(form.onFirst).isVisible());
}

TEST_F(FormWindowTest, ATabsMnemonicSelectsIt) {
    QTest::keyClick(&open.window, Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(form.tabs.selected, 1);
}

TEST_F(FormWindowTest, TabsThatDoNotFitAreCutAndShownWholeAsTips) {
    form.tabs.pages = {std::string(80, 'x'), "Costs"};
    refresh();
    const auto& bar = *open.widget(form.tabs).findChild<QTabBar*>();
    EXPECT_LE(bar.tabRect(1).right(), open.widget(form.tabs).width());
    EXPECT_EQ(bar.tabToolTip(0), QString(80, 'x'));
    EXPECT_FALSE(bar.usesScrollButtons()) << "no tab is scrolled out of sight";
}

TEST_F(FormWindowTest, TypedTextIsTheFormsAndCanBeUndone) {
    auto& box = open.widget<QLineEdit>(form.txtName);
    box.setFocus();
    QTest::keyClicks(&box, "North");
    EXPECT_EQ(form.txtName.text(), "North");
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.txtName.text(), "");
    EXPECT_EQ(box.text(), "");
    QTest::keyClick(&box, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(box.text(), "North");
}

TEST_F(FormWindowTest, UndoAndRedoWorkWhateverHasTheFocus) {
    QTest::keyClicks(&open.widget(form.txtName), "North");
    QWidget& button = open.widget(form.cmdSolve);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.txtName.text(), "");
    EXPECT_TRUE(open.widget(form.txtName).hasFocus()) << "where the change is seen";
    QTest::keyClick(&open.widget(form.report), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(form.txtName.text(), "North");
}

TEST_F(FormWindowTest, ATextBoxTakesATextOfAnyLength) {
    auto& box = open.widget<QLineEdit>(form.txtName);
    box.setFocus();
    QGuiApplication::clipboard()->setText(QString(100000, 'x'));
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(form.txtName.text().size(), 100000U);
    form.txtName.show(std::string(90000, 'y'));
    refresh();
    EXPECT_EQ(box.text().size(), 90000);
}

TEST_F(FormWindowTest, ATextLongerThanItsBoxComesAsATip) {
    form.txtName.show("short");
    form.txtName.tip = "Any name";
    refresh();
    EXPECT_EQ(open.widget(form.txtName).toolTip(), "Any name");
    form.txtName.show("The long name of a problem that no box of this width shows whole");
    refresh();
    EXPECT_EQ(open.widget(form.txtName).toolTip(),
              "<qt>The long name of a problem that no box of this width shows whole<br>Any name</qt>");
    EXPECT_NEAR(open.widget(form.txtName).font().pointSizeF(), 8, .01) << "moved, not smaller";
}

TEST_F(FormWindowTest, ABoxIsLeftBeforeTheButtonIsPressed) {
    open.widget(form.txtName).setFocus();
    QTest::mouseClick(&open.widget(form.cmdSolve), Qt::LeftButton);
    open.widget(form.txtName).setFocus();
    QTest::keyClick(&open.window, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(form.log, "left solved left solved ");
}

TEST_F(FormWindowTest, ABoxThatTheTabKeyLeavesIsLeftWithoutAFurtherStep) {
    open.widget(form.txtName).setFocus();
    QTest::keyClick(&open.widget(form.txtName), Qt::Key_Tab);
    QTest::qWait(20);
    EXPECT_EQ(form.log, "left ");
}

TEST_F(FormWindowTest, TheTabKeyFollowsTheFormsOrder) {
    open.widget(form.txtName).setFocus();
    std::vector<Control*> order = {&form.option1, &form.check, &form.grid};
    QWidget* at = &open.widget(form.txtName);
    for (Control* next : order) {
        QTest::keyClick(at, Qt::Key_Tab);
        at = &open.widget(*next);
        EXPECT_TRUE(at->hasFocus()) << next->name;
    }
}

TEST_F(FormWindowTest, TheFormMovesTheFocusOnce) {
    form.focus = &form.grid;
    refresh();
    EXPECT_TRUE(open.widget(form.grid).hasFocus());
    EXPECT_EQ(form.focus, nullptr);
    open.widget(form.cmdSolve).setFocus();
    refresh();
    EXPECT_TRUE(open.widget(form.cmdSolve).hasFocus());
}

TEST_F(FormWindowTest, ControlCWithoutAMarkedTextInterrupts) {
    open.widget(form.cmdSolve).setFocus();
    QTest::keyClick(&open.widget(form.cmdSolve), Qt::Key_C, Qt::ControlModifier);
    open.widget(form.txtName).setFocus();
    QTest::keyClick(&open.widget(form.txtName), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(form.log, "interrupted interrupted ");
}

TEST_F(FormWindowTest, WhileASolverRunsControlCInterruptsFromTheGridToo) {
    open.widget(form.grid).setFocus();
    QTest::keyClick(&open.widget(form.grid), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(form.log, "");
    form.runningNote = "MIP.EXE is running, 0:01.";
    refresh();
    QTest::keyClick(&open.widget(form.grid), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(form.log, "interrupted ");
}

TEST_F(FormWindowTest, TheRunningNoteStandsAtTheFootAndNothingShrinks) {
    const auto& note = *open.window.findChild<QLabel*>("runningNote");
    EXPECT_FALSE(note.isVisible());
    form.runningNote = "MIP.EXE is running, 0:01.";
    refresh();
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(note.text(), "MIP.EXE is running, 0:01.");
    EXPECT_EQ(note.geometry().bottom(), open.window.rect().bottom());
    EXPECT_DOUBLE_EQ(open.window.zoom(), 1);
    form.runningNote.clear();
    refresh();
    EXPECT_FALSE(note.isVisible());
}

TEST_F(FormWindowTest, WhileASolverRunsNoBoxTakesTheCaret) {
    open.widget(form.txtName).setFocus();
    form.runningNote = "MIP.EXE is running, 0:01.";
    refresh();
    EXPECT_FALSE(open.widget(form.txtName).hasFocus());
    QTest::keyClicks(&open.widget(form.txtName), "x");
    EXPECT_EQ(form.txtName.text(), "");
    form.runningNote.clear();
    refresh();
    EXPECT_TRUE(open.widget(form.txtName).isEnabled());
}

TEST_F(FormWindowTest, AReportIsReadWithTheKeysFromAnyButton) {
    for (int i = 0; i < 200; ++i) form.report.add({"line", {"Courier New", 9, false}});
    refresh();
    QWidget& button = open.widget(form.cmdSolve);
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_PageDown);
    const QScrollBar& bar = *open.widget<QAbstractScrollArea>(form.report).verticalScrollBar();
    EXPECT_GT(bar.value(), 2);
    EXPECT_TRUE(button.hasFocus());
}

TEST_F(FormWindowTest, ASmallerWindowDrawsAllSmaller) {
    open.window.resize(480, 360);
    EXPECT_DOUBLE_EQ(open.window.zoom(), .75);
    for (const auto& control : form.controls()) {
        if (!control->shown()) continue;
        EXPECT_TRUE(open.window.canvas().rect().contains(open.widget(*control).geometry())) << control->name;
    }
}

TEST(FormWindowLetters, GrowWithTheScreenThatTheFormIsLaidOutFor) {
    const auto lettersAt = [](double scale) {
        SampleForm form({scale, scale});
        const OpenWindow<SampleForm> open{form};
        return open.window.widgetOf(form.lblName)->font().pointSizeF();
    };
    EXPECT_NEAR(lettersAt(1.5), 1.5 * lettersAt(1), .1);
}

TEST_F(FormWindowTest, ACaptionTooLongForItsButtonIsCutAndShownWholeAsATip) {
    form.cmdSolve.caption = "A caption that is much too long for this button";
    refresh();
    const auto& button = open.widget<QPushButton>(form.cmdSolve);
    EXPECT_LE(QFontMetrics(button.font()).horizontalAdvance(button.text()), button.width());
    EXPECT_TRUE(button.text().endsWith(QChar(0x2026)));
    EXPECT_GE(button.font().pointSizeF(), .8 * 8 - .01);
    EXPECT_EQ(button.toolTip(),
              "<qt>A caption that is much too long for this button<br>Finds the best plan</qt>");
    form.cmdSolve.caption = "&Solve";
    refresh();
    EXPECT_EQ(button.text(), "&Solve");
    EXPECT_EQ(button.toolTip(), "Finds the best plan");
}

TEST_F(FormWindowTest, ALabelStandsOnTheLineOfItsBox) {
    const auto& label = open.widget<QLabel>(form.lblName);
    const QWidget& box = open.widget(form.txtName);
    EXPECT_NEAR(label.geometry().center().y(), box.geometry().center().y(), 1);
    EXPECT_TRUE(label.alignment().testFlag(Qt::AlignVCenter));
    form.lblName.design.top = 3000; // above another row
    refresh();
    EXPECT_EQ(label.y(), 200);
    EXPECT_TRUE(label.alignment().testFlag(Qt::AlignTop));
}

TEST_F(FormWindowTest, ALabelKeepsItsFontWhereItsTextFitsAndShowsALongPathWhole) {
    auto& label = open.widget<QLabel>(form.lblName);
    form.lblName.buddy = nullptr;
    form.lblName.design = {120, 120, 2000, 600};
    form.lblName.caption = "rows and/or columns";
    refresh();
    EXPECT_EQ(label.text(), "rows and/or columns");
    EXPECT_NEAR(label.font().pointSizeF(), 8, .01);
    form.lblName.caption = "/home/planner/warehouses/north/data";
    refresh();
    const QRectF needed =
        QFontMetricsF(label.font())
            .boundingRect(QRectF(0, 0, label.width(), 1000), Qt::TextWordWrap, label.text());
    EXPECT_LE(needed.width(), label.width() + 1);
    EXPECT_LE(needed.height(), label.height() + 1);
}

TEST_F(FormWindowTest, TheTitleBarAsksTheForm) {
    open.window.close();
    EXPECT_EQ(form.log, "closed ");
    EXPECT_TRUE(open.window.isVisible());
    form.enabled = false;
    open.window.close();
    EXPECT_EQ(form.log, "closed ");
}

TEST_F(FormWindowTest, ADisabledFormTakesNoClick) {
    form.enabled = false;
    refresh();
    QTest::mouseClick(&open.widget(form.cmdSolve), Qt::LeftButton);
    EXPECT_EQ(form.log, "");
}

TEST_F(FormWindowTest, TheBackColourIsTheWholeWindows) {
    form.backColour = colour::brightWhite;
    refresh();
    EXPECT_EQ(open.window.canvas().grab().toImage().pixelColor(300, 440), QColor(Qt::white));
}

} // namespace
} // namespace vantore::tests
