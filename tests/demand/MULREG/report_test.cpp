#include "demand/MULREG/report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/demand/MULREG/observations.h"

namespace vantore::mulreg {
namespace {

/// A problem of one independent variable in column 4 and the dependent one in column 2.
Problem problemOf(const std::vector<std::vector<double>>& rows) {
    Problem problem;
    problem.label = "By hand";
    problem.variables(4) = {"Distance to the last customer", "I"};
    problem.variables(2) = {"Cost", "D"};
    problem.stepwise = "N";
    problem.errorAnalysis = "N";
    problem.enteringLevel = 4;
    problem.leavingLevel = 3.9;
    problem.observationCount = static_cast<int>(rows.size());
    for (int i = 1; i <= problem.observationCount; ++i) {
        problem.data(i, 4) = rows.at(static_cast<std::size_t>(i - 1)).at(0);
        problem.data(i, 2) = rows.at(static_cast<std::size_t>(i - 1)).at(1);
    }
    return problem;
}

std::vector<std::string> linesOn(const Problem& problem, const std::vector<std::vector<double>>& rows) {
    const Observations observations = observationsOf(rows);
    const std::optional<Moments> moments = momentsOf(observations);
    if (!moments) return reportOn(problem, observations, std::nullopt).lines();
    const Criteria criteria{problem.enteringLevel, problem.leavingLevel, problem.stepwise == "Y"};
    const Regression regression{*moments, regress(*moments, observations.count, 2, criteria)};
    return reportOn(problem, observations, regression).lines();
}

const std::vector<std::vector<double>> five = {{1, 2}, {2, 4}, {3, 5}, {4, 4}, {5, 5}};

TEST(Report, ShowsTheEquationWorkedOutByHand) {
    // The figures are those of the method's test: 3.6 of 6 explained, 2.4 left on 3 degrees of freedom.
    const std::vector<std::string> expected = {
        " MULTIPLE REGRESSION ANALYSIS RESULTS",
        "",
        "By hand",
        " ANALYSIS OF VARIANCE",
        " Source                    SS      df                MS         F-value",
        " Regression           3.60000       1           3.60000         4.50000",
        " Residual             2.40000       3            .80000",
        "  Total               6.00000       4",
        " SUMMARY",
        " The estimating equation is:",
        " Y (Cost) = 2.2000",
        " + .6000 x Distance to the last customer",
        " with a standard error of estimate = .8944",
        " and an R-square of  .6000"};
    EXPECT_EQ(linesOn(problemOf(five), five), expected);
}

TEST(Report, ShowsMomentsUnderTheirOwnColumns) {
    Problem problem = problemOf(five);
    problem.stepwise = "Y";
    const std::vector<std::string> lines = linesOn(problem, five);
    EXPECT_EQ(lines.at(4),
              "         Var. #1            Cost         Var. #3 Distance to the         Var. #5");
    EXPECT_EQ(lines.at(5), "                           4.000                           3.000");
    EXPECT_EQ(lines.at(8), "                           1.225                           1.581");
    EXPECT_EQ(lines.at(10), " Distance to the    1.000     .775");
    EXPECT_EQ(lines.at(13), " Dependent variable Cost");
    EXPECT_EQ(lines.at(20), " Independent variable entering is: Distance to the last customer Incremental "
                            "F-level: 4.5");
    EXPECT_EQ(lines.at(24), " Distance to the      4     .6000      .2828     2.1213");
    EXPECT_EQ(lines.at(28), " Incremental F-level insufficient for further computation");
}

TEST(Report, ShowsAnEquationWithoutVariables) {
    Problem problem = problemOf(five);
    problem.enteringLevel = 5;
    const std::vector<std::string> lines = linesOn(problem, five);
    EXPECT_EQ(lines.at(5), " Regression            .00000       1            .00000          .00000");
    EXPECT_EQ(lines.at(6), " Residual             6.00000       4           1.50000");
    EXPECT_EQ(lines.at(10), " Y (Cost) = 4.0000");
    EXPECT_EQ(lines.at(11), " with a standard error of estimate = 1.2247");
}

TEST(Report, SaysThatADeviationIsZero) {
    const std::vector<std::vector<double>> rows = {{4, 2}, {4, 4}, {4, 5}};
    const std::vector<std::string> expected = {" MULTIPLE REGRESSION ANALYSIS RESULTS", "", "By hand",
                                               "A zero standard deviation is not allowed - check input data"};
    EXPECT_EQ(linesOn(problemOf(rows), rows), expected);
}

TEST(Report, SaysThatTheStepsHadNoEnd) {
    Problem problem = problemOf(five);
    problem.enteringLevel = 1;
    problem.leavingLevel = 10;
    const std::string line =
        " Variables enter and leave without end under these F-levels; computation stopped";
    EXPECT_EQ(linesOn(problem, five).at(3), line);
    problem.stepwise = "Y";
    const std::vector<std::string> lines = linesOn(problem, five);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), line), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         " Independent variable leaving is: Distance to the last customer"),
              mostReturns);
    EXPECT_EQ(*(std::find(lines.begin(), lines.end(), line) + 1), " ANALYSIS OF VARIANCE");
}

TEST(Report, MarksObservationsOutOfTheirRange) {
    // By hand: ten observations on y = x and one 10 above. Means 6 and 76/11, sums of squares 110 and
    // 110 + 10 x 10 x 10 / 11, of products 110: b = 1, a = 10 / 11, s = Sqr(1000 / 11 / 9) = 3.178.
    std::vector<std::vector<double>> rows;
    for (int x = 1; x <= 11; ++x) rows.push_back({1.0 * x, x == 6 ? 16.0 : x});
    Problem problem = problemOf(rows);
    problem.errorAnalysis = "Y";
    const std::vector<std::string> lines = linesOn(problem, rows);
    EXPECT_EQ(lines.at(14), " ERROR ANALYSIS");
    EXPECT_EQ(lines.at(17), "   1      1.000     1.909     -.909    -4.447 - 8.266          ");
    EXPECT_EQ(lines.at(22), "   6     16.000     6.909     9.091      .553 - 13.266        Y");
}

} // namespace
} // namespace vantore::mulreg
