#include "solvers/MIP/report.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "shell/base/text.h"
#include "solvers/MIP/solve.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;
using miprog::SolverInput;
using Lines = std::vector<std::string>;

/// The lines of a report up to the first empty one, as one text.
std::string head(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        if (line.empty()) break;
        text += (text.empty() ? "" : " ") + line;
    }
    return text;
}

std::string whole(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) text += (text.empty() ? "" : " ") + line;
    return text;
}

bool says(const Lines& lines, const std::string& sentence) {
    return whole(lines).find(sentence) != std::string::npos;
}

/// 3 v1 + 2 v2 <= 12, v1 + 4 v2 <= 16, and v3 of 0 or 1 with v2 + v3 >= 3.
ProblemText crates() {
    return {.objective = {5, 4, -1},
            .rows = {{3, 2, 0}, {1, 4, 0}, {0, 1, 1}},
            .relations = "<<>",
            .rhs = {12, 16, 3},
            .integers = {1, 3},
            .bounds = {Bounds{}, Bounds{}, Bounds{0, 1}}};
}

TEST(Report, IsADocument) {
    Lines report = reportLines(crates().input());
    const Lines wanted = {"STATUS: OPTIMAL",
                          "The solution below is the best that there is: this is proved in exact",
                          "arithmetic.",
                          "",
                          "Objective                                          Maximize",
                          "Objective value                                          22",
                          "Best possible objective value                            22",
                          "Gap between the two                                       0",
                          "Gap in per cent of the objective value                  0 %",
                          "",
                          "VARIABLES",
                          "                              Relaxed    Objective  Reduced",
                          "No.  Name  Type        Value    value  coefficient     cost",
                          "  1  v1    integer         2      1.6            5        0",
                          "  2  v2    continuous      3      3.6            4        0",
                          "  3  v3    0-1             0        0           -1       -1",
                          "",
                          "CONSTRAINTS",
                          "                                        Dual",
                          "No.  Left side      Right side  Slack  value",
                          "  1         12  <=          12      0    1.6",
                          "  2         14  <=          16      2     .2",
                          "  3          3  >=           3      0      0",
                          "",
                          "CONTINUOUS RELAXATION",
                          "Objective value of the relaxation                      22.4",
                          "This is the optimum when the integer variables may have fractions, proved in",
                          "exact arithmetic.",
                          "Reduced costs and dual values belong to it: the change of its objective",
                          "value for one unit more of the variable or of the right side, so long as the",
                          "same bounds and constraints bind.",
                          "",
                          "SEARCH AND PROOF"};
    ASSERT_GE(report.size(), wanted.size());
    report.resize(wanted.size());
    EXPECT_EQ(report, wanted);
}

TEST(Report, TellsOfSearchAndProof) {
    Outcome outcome = solve(crates().input(), usualLimits);
    outcome.search.nodes = 12;
    outcome.search.iterations = 345;
    outcome.proofNodes = 67;
    outcome.used = {.25, 1.26, 1234.5};
    Lines report = mip::report(crates().input(), outcome, {20, 60, 90}).lines();
    report.erase(report.begin(), std::find(report.begin(), report.end(), "SEARCH AND PROOF"));
    EXPECT_EQ(report,
              (Lines{"SEARCH AND PROOF", "Nodes of the search                                      12",
                     "Simplex iterations of the search                        345",
                     "Nodes of the proof                                       67",
                     "Seconds without integer requirements                   0.25",
                     "Seconds of the search                                  1.26",
                     "Seconds of the proof                               1,234.50",
                     "Limits of the three in seconds                   20, 60, 90",
                     "The solution was held against the problem in exact arithmetic, all numbers",
                     "taken as the decimals that they are: it keeps every bound, constraint and",
                     "integer requirement."}));
}

// Each sentence, as true as the outcome that it is printed for

TEST(Report, SaysProvedOfAProof) {
    const SolverInput input = crates().input();
    EXPECT_EQ(
        head(reportLines(input)),
        "STATUS: OPTIMAL The solution below is the best that there is: this is proved in exact arithmetic.");
}

