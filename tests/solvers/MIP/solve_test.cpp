#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <csignal>
#include <optional>
#include <random>
#include <thread>
#include <unistd.h>

#include "solvers/MIP/check.h"
#include "solvers/MIP/solve.h"
#include "solvers/MIP/supervision.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;
using miprog::SolverInput;
using Values = std::vector<double>;

constexpr double nearly = 1E-06;

Outcome solved(const SolverInput& input, const Limits& limits = {}) {
    Progress progress;
    solve(input, limits, progress);
    return progress.outcome();
}

/// 3 v1 + 2 v2 <= 12, v1 + 4 v2 <= 16; the relaxation's optimum is v1 = 1.6, v2 = 3.6 by hand.
ProblemText crates() {
    return {.objective = {5, 4}, .rows = {{3, 2}, {1, 4}}, .relations = "<<", .rhs = {12, 16}};
}

TEST(Solve, GivesTheRelaxationWhereAllIsContinuous) {
    const Outcome outcome = solved(crates().input());
    EXPECT_EQ(outcome.status, Status::Optimal);
    EXPECT_NEAR(outcome.solution->objective, 22.4, nearly);
    EXPECT_NEAR(outcome.solution->values[0], 1.6, nearly);
    EXPECT_NEAR(outcome.solution->values[1], 3.6, nearly);
    EXPECT_NEAR(outcome.relaxation->objective, 22.4, nearly);
    // The dual: 3 y1 + y2 = 5 and 2 y1 + 4 y2 = 4.
    EXPECT_NEAR(outcome.relaxation->dualValues[0], 1.6, nearly);
    EXPECT_NEAR(outcome.relaxation->dualValues[1], .2, nearly);
    EXPECT_NEAR(outcome.relaxation->reducedCosts[0], 0, nearly);
}

TEST(Solve, FindsTheBestWholeNumbers) {
    auto text = crates();
    text.integers = {1, 2};
    // Candidates next to the relaxation: (2, 3) gives 22, (1, 3) 17, (3, 1) 19, (4, 0) 20, (0, 4) 16.
    const Outcome outcome = solved(text.input());
    EXPECT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->values, (Values{2, 3}));
    EXPECT_EQ(outcome.solution->objective, 22);
    EXPECT_EQ(outcome.bound, 22);
    EXPECT_NEAR(outcome.relaxation->objective, 22.4, nearly);
}

TEST(Solve, GivesDualValuesInTheSenseOfTheObjective) {
    // minimise 3 v1 + 2 v2 with v1 + v2 >= 4, v1 - v2 = 1: v1 = 2.5, v2 = 1.5, value 10.5. One more of the
    // first right side costs 2.5, of the second .5.
    const Outcome outcome = solved(ProblemText{
        .maximize = false, .objective = {3, 2}, .rows = {{1, 1}, {1, -1}}, .relations = ">=", .rhs = {4, 1}}
                                       .input());
    EXPECT_NEAR(outcome.solution->objective, 10.5, nearly);
    EXPECT_NEAR(outcome.relaxation->dualValues[0], 2.5, nearly);
    EXPECT_NEAR(outcome.relaxation->dualValues[1], .5, nearly);
}

TEST(Solve, GivesReducedCostsInTheSenseOfTheObjective) {
    // maximise 5 v1 + 4 v2 with v1 + v2 <= 10: v2 stays out, and one of it would cost 1
    const Outcome outcome =
        solved(ProblemText{.objective = {5, 4}, .rows = {{1, 1}}, .relations = "<", .rhs = {10}}.input());
    EXPECT_NEAR(outcome.relaxation->reducedCosts[1], -1, nearly);
    EXPECT_NEAR(outcome.relaxation->dualValues[0], 5, nearly);
}

TEST(Solve, TellsWhatContradictsEachOther) {
    auto text = ProblemText{
        .objective = {1, 1}, .rows = {{1, 1}, {1, 0}, {1, 1}}, .relations = "<<>", .rhs = {3, 2, 5}};
    EXPECT_EQ(solved(text.input()).status, Status::Infeasible);
    EXPECT_EQ(solved(text.input()).conflict, (std::vector<int>{1, 3}));
    text.integers = {1, 2};
    EXPECT_EQ(solved(text.input()).reason, "Nor is there one when the integer variables may have fractions.");
}

TEST(Solve, TellsThatOnlyFractionsWouldDo) {
    const Outcome outcome = solved(ProblemText{
        .objective = {1, 1},
        .rows = {{2, 2}},
        .relations = "=",
        .rhs = {3},
        .integers = {1, 2},
        .bounds = {Bounds{0, 5},
                   Bounds{0, 5}}}.input());
    EXPECT_EQ(outcome.status, Status::Infeasible);
    EXPECT_EQ(outcome.reason, "There are solutions when the integer variables may have fractions.");
    EXPECT_NEAR(outcome.relaxation->objective, 1.5, nearly);
    EXPECT_FALSE(outcome.solution);
}

