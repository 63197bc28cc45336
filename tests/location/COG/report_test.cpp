#include <gtest/gtest.h>

#include <utility>

#include "location/COG/report.h"
#include "shell/forms/visible_operations.h"

namespace vantore::cog {
namespace {

PictureSurface surface() {
    return {"picOut", {}, {1, 1}};
}

const SurfaceText& textOf(const SurfaceOperation& operation) {
    return std::get<SurfaceText>(operation);
}

std::string rowOf(const Cycle& cycle) {
    PictureSurface picOut = surface();
    printCycle(picOut, {1, 1}, cycle, {});
    return textOf(picOut.operations().back()).text;
}

TEST(CogReport, PutsTheFiguresOfARowUnderTheirHeadings) {
    EXPECT_EQ(rowOf({0, {2.75, 14}, 1234.5}),
              "        0           2.750             14            1,234.50 <-- COG");
    EXPECT_EQ(rowOf({12, {2.75, 1400}, 1234}),
              "       12           2.750          1,400               1,234");
}

TEST(CogReport, EndsTheNumberOfACycleInOneColumn) {
    const auto begin = [](int number) { return rowOf({number, {1, 2}, 3}).substr(0, 12); };
    EXPECT_EQ(begin(9), "        9   ");
    EXPECT_EQ(begin(10), "       10   ");
    EXPECT_EQ(begin(99), "       99   ");
    EXPECT_EQ(begin(100), "      100   ");
    EXPECT_EQ(begin(999), "      999   ");
    EXPECT_EQ(begin(1000), "     1000   ");
}

TEST(CogReport, StandsInItsPlaceOnEveryScreen) {
    PictureSurface picOut("picOut", {}, {2, 3});
    const auto lastPlace = [&] {
        const SurfaceText& text = textOf(picOut.operations().back());
        return std::pair(text.x, text.y);
    };
    printTableHeading(picOut, {2, 3});
    EXPECT_EQ(lastPlace(), std::pair(16.0, 144.0));
    printCycle(picOut, {2, 3}, {1, {1, 2}, 3}, {});
    EXPECT_EQ(lastPlace(), std::pair(16.0, 240.0));
    printCycle(picOut, {2, 3}, {20, {1, 2}, 3}, {});
    EXPECT_EQ(lastPlace(), std::pair(16.0, 1200.0));
    printSpecified(picOut, {2, 3}, "1", "2", 3);
    EXPECT_EQ(lastPlace(), std::pair(16.0 + 15 * 16, 192.0));
}

TEST(CogReport, ShowsACostOfAnyLength) {
    EXPECT_EQ(rowOf({1, {2, 3}, 1234567890123.5}),
              "        1               2              31,234,567,890,123.50");
    // What is too long to end with the others stands behind its row.
    EXPECT_EQ(rowOf({1, {2, 3}, 12345678901234.5}),
              "        1               2              3 12,345,678,901,234.50");
    EXPECT_EQ(rowOf({1, {2, 3}, 1e27}),
              "        1               2              3 1,000,000,000,000,000,000,000,000,000");
}

TEST(CogReport, WipesTheRowBelowTheTableBeforeTheNext) {
    PictureSurface picOut = surface();
    for (int k = 0; k <= 30; ++k) printCycle(picOut, {1, 1}, {k, {1, 2}, 3}, {k - 1, {1, 2}, 3});
    EXPECT_EQ(picOut.operations().size(), 42U); // from cycle 20 on each with its wiping
    const std::vector<SurfaceOperation> visible = visibleOperations(picOut.operations());
    int rowsBelow = 0;
    for (const SurfaceOperation& operation : visible)
        rowsBelow += textOf(operation).y == 400 && textOf(operation).colour == colour::black;
    EXPECT_EQ(rowsBelow, 1);
    EXPECT_EQ(textOf(visible.back()).text.substr(0, 9), "       30");
    EXPECT_EQ(textOf(visible.at(19)).y, 368);
}

} // namespace
} // namespace vantore::cog
