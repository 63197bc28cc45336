#include "desktop/form_layout.h"

#include <gtest/gtest.h>

namespace vantore::tests {
namespace {

/// A window of 640 by 480 pixels.
class LayoutForm : public Form {
  public:
    LayoutForm() : Form("LAYOUT", {}) {}

    template <class T>
    T& with(const char* name, Rect place) {
        return add<T>(name, place);
    }
};

TEST(FormLayout, ControlsStandWhereTheDesignPutsThem) {
    LayoutForm form;
    const auto& button = form.with<Button>("cmdSolve", {120, 6450, 1510, 320});
    EXPECT_EQ(FormLayout(form, {640, 480}).place(button), QRect(8, 430, 101, 21));
}

TEST(FormLayout, ADesignIsLargeEnoughForControlsThatReachBeyondTheForm) {
    LayoutForm form;
    EXPECT_EQ(designSize(form), QSize(640, 480));
    form.with<Button>("cmdSolve", {9000, 7000, 1500, 500}); // 300 twips below, 900 at the right
    EXPECT_EQ(designSize(form), QSize(640 + 60 + 8, 480 + 20 + 8)) << "8 pixels beside it";
}

TEST(FormLayout, AGridTakesTheExtraRoomAndTheButtonsUnderItMoveDown) {
    LayoutForm form;
    const auto& box = form.with<TextBox>("txtLabel", {1860, 120, 3000, 315});
    const auto& grid = form.with<DataGrid>("Grid", {120, 1000, 9360, 5330});
    const auto& button = form.with<Button>("cmdSolve", {120, 6450, 1510, 320});
    const FormLayout layout(form, {840, 580});
    EXPECT_DOUBLE_EQ(layout.zoom, 1);
    EXPECT_EQ(layout.place(box), QRect(124, 8, 200, 21));
    EXPECT_EQ(layout.place(grid), QRect(8, 67, 824, 455));
    EXPECT_EQ(layout.place(button), QRect(8, 530, 101, 21));
}

TEST(FormLayout, TwoGridsShareTheRoomAndWhatStandsBetweenThemMovesHalf) {
    LayoutForm form;
    const auto& upper = form.with<DataGrid>("Upper", {0, 0, 9600, 3000});
    const auto& label = form.with<Label>("lblLower", {0, 3000, 3000, 300});
    const auto& lower = form.with<DataGrid>("Lower", {0, 3300, 9600, 3000});
    const FormLayout layout(form, {640, 580});
    EXPECT_EQ(layout.place(upper), QRect(0, 0, 640, 250));
    EXPECT_EQ(layout.place(label), QRect(0, 250, 200, 20));
    EXPECT_EQ(layout.place(lower), QRect(0, 270, 640, 250));
}

TEST(FormLayout, WhatStandsBesideAGridKeepsItsHeightAndMovesAside) {
    LayoutForm form;
    form.with<DataGrid>("Grid", {0, 0, 4800, 6000});
    const auto& box = form.with<TextBox>("txtLabel", {6000, 3000, 3000, 315});
    EXPECT_EQ(FormLayout(form, {740, 580}).place(box), QRect(500, 200, 200, 21));
}

TEST(FormLayout, NothingOverlapsThatDidNotBefore) {
    LayoutForm form;
    form.with<DataGrid>("Left", {0, 300, 4000, 6000});
    form.with<Chart>("Right", {4800, 300, 4000, 2700});
    form.with<Label>("lblReport", {4800, 3100, 3000, 270});
    form.with<ReportScreen>("rtbOut", {4800, 3400, 4000, 2900});
    form.with<Button>("cmdSolve", {120, 6450, 1510, 320});
    const FormLayout layout(form, {1500, 1100});
    for (const auto& a : form.controls())
        for (const auto& b : form.controls()) {
            if (a == b) continue;
            EXPECT_FALSE(layout.place(*a).intersects(layout.place(*b))) << a->name << " and " << b->name;
        }
}

TEST(FormLayout, AFrameStretchesAroundAGridAndMovesWholeWithoutOne) {
    LayoutForm form;
    auto& outer = form.with<Container>("outer", {0, 0, 9600, 3000});
    auto& grid = form.with<DataGrid>("Grid", {100, 300, 9400, 2600});
    auto& lower = form.with<Container>("lower", {0, 3000, 9600, 1500});
    auto& option = form.with<Option>("option", {150, 3300, 3000, 300});
    grid.container = &outer;
    option.container = &lower;
    const FormLayout layout(form, {640, 580});
    EXPECT_EQ(layout.place(outer).height(), 300);
    EXPECT_EQ(layout.place(lower), QRect(0, 300, 640, 100));
    EXPECT_EQ(layout.place(option), QRect(10, 320, 200, 20));
}

TEST(FormLayout, OnlyWithoutGridsAndReportsAPictureTakesTheRoom) {
    LayoutForm form;
    const auto& picture = form.with<Picture>("picStart", {0, 0, 9600, 6000});
    const auto& button = form.with<Button>("cmdOpen", {120, 6450, 1510, 320});
    EXPECT_EQ(FormLayout(form, {640, 580}).place(picture).height(), 500);
    EXPECT_EQ(FormLayout(form, {640, 580}).place(button).top(), 530);
    form.with<DataGrid>("Grid", {0, 6000, 9600, 300});
    EXPECT_EQ(FormLayout(form, {640, 580}).place(picture).height(), 400);
}

TEST(FormLayout, WhereNothingStretchesAllStandsInTheMiddle) {
    LayoutForm form;
    const auto& button = form.with<Button>("cmdOpen", {150, 1500, 1500, 300});
    EXPECT_EQ(FormLayout(form, {740, 580}).place(button), QRect(60, 150, 100, 20));
}

TEST(FormLayout, ASmallerWindowShowsAllSmaller) {
    LayoutForm form;
    const auto& grid = form.with<DataGrid>("Grid", {0, 0, 9600, 6000});
    const FormLayout layout(form, {320, 480});
    EXPECT_DOUBLE_EQ(layout.zoom, .5);
    EXPECT_EQ(layout.place(grid), QRect(0, 0, 320, 440)) << "what isn't needed in height is the grid's";
}

} // namespace
} // namespace vantore::tests