TEST(Solve, TellsWhatGrowsWithoutLimit) {
    auto text = ProblemText{.objective = {1, 1}, .rows = {{1, -1}}, .relations = "<", .rhs = {3.5}};
    EXPECT_EQ(solved(text.input()).status, Status::Unbounded);
    EXPECT_EQ(solved(text.input()).unlimited, std::vector<int>{2});
    text.integers = {1, 2};
    const Outcome outcome = solved(text.input());
    EXPECT_EQ(outcome.status, Status::Unbounded);
    EXPECT_FALSE(outcome.solution);
}

TEST(Solve, DoesNotCallUnboundedWhatHasNoSolution) {
    // 2 v1 = 3 has no whole solution, however far v2 may go
    const Outcome outcome = solved(
        ProblemText{.objective = {1, 1}, .rows = {{2, 0}}, .relations = "=", .rhs = {3}, .integers = {1, 2}}
            .input());
    EXPECT_EQ(outcome.status, Status::Infeasible);
}

TEST(Solve, ManagesWithoutConstraintsOrVariables) {
    EXPECT_EQ(solved(ProblemText{}.input()).status, Status::Optimal);
    EXPECT_EQ(solved(ProblemText{}.input()).solution->objective, 0);
    const Outcome bounds = solved(ProblemText{
        .objective = {3, -2}, .integers = {1}, .bounds = {Bounds{0, 7}, Bounds{1, miprog::noBound}}}
                                      .input());
    EXPECT_EQ(bounds.status, Status::Optimal);
    EXPECT_EQ(bounds.solution->values, (Values{7, 1}));
    EXPECT_EQ(solved(ProblemText{.objective = {1}}.input()).status, Status::Unbounded);
    const auto rowsOnly = ProblemText{.rows = {{}}, .relations = "<", .rhs = {3}};
    EXPECT_EQ(solved(rowsOnly.input()).status, Status::Optimal);
    const auto impossible = ProblemText{.rows = {{}}, .relations = ">", .rhs = {3}};
    EXPECT_EQ(solved(impossible.input()).status, Status::Infeasible);
}

TEST(Solve, ManagesARowWithoutCoefficients) {
    auto text = ProblemText{.objective = {1, 1}, .rows = {{0, 0}}, .relations = "<", .rhs = {3}};
    text.bounds = {Bounds{0, 2.5}, Bounds{0, 2.5}};
    text.integers = {2};
    EXPECT_EQ(solved(text.input()).solution->values, (Values{2.5, 2}));
    text.relations = "=";
    EXPECT_EQ(solved(text.input()).conflict, std::vector<int>{1});
}

TEST(Solve, KeepsBoundsOtherThanTheUsualOnes) {
    const Outcome outcome = solved(ProblemText{.maximize = false,
                                               .objective = {1, 2},
                                               .rows = {{1, 1}},
                                               .relations = ">",
                                               .rhs = {-10},
                                               .integers = {1},
                                               .bounds = {Bounds{-3.5, 8}, Bounds{-miprog::noBound, 4}}}
                                       .input());
    EXPECT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->values, (Values{8, -18}));
}

TEST(Solve, RoundsTheBoundsOfIntegerVariablesInwards) {
    auto text =
        ProblemText{.objective = {1, 1}, .rows = {{1, 1}}, .relations = "<", .rhs = {3.5}, .integers = {1}};
    text.bounds = {Bounds{.5, 1.5}, Bounds{0, 2}};
    EXPECT_EQ(solved(text.input()).solution->values, (Values{1, 2}));
    text.bounds = {Bounds{.5, .5}, Bounds{}};
    EXPECT_EQ(solved(text.input()).status, Status::Infeasible);
    EXPECT_EQ(solved(text.input()).reason, "No whole number is within the bounds of variable 1 (v1).");
}

TEST(Solve, IsNotTakenInByAHugeFixedCharge) {
    // maximise v1 - .001 v2 with v1 <= 1E+09 v2, v1 <= 100: rounding would let v1 in for nothing
    const Outcome outcome = solved(ProblemText{
        .objective = {1, -.001},
        .rows = {{1, -1E+09}, {1, 0}},
        .relations = "<<",
        .rhs = {0, 100},
        .integers = {2},
        .bounds = {Bounds{},
                   Bounds{0, 1}}}.input());
    EXPECT_EQ(outcome.status, Status::Optimal);
    EXPECT_NEAR(outcome.solution->objective, 99.999, nearly);
    EXPECT_EQ(outcome.solution->values[1], 1);
}

