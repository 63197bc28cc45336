#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "script/script_platform.h"
#include "shell/dialog_form.h"
#include "tests/support/form_faults.h"

namespace vantore::tests {
namespace {

/// A display on which each line takes 200 twips and each character 100.
class PlainDisplay : public ScriptPlatform {
  public:
    PlainDisplay() : ScriptPlatform(out_, 800, 600) {}

    Extent textExtent(const std::string& text, const Font& /*font*/, double width) const override {
        const double perLine = std::max(1.0, std::floor(width / 100));
        return {std::min(static_cast<double>(text.size()), perLine) * 100,
                std::ceil(static_cast<double>(text.size()) / perLine) * 200};
    }

  private:
    std::ostringstream out_;
};

TEST(MessageBox, KeepsItsDesignSizeForAShortPrompt) {
    const PlainDisplay display;
    MsgeBx box({1, 1}, "Short", "Title", 8);
    box.layOut(display, "Center");
    EXPECT_EQ(box.height, 2220);
    EXPECT_EQ(box.top, (9000 - 2220) / 2.0);
    EXPECT_EQ(box.left, (12000 - box.width) / 2);
    EXPECT_TRUE(formFaults(box).empty());
}

TEST(MessageBox, GrowsWithItsPromptAndKeepsTheButtonBelow) {
    const PlainDisplay display;
    MsgeBx shortBox({1, 1}, "Short", "Title", 8);
    shortBox.layOut(display, "Center");
    MsgeBx box({1, 1}, std::string(350, 'x'), "Title", 8); // ten lines of 35
    box.layOut(display, "Center");
    EXPECT_EQ(box.height, 2220 + 2000 - 750);
    EXPECT_EQ(box.cmdOK.design.top, shortBox.cmdOK.design.top + 2000 - 750);
}

TEST(MessageBox, StandsAtAQuarterWhenAlignedLeft) {
    const PlainDisplay display;
    MsgeBx box({1, 1}, "Short", "Title", 8);
    box.layOut(display, "left");
    EXPECT_EQ(box.left, (12000 - box.width) / 4);
}

TEST(MessageBox, WidensBeforeItWouldLeaveTheScreen) {
    const PlainDisplay display;
    MsgeBx box({1, 1}, std::string(3000, 'x'), "Title", 8);
    box.layOut(display, "Center");
    EXPECT_LE(box.height, 9000);
    EXPECT_LE(box.cmdOK.design.bottom(), box.height);
}

TEST(Question, HasNoAnswerWhenItIsClosedByItsTitleBar) {
    YNBx box({1, 1}, "Save data?", "COG", 8);
    box.close();
    EXPECT_TRUE(box.closed);
    EXPECT_EQ(box.reply, std::nullopt);
    YNBx yes({1, 1}, "Save data?", "COG", 8);
    yes.press(yes.cmdYes);
    EXPECT_EQ(yes.reply, replyYes);
    EXPECT_TRUE(yes.closed);
}

TEST(Question, KeepsBothButtonsBelowALongPrompt) {
    const PlainDisplay display;
    YNBx shortBox({1, 1}, "Short?", "Title", 8);
    shortBox.layOut(display, "Center");
    YNBx box({1, 1}, std::string(350, 'x'), "Title", 8);
    box.layOut(display, "Center");
    const double down = box.height - shortBox.height;
    EXPECT_GT(down, 500);
    EXPECT_EQ(box.cmdYes.design.top, shortBox.cmdYes.design.top + down);
    EXPECT_EQ(box.cmdNo.design.top, shortBox.cmdNo.design.top + down);
}

TEST(Input, FollowsTheScaleFactors) {
    const PlainDisplay display;
    InptBx box({2, 1.5}, "Value?", "Title", 16, "Enter value");
    box.layOut(display, "Center");
    EXPECT_EQ(box.width, 8600);
    EXPECT_EQ(box.height, 2075 + 150);
    EXPECT_EQ(box.cmdOK.design.left, 6000 + 400);
    EXPECT_EQ(box.cmdOK.design.height, 335 * 1.5);
    EXPECT_EQ(box.cmdCancel.design.height, 335 * 1.5);
    EXPECT_EQ(box.cmdCancel.design.top, 840);
    EXPECT_EQ(box.txtInput.text(), "Enter value");
}

TEST(Input, IsEmptyOnCancel) {
    InptBx box({1, 1}, "Value?", "Title", 8, "Enter value");
    box.press(box.cmdCancel);
    EXPECT_TRUE(box.cancelled);
    EXPECT_EQ(box.reply, "");
}

} // namespace
} // namespace vantore::tests
