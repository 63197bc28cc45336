#include "desktop/form_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include "shell/dialog_form.h"
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
    form.cmdSolve.enabled = false;
    form.txtName.setText("Two towns");
    form.frame.visible = false;
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

TEST_F(FormWindowTest, ATabShowsItsPage) {
    QTest::mouseClick(&open.widget(form.tabs), Qt::LeftButton, {}, QPoint(70, 8));
    EXPECT_EQ(form.tabs.selected, 1);
    EXPECT_FALSE(open.widget(form.onFirst).isVisible());
    EXPECT_TRUE(open.widget(form.onSecond).isVisible());
    QTest::keyClick(&open.widget(form.tabs), Qt::Key_Left);
    EXPECT_EQ(form.tabs.selected, 0);
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
    std::vector<Control*> order = {&form.option1, &form.option2, &form.check, &form.grid, &form.tabs};
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

TEST_F(FormWindowTest, TheRunningNoteStandsUnderAllControls) {
    const auto& note = *open.window.findChild<QLabel*>("runningNote");
    EXPECT_FALSE(note.isVisible());
    form.runningNote = "MIP.EXE is running, 0:01.";
    refresh();
    EXPECT_TRUE(note.isVisible());
    EXPECT_EQ(note.text(), "MIP.EXE is running, 0:01.");
    EXPECT_GE(note.y(), open.window.canvas().geometry().bottom());
    EXPECT_LT(open.widget(form.cmdSolve).geometry().bottom(), note.y());
    form.runningNote.clear();
    refresh();
    EXPECT_FALSE(note.isVisible());
}

TEST_F(FormWindowTest, ASmallerWindowDrawsAllSmaller) {
    open.window.resize(480, 360);
    EXPECT_DOUBLE_EQ(open.window.zoom(), .75);
    for (const auto& control : form.controls()) {
        if (!control->shown()) continue;
        EXPECT_TRUE(open.window.canvas().rect().contains(open.widget(*control).geometry())) << control->name;
    }
}

TEST_F(FormWindowTest, NoCaptionIsWiderThanItsButton) {
    form.cmdSolve.caption = "A caption that is much too long for this button";
    refresh();
    const auto& button = open.widget<QPushButton>(form.cmdSolve);
    EXPECT_LE(QFontMetrics(button.font()).horizontalAdvance(button.text()), button.width());
}

TEST_F(FormWindowTest, ALabelKeepsItsFontWhereItsTextFitsAndShowsALongPathWhole) {
    auto& label = open.widget<QLabel>(form.lblName);
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

TEST(DialogWindow, EnterInTheTextBoxPressesOk) {
    InptBx dialog({}, "The add value is?", "COG", 8, "Enter a value");
    dialog.width = 4300;
    dialog.height = 2175;
    dialog.txtInput.design = {150, 1360, 2500, 285};
    OpenWindow<InptBx> open(dialog);
    open.window.behaveAsDialog();
    open.window.show();
    auto& box = open.widget<QLineEdit>(dialog.txtInput);
    EXPECT_EQ(box.selectedText(), "Enter a value") << "typing takes the default's place";
    QTest::keyClicks(&box, "12");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(dialog.closed);
    EXPECT_EQ(dialog.reply, "12");
}

TEST(DialogWindow, ALetterAloneAnswersAQuestion) {
    YNBx dialog({}, "Another computational cycle?", "Question", 8);
    OpenWindow<YNBx> open(dialog);
    open.window.behaveAsDialog();
    open.window.show();
    QTest::keyClick(&open.widget(dialog.cmdNo), Qt::Key_X);
    EXPECT_FALSE(dialog.closed);
    QTest::keyClick(&open.widget(dialog.cmdNo), Qt::Key_Y);
    EXPECT_TRUE(dialog.closed);
    EXPECT_EQ(dialog.reply, replyYes);
}

TEST(DialogWindow, EscapeAndTheTitleBarAreNo) {
    YNBx dialog({}, "Another computational cycle?", "Question", 8);
    OpenWindow<YNBx> open(dialog);
    open.window.behaveAsDialog();
    open.window.show();
    QTest::keyClick(&open.widget(dialog.cmdYes), Qt::Key_Escape);
    EXPECT_TRUE(dialog.closed);
    EXPECT_EQ(dialog.reply, replyNo);
}

} // namespace
} // namespace vantore::tests