TEST(Solve, ClaimsNoProofThatRoundingCouldBreak) {
    // minimise v1 + 500 v2 with v1 <= 1E+09 v2, v1 >= 50: nothing limits v1, so the 1E+09 stays
    const Outcome outcome = solved(ProblemText{
        .maximize = false,
        .objective = {1, 500},
        .rows = {{1, -1E+09}, {1, 0}},
        .relations = "<>",
        .rhs = {0, 50},
        .integers = {2},
        .bounds = {Bounds{},
                   Bounds{0, 1}}}.input());
    EXPECT_EQ(outcome.status, Status::Unproved);
    EXPECT_NEAR(outcome.solution->objective, 550, nearly);
    EXPECT_FALSE(outcome.bound);
}

TEST(Solve, RefusesNumbersThatItCannotComputeWith) {
    const Outcome outcome = solved(ProblemText{.objective = {1E+25}}.input());
    EXPECT_EQ(outcome.status, Status::NotSolved);
    EXPECT_TRUE(outcome.reason.find("objective coefficient of variable 1") != std::string::npos);
}

/// The best objective by trying all values from 0 to `most`, nothing when none is feasible.
std::optional<double> bestByTrying(const SolverInput& input, int most) {
    std::optional<double> best;
    Values values(static_cast<std::size_t>(input.n), 0);
    while (true) {
        if (const Checked found = checked(input, values); found.solution)
            if (!best || better(input, found.solution->objective, *best)) best = found.solution->objective;
        std::size_t j = 0;
        while (j < values.size() && values[j] == most) values[j++] = 0;
        if (j == values.size()) return best;
        ++values[j];
    }
}

SolverInput randomProblem(std::mt19937& random, int most) {
    const auto from = [&random](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    ProblemText text{.maximize = from(0, 1) == 1};
    const int variables = from(1, 4);
    for (int j = 1; j <= variables; ++j) {
        text.objective.push_back(from(-9, 9));
        text.bounds.push_back({0, from(0, 1) == 1 ? 1.0 : most});
        text.integers.push_back(j);
    }
    for (int i = from(1, 4); i > 0; --i) {
        Values row;
        for (int j = 0; j < variables; ++j) row.push_back(from(-9, 9));
        text.rows.push_back(row);
        text.relations += "<<=>>"[from(0, 4)];
        text.rhs.push_back(from(0, 20));
    }
    return text.input();
}

TEST(Solve, AgreesWithTryingAllSolutions) {
    constexpr int problems = 300;
    constexpr int most = 4;
    std::mt19937 random(1);
    int feasible = 0;
    for (int k = 0; k < problems; ++k) {
        const SolverInput input = randomProblem(random, most);
        const std::optional<double> best = bestByTrying(input, most);
        const Outcome outcome = solved(input);
        ASSERT_EQ(outcome.status, best ? Status::Optimal : Status::Infeasible) << "problem " << k;
        if (!best) continue;
        ASSERT_NEAR(outcome.solution->objective, *best, nearly) << "problem " << k;
        ++feasible;
    }
    EXPECT_GT(feasible, problems / 4);
    EXPECT_LT(feasible, problems);
}

TEST(Solve, StopsAtItsNodeLimitWithTheBestSolution) {
    const Outcome outcome = solved(marketSplit(), {.seconds = 30, .nodes = 200});
    EXPECT_EQ(outcome.status, Status::NodeLimit);
    ASSERT_TRUE(outcome.solution);
    EXPECT_GT(outcome.solution->objective, 0);
    EXPECT_LE(*outcome.bound, outcome.solution->objective);
    EXPECT_LT(outcome.nodes, 1000);
}

TEST(Supervise, StopsAtItsTimeLimitWithTheBestSolution) {
    const auto start = std::chrono::steady_clock::now();
    const Outcome outcome = supervise(marketSplit(), {.seconds = .5, .nodes = 100000000});
    const std::chrono::duration<double> used = std::chrono::steady_clock::now() - start;
    EXPECT_EQ(outcome.status, Status::TimeLimit);
    EXPECT_TRUE(outcome.solution);
    EXPECT_GE(outcome.seconds, .4);
    EXPECT_LT(used.count(), .5 + graceSeconds + 1);
}

TEST(Supervise, LeavesASearchAloneThatDoesNotEndInTime) {
    // No time at all, the grace included: whatever the search is at, the outcome comes at once.
    const Outcome outcome = supervise(marketSplit(), {.seconds = -graceSeconds});
    EXPECT_EQ(outcome.status, Status::TimeLimit);
    EXPECT_LT(outcome.seconds, 1);
}

TEST(EndAfter, EndsAProgramThatNothingElseEnds) {
    const auto hang = [] {
        endAfter(.5);
        while (true) pause();
    };
    EXPECT_EXIT(hang(), testing::KilledBySignal(SIGALRM), "");
}

TEST(Solve, StopsWhenItIsToldTo) {
    Progress progress;
    std::thread search([&progress] { solve(marketSplit(), {}, progress); });
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    progress.stop();
    search.join();
    EXPECT_EQ(progress.outcome().status, Status::Interrupted);
}

} // namespace
} // namespace vantore::mip::tests
