#include <gtest/gtest.h>

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
