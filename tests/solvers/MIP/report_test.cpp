#include <gtest/gtest.h>

#include <algorithm>

#include "shell/base/text.h"
#include "solvers/MIP/report.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;
using miprog::SolverInput;
using Lines = std::vector<std::string>;

std::string column(double value) {
    return columnText(value, 14);
}

TEST(ColumnText, ShowsFourDecimalsWhereThereIsRoom) {
    EXPECT_EQ(column(0), "0.0000");
    EXPECT_EQ(column(-0.0), "0.0000");
    EXPECT_EQ(column(3.5), "3.5000");
    EXPECT_EQ(column(-1234.56789), "-1,234.5679");
    EXPECT_EQ(column(9999999.9999), "9,999,999.9999");
    EXPECT_EQ(column(.0012), "0.0012");
}

TEST(ColumnText, LeavesOffDecimalsBeforeItUsesAnExponent) {
    EXPECT_EQ(column(12345678.125), "12,345,678.13");
    EXPECT_EQ(column(-123456789), "-123,456,789");
    EXPECT_EQ(column(12345678901), "12,345,678,901");
    EXPECT_EQ(column(1234567890123), "1234567890123");
    EXPECT_EQ(column(123456789012345678.), "1.23456789E+17");
    EXPECT_EQ(column(-1.23456789E+200), "-1.234568E+200");
}

TEST(ColumnText, ShowsTinyNumbersWithAnExponent) {
    EXPECT_EQ(column(1E-07), "1E-07");
    EXPECT_EQ(column(-1.23456789E-09), "-1.235E-09");
    EXPECT_EQ(column(1.23456789E-300), "1.235E-300");
}

TEST(ColumnText, NeverIsWiderThanItsColumn) {
    for (const double mantissa : {1.0, -1.0, 9.99999999999, -9.99999999999, 1.2345678901234567, -5.5})
        for (double power = 1E-300; power < 1E+300; power *= 10)
            ASSERT_LE(column(mantissa * power).size(), 14U) << mantissa * power;
}

/// Whether the character at each of these positions (from 1) ends a word: what stands right of a column's end
/// is a blank or the end of the line.
bool endsAt(const std::string& line, const std::vector<std::size_t>& ends) {
    return std::all_of(ends.begin(), ends.end(), [&line](std::size_t end) {
        return line.size() >= end && line[end - 1] != ' ' && (line.size() == end || line[end] == ' ');
    });
}

Lines tableAt(const Lines& report, const std::string& title, std::size_t rows) {
    const auto heading = std::find(report.begin(), report.end(), title);
    if (report.end() - heading < static_cast<std::ptrdiff_t>(rows) + 3) return {};
    return {heading + 3, heading + 3 + static_cast<std::ptrdiff_t>(rows)};
}

/// Values from the smallest to the largest that can stand in a problem, each its variable's upper bound.
SolverInput ofAllSizes() {
    ProblemText text;
    for (const double size : {1E-12, 2.5E-05, .5, 1234.5, 98765432.25, 3E+12, 7E+19}) {
        text.objective.push_back(size == 7E+19 ? 1E-15 : 1 / size);
        text.bounds.push_back({-size, size});
        text.objective.push_back(-1 / size);
        text.bounds.push_back({-size, size});
    }
    std::vector<double> row(text.objective.size(), 0);
    for (std::size_t j = 0; j < row.size(); ++j) {
        row.assign(row.size(), 0);
        row[j] = 1;
        text.rows.push_back(row);
        text.relations += '<';
        text.rhs.push_back(9.9E+19);
    }
    return text.input();
}

TEST(Report, KeepsItsColumnsWhateverTheNumbers) {
    const SolverInput input = ofAllSizes();
    const Lines report = reportLines(input);
    ASSERT_EQ(report.front(), "STATUS: OPTIMAL");
    const Lines variables = tableAt(report, "VARIABLES", 14);
    const Lines constraints = tableAt(report, "CONSTRAINTS", 14);
    ASSERT_EQ(variables.size(), 14U);
    ASSERT_EQ(constraints.size(), 14U);
    for (const std::string& line : variables) EXPECT_TRUE(endsAt(line, {4, 46, 61, 76})) << line;
    for (const std::string& line : constraints) EXPECT_TRUE(endsAt(line, {4, 20, 40, 58, 76})) << line;
    for (const std::string& line : report) EXPECT_LE(length(line), 76U) << line;
}