TEST(Report, SaysWhatContradictsEachOther) {
    ProblemText text{.objective = {1}, .rows = {{1}, {1}}, .relations = "<>", .rhs = {1, 2}};
    const std::string none = "STATUS: INFEASIBLE No solution satisfies all constraints, bounds and integer "
                             "requirements: this is proved in exact arithmetic. ";
    const std::string conflict =
        "Together with the bounds of the variables these constraints contradict each other: 1, 2.";
    EXPECT_EQ(head(reportLines(text.input())), none + conflict);
    text.integers = {1};
    EXPECT_EQ(head(reportLines(text.input())),
              none + "Nor is there one when the integer variables may have fractions. " + conflict);
    text.bounds = {Bounds{.5, 7}};
    EXPECT_EQ(head(reportLines(text.input())), none +
                                                   "Nor is there one when the integer variables may have "
                                                   "fractions, their bounds taken to whole numbers. " +
                                                   conflict);
    text = {.objective = {1}, .rows = {{2}}, .relations = "=", .rhs = {3}, .integers = {1}};
    EXPECT_EQ(head(reportLines(text.input())),
              none + "There are solutions when the integer variables may have fractions.");
    EXPECT_TRUE(says(reportLines(text.input()), "Relaxed"));
    text = {.objective = {1}, .integers = {1}, .bounds = {Bounds{.25, .75}}};
    EXPECT_EQ(head(reportLines(text.input())),
              none + "No whole number is within the bounds of variable 1 (v1).");
}

TEST(Report, SaysWhatChangesWithoutLimit) {
    ProblemText text{
        .objective = {1, 1}, .rows = {{1, -1}}, .relations = "<", .rhs = {3.5}, .integers = {1, 2}};
    EXPECT_EQ(head(reportLines(text.input())),
              "STATUS: UNBOUNDED The objective value can be improved without limit, a constraint is missing: "
              "this is "
              "proved in exact arithmetic. Variables that change without limit on the way: 1, 2.");
    text.rows = {{2, -2}};
    text.relations = "=";
    text.rhs = {1};
    EXPECT_EQ(
        head(reportLines(text.input())),
        "STATUS: INFEASIBLE No solution satisfies all constraints, bounds and integer requirements: this is "
        "proved in exact arithmetic. There are solutions when the integer variables may have fractions. The "
        "objective value can be improved without limit when the integer variables may have fractions. "
        "Variables that change without limit on the way: 1, 2.");
}

TEST(Report, SaysThatAClaimIsTheLibrarysAlone) {
    const StageSeconds limits{.relaxation = 20, .search = 20, .proof = 0};
    const SolverInput input = crates().input();
    EXPECT_EQ(
        head(report(input, solve(input, limits), limits).lines()),
        "STATUS: OPTIMAL WITHIN TOLERANCES The search found no better solution than the one below within the "
        "tolerances of its library. That there is none is not proved. The proof ran into its time limit of 0 "
        "seconds.");
    const SolverInput none =
        ProblemText{.objective = {1}, .rows = {{2}}, .relations = "=", .rhs = {3}, .integers = {1}}.input();
    EXPECT_EQ(
        head(report(none, solve(none, limits), limits).lines()),
        "STATUS: NO SOLUTION FOUND The search found no solution within the tolerances of its library. That "
        "there is none is not proved. The proof ran into its time limit of 0 seconds.");
}

TEST(Report, SaysWhichStageWasHaltedAndWhy) {
    const SolverInput input = ProblemText{.objective = {1}}.input();
    Outcome outcome;
    const auto saidOf = [&](Stage stage, watch::End cause) {
        outcome.halt = Halt{stage, cause};
        return head(report(input, outcome, {11, 22, 33}).lines());
    };
    const std::string none = " No solution had been found until then; there may be one.";
    EXPECT_EQ(
        saidOf(Stage::Relaxation, watch::End::TimeLimit),
        "STATUS: STOPPED The solution without integer requirements ran into its time limit of 11 seconds." +
            none);
    EXPECT_EQ(saidOf(Stage::Search, watch::End::TimeLimit),
              "STATUS: STOPPED The search ran into its time limit of 22 seconds." + none);
    EXPECT_EQ(saidOf(Stage::Proof, watch::End::TimeLimit),
              "STATUS: STOPPED The proof ran into its time limit of 33 seconds." + none);
    EXPECT_EQ(saidOf(Stage::Search, watch::End::Interrupted),
              "STATUS: STOPPED The search was stopped by the user." + none);
    EXPECT_EQ(saidOf(Stage::Proof, watch::End::Failed), "STATUS: STOPPED The proof broke down." + none);
    outcome.solution = Solution{{12}, 12, {}};
    EXPECT_EQ(saidOf(Stage::Search, watch::End::Interrupted),
              "STATUS: STOPPED The search was stopped by the user. The best solution found until then is "
              "given below; "
              "there may be a better one.");
}

TEST(Report, SaysWhyThereIsNoProblem) {
    EXPECT_EQ(whole(reportWithoutProblem("Line 3: no name.").lines()),
              "STATUS: NOT SOLVED TEMP.DAT can't be read as a problem. Line 3: no name.");
    EXPECT_EQ(whole(reportBeforehand().lines()),
              "STATUS: NOT SOLVED The solver was ended before it could report.");
}

