#include "demand/MULREG/residual_plot.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "shell/base/runtime_error.h"

namespace vantore::mulreg {
namespace {

// By hand. Residuals from -10 to 10: row i stands for i - 11 + .001 and takes what is below it. Estimates
// from 10 to 80: column j stands for j + 9 + .001 and takes what is not above it. The points:
//   (10, 10)     row 21, column 1        (20, 2.5)    row 14, column 11
//   (20.5, 0)    row 11, column 12       (45, -10)    row 1, column 36
//   (80, -6)     row 5, column 71        (45, 2)      row 13, column 36
//   (21.0005, -9.999) row 2 (-9.999 is not above itself), column 12 (21.001)
const std::vector<FittedPoint> points = {{10, 10}, {20, 2.5}, {20.5, 0},        {45, -10},
                                         {80, -6}, {45, 2},   {21.0005, -9.999}};

/// The plot by hand, row 21 first.
std::vector<std::string> rowsByHand() {
    std::vector<std::string> rows;
    for (int i = 21; i >= 1; --i) {
        const bool mark = i == 21 || i == 17 || i == 13 || i == 9 || i == 5 || i == 1;
        rows.push_back((mark ? "+" : ".") + std::string(70, i == 11 ? '-' : ' '));
    }
    rows[20] = "+.........+.........+.........+.........+.........+.........+.........+";
    rows[21 - 21].replace(0, 1, "*");
    rows[21 - 14].replace(10, 1, "*");
    rows[21 - 11].replace(11, 1, "*");
    rows[21 - 1].replace(35, 1, "*");
    rows[21 - 5].replace(70, 1, "*");
    rows[21 - 13].replace(35, 1, "*");
    rows[21 - 2].replace(11, 1, "*");
    return rows;
}

TEST(ResidualPlot, IsTheOneDrawnByHandCellByCell) {
    const ResidualPlot plot = plotResiduals(points);
    const std::vector<std::string> expected = rowsByHand();
    for (int i = 1; i <= ResidualPlot::rows; ++i)
        for (int j = 1; j <= ResidualPlot::columns; ++j)
            EXPECT_EQ(plot.cells(i, j),
                      expected.at(static_cast<std::size_t>(21 - i)).at(static_cast<std::size_t>(j - 1)))
                << "row " << i << ", column " << j;
}

TEST(ResidualPlot, PrintsTitleValuesAndRows) {
    const std::vector<std::string> rows = rowsByHand();
    PrintLines page;
    print(plotResiduals(points), page);
    const std::vector<std::string>& lines = page.lines();
    ASSERT_EQ(lines.size(), 25U);
    EXPECT_EQ(lines[0], "                     RESIDUALS PLOTTED AGAINST ESTIMATED Y");
    EXPECT_EQ(lines[1], "Residuals");
    EXPECT_EQ(lines[2], "  10.0" + rows[0]);
    EXPECT_EQ(lines[6], "   6.0" + rows[4]);
    EXPECT_EQ(lines[10], "   2.0" + rows[8]);
    EXPECT_EQ(lines[14], "   -2." + rows[12]);
    EXPECT_EQ(lines[18], "   -6." + rows[16]);
    EXPECT_EQ(lines[22], "  -10." + rows[20]);
    EXPECT_EQ(lines[3], "      " + rows[1]);
    EXPECT_EQ(lines[23], "      10.   20.   30.   40.   50.   60.   70.   80.");
    EXPECT_EQ(lines[24], "                                 Estimated Y");
}

TEST(ResidualPlot, PutsTheZeroLineInTheFirstRowAboveZero) {
    // Rows of .5 from -2.2: row 5 stands for -.2 + .001, row 6 for .3 + .001.
    const ResidualPlot plot = plotResiduals(std::vector<FittedPoint>{{1, -2.2}, {2, 7.8}});
    EXPECT_EQ(plot.cells(6, 2), '-');
    EXPECT_EQ(plot.cells(6, 71), '-');
    EXPECT_EQ(plot.cells(6, 1), '.');
    EXPECT_EQ(plot.cells(5, 2), ' ');
}

TEST(ResidualPlot, HasNoZeroLineBelowZero) {
    const ResidualPlot plot = plotResiduals(std::vector<FittedPoint>{{1, -20}, {2, -3}});
    for (int i = 1; i <= ResidualPlot::rows; ++i) EXPECT_NE(plot.cells(i, 40), '-');
}

TEST(ResidualPlot, ScalesAnAxisByItsLargestValue) {
    const std::vector<std::pair<double, double>> cases = {
        {99999, 99999},    {100000, 10000},       {999999, 99999.9},  {1000000, 10000},
        {10000000, 10000}, {99999999, 99999.999}, {100000000, 10000}, {1000000000, 1000000000}};
    for (const auto& [largest, scaled] : cases) {
        const ResidualPlot plot = plotResiduals(std::vector<FittedPoint>{{0, 0}, {largest, largest}});
        EXPECT_NEAR(plot.estimate(71), scaled + .001, 1e-6) << largest;
        EXPECT_NEAR(plot.residual(21), scaled + .001, 1e-6) << largest;
        EXPECT_EQ(plot.cells(21, 71), '*') << largest;
    }
}

TEST(ResidualPlot, KeepsEveryPointInTheGridWhateverItsSize) {
    for (const double size : {0.0, 1e-300, 1e9, 3e15, 1e30, 1e36, 1e300})
        for (const double sign : {-1.0, 1.0}) {
            const std::vector<FittedPoint> far = {{size, -size}, {sign * size / 3, sign * size / 7}, {0, 0}};
            const ResidualPlot plot = plotResiduals(far);
            PrintLines page;
            EXPECT_NO_THROW(print(plot, page)) << size;
            int stars = 0;
            for (int i = 1; i <= ResidualPlot::rows; ++i)
                for (const char cell : plot.cells.row(i)) stars += cell == '*';
            EXPECT_GE(stars, 1);
            EXPECT_LE(stars, 3);
        }
}

} // namespace
} // namespace vantore::mulreg