TEST(Report, IsADocument) {
    auto text = ProblemText{.objective = {5, 4, 0},
                            .rows = {{3, 2, 0}, {1, 4, 0}, {0, 1, 1}},
                            .relations = "<<>",
                            .rhs = {12, 16, 3},
                            .integers = {1, 3}};
    text.bounds = {Bounds{}, Bounds{}, Bounds{0, 1}};
    text.maximize = true;
    const Lines report = reportLines(text.input());
    const Lines wanted = {
        "STATUS: OPTIMAL",
        "The solution below is proved to be the best that there is.",
        "",
        "Objective                                     Maximize",
        "Objective value                                22.0000",
        "Best possible objective value                  22.0000",
        "Gap between the two                             0.0000",
        "Gap in per cent of the objective value          0.00 %",
        "",
        "VARIABLES",
        "                                                    Objective        Reduced",
        " No. Name             Type               Value    coefficient           cost",
        "   1 v1               integer           2.0000         5.0000         0.0000",
        "   2 v2               continuous        3.0000         4.0000         0.0000",
    };
    ASSERT_GE(report.size(), wanted.size());
    for (std::size_t i = 0; i < wanted.size(); ++i) EXPECT_EQ(report[i], wanted[i]);
    EXPECT_EQ(tableAt(report, "VARIABLES", 3).at(2).substr(22, 3), "0-1");
    const Lines constraints = tableAt(report, "CONSTRAINTS", 3);
    EXPECT_EQ(constraints.at(0),
              "   1         12.0000  <=         12.0000            0.0000            1.6000");
    EXPECT_EQ(constraints.at(1).substr(0, 58), "   2         14.0000  <=         16.0000            2.0000");
    EXPECT_EQ(constraints.at(2).substr(20, 4), "  >=");
    EXPECT_EQ(figure(report, "Objective value of the relaxation"), 22.4);
}

TEST(Report, PutsALongNameOnALineOfItsOwn) {
    SolverInput input = ProblemText{.objective = {1}, .bounds = {Bounds{0, 2}}}.input();
    input.names = {};
    input.names.add("a warehouse in the far north");
    const Lines report = reportLines(input);
    const Lines table = tableAt(report, "VARIABLES", 2);
    EXPECT_EQ(table.at(0), "   1 a warehouse in the far north");
    EXPECT_TRUE(endsAt(table.at(1), {46, 61, 76})) << table.at(1);
}

TEST(Report, ShowsNoTablesWithoutASolution) {
    const auto text = ProblemText{.objective = {1}, .rows = {{1}, {1}}, .relations = "<>", .rhs = {1, 2}};
    const Lines report = reportLines(text.input());
    EXPECT_EQ(report.at(0), "STATUS: INFEASIBLE");
    EXPECT_EQ(report.at(1), "No solution satisfies all constraints and bounds.");
    EXPECT_EQ(report.at(2), "Together with the bounds of the variables these constraints contradict each");
    EXPECT_EQ(report.at(3), "other: 1, 2.");
    EXPECT_EQ(std::count(report.begin(), report.end(), "VARIABLES"), 0);
}

TEST(Report, TellsWhatStoppedTheSearch) {
    const SolverInput input = ProblemText{.objective = {1}}.input();
    Outcome outcome;
    const auto second = [&] { return report(input, outcome, {}).lines().at(1); };
    outcome.status = Status::TimeLimit;
    EXPECT_EQ(second(), "The search was stopped by its time limit of 60 seconds. No solution had been");
    outcome.status = Status::NodeLimit;
    EXPECT_EQ(second(), "The search was stopped by its limit of 1,000,000 nodes. No solution had been");
    outcome.status = Status::Interrupted;
    EXPECT_EQ(second(), "The search was stopped by the user. No solution had been found until then;");
    outcome.solution = Solution{12, {12}, {}};
    EXPECT_EQ(second(), "The search was stopped by the user. The best solution found until then is");
}

TEST(Report, GivesTheGapOfAStoppedSearch) {
    const SolverInput input = ProblemText{.objective = {1}}.input();
    Outcome outcome;
    outcome.status = Status::TimeLimit;
    outcome.solution = Solution{80, {80}, {}};
    outcome.bound = 90;
    const Lines lines = report(input, outcome, {}).lines();
    EXPECT_EQ(figure(lines, "Best possible objective value"), 90);
    EXPECT_EQ(figure(lines, "Gap between the two"), 10);
    EXPECT_EQ(figure(lines, "Gap in per cent of the objective value"), 12.5);
}

} // namespace
} // namespace vantore::mip::tests