TEST(Report, SaysThatTheRelaxationIsTheProblemWhereAllIsContinuous) {
    ProblemText text = crates();
    text.integers = {};
    const Lines report = reportLines(text.input());
    EXPECT_TRUE(says(report, "There are no integer variables: the relaxation is the problem itself."));
    EXPECT_FALSE(says(report, "This is the optimum when"));
}

TEST(Report, GivesTheGapOfAStoppedSearch) {
    const SolverInput input =
        ProblemText{.objective = {1}, .rows = {{1}}, .relations = "<", .rhs = {90}, .integers = {1}}.input();
    Outcome outcome = solve(input, usualLimits);
    outcome.status = Status::Stopped;
    outcome.halt = Halt{};
    outcome.search.bound = 88;
    outcome.solution = Solution{{80}, 80, {80}};
    const auto linesOf = [&] { return report(input, outcome, usualLimits).lines(); };
    EXPECT_EQ(figureOf(linesOf(), "Best possible objective value"), 90); // what is proved: the relaxation's
    EXPECT_EQ(figureOf(linesOf(), "Gap between the two"), 10);
    EXPECT_EQ(figureOf(linesOf(), "Gap in per cent of the objective value"), 12.5);
    EXPECT_EQ(figureOf(linesOf(), "Best objective value that the search holds possible"), 88);
    outcome.solution = Solution{{0}, 0, {0}};
    EXPECT_TRUE(says(linesOf(), "Gap in per cent of the objective value                    -"));
    outcome.relaxation.reset();
    EXPECT_FALSE(says(linesOf(), "Best possible"));
    EXPECT_FALSE(says(linesOf(), "Relaxed"));
}

TEST(Report, ShowsTypedNumbersAsTyped) {
    ProblemText text{.objective = {1.00000000000001, -.00000123456789},
                     .rows = {{123456.789012, 1}},
                     .relations = "<",
                     .rhs = {1.5E+20}};
    text.bounds = {Bounds{0, 7}, Bounds{0, 7}};
    const Lines report = reportLines(text.input());
    EXPECT_TRUE(says(report, " 1.00000000000001 "));
    EXPECT_TRUE(says(report, " -1.23456789E-06 "));
    EXPECT_TRUE(says(report, " 1.5E+20 "));
    EXPECT_TRUE(says(report, " 864197.523084 ")); // 7 x 123456.789012
}

/// The positions where words end in every line: what stands right of a column.
bool linesUp(const Lines& table, std::size_t columns) {
    for (std::size_t i = 1; i < table.size(); ++i)
        if (std::count(table[i].begin(), table[i].end(), '\n') != 0) return false;
    std::size_t found = 0;
    for (std::size_t at = 1; at <= table.front().size(); ++at) {
        const bool end = std::all_of(table.begin(), table.end(), [at](const std::string& line) {
            return at <= line.size() && line[at - 1] != ' ' && (at == line.size() || line[at] == ' ');
        });
        found += end ? 1 : 0;
    }
    return found >= columns;
}

TEST(Report, LinesItsColumnsUpWhateverTheNumbersAndNames) {
    ProblemText text;
    for (const double size : {1E-12, 2.5E-05, .5, 1234.5, 98765432.25, 3E+12, 7E+19}) {
        text.objective.push_back(1 / size);
        text.bounds.push_back({-size, size});
        text.objective.push_back(-1 / size);
        text.bounds.push_back({-size, size});
    }
    for (std::size_t j = 0; j < text.objective.size(); ++j) {
        std::vector<double> row(text.objective.size(), 0);
        row[j] = 1;
        text.rows.push_back(row);
        text.relations += '<';
        text.rhs.push_back(9.9E+19);
    }
    SolverInput input = text.input();
    input.names = {};
    for (int j = 1; j <= input.n; ++j) input.names.add(std::string(static_cast<std::size_t>(j), 'x'));
    const Lines report = reportLines(input);
    ASSERT_EQ(report.front(), "STATUS: OPTIMAL");
    for (const char* title : {"VARIABLES", "CONSTRAINTS"}) {
        const auto heading = std::find(report.begin(), report.end(), title);
        ASSERT_GT(report.end() - heading, 16);
        EXPECT_TRUE(linesUp({heading + 3, heading + 3 + 14}, title[0] == 'V' ? 5U : 5U)) << title;
    }
}

} // namespace
} // namespace vantore::mip::tests
