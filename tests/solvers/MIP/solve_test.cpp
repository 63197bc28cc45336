#include "solvers/MIP/solve.h"

#include <gtest/gtest.h>

#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;
using Values = std::vector<Rational>;

Outcome solved(const ProblemText& text, const StageSeconds& limits = usualLimits) {
    return solve(text.input(), limits);
}

/// 3 v1 + 2 v2 <= 12, v1 + 4 v2 <= 16; the relaxation's optimum is v1 = 1.6, v2 = 3.6 by hand.
ProblemText crates() {
    return {.objective = {5, 4}, .rows = {{3, 2}, {1, 4}}, .relations = "<<", .rhs = {12, 16}};
}

TEST(Solve, GivesTheRelaxationWhereAllIsContinuous) {
    const Outcome outcome = solved(crates());
    ASSERT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->objective, exact(22.4));
    EXPECT_EQ(outcome.solution->values, (Values{exact(1.6), exact(3.6)}));
    EXPECT_EQ(outcome.relaxation->objective, exact(22.4));
    // The dual: 3 y1 + y2 = 5 and 2 y1 + 4 y2 = 4.
    EXPECT_EQ(outcome.relaxation->dualValues, (Values{exact(1.6), exact(.2)}));
    EXPECT_EQ(outcome.relaxation->reducedCosts, (Values{0, 0}));
}

TEST(Solve, FindsTheBestWholeNumbers) {
    auto text = crates();
    text.integers = {1, 2};
    // Candidates next to the relaxation: (2, 3) gives 22, (1, 3) 17, (3, 1) 19, (4, 0) 20, (0, 4) 16.
    const Outcome outcome = solved(text);
    ASSERT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->values, (Values{2, 3}));
    EXPECT_EQ(outcome.solution->objective, 22);
    EXPECT_EQ(outcome.solution->leftSides, (Values{12, 14}));
    EXPECT_EQ(outcome.relaxation->objective, exact(22.4));
    EXPECT_FALSE(outcome.halt);
}

TEST(Solve, GivesDualValuesInTheSenseAndUnitsOfTheProblem) {
    // minimise 3 v1 + 2 v2 with .1 v1 + .1 v2 >= .4, v1 - v2 = 1: v1 = 2.5, v2 = 1.5, value 10.5. One more of
    // the first right side costs 25, of the second .5.
    const Outcome outcome = solved({.maximize = false,
                                    .objective = {3, 2},
                                    .rows = {{.1, .1}, {1, -1}},
                                    .relations = ">=",
                                    .rhs = {.4, 1}});
    EXPECT_EQ(outcome.solution->objective, exact(10.5));
    EXPECT_EQ(outcome.relaxation->dualValues, (Values{25, exact(.5)}));
}

TEST(Solve, GivesReducedCostsInTheSenseAndUnitsOfTheProblem) {
    // maximise .5 v1 + .4 v2 with v1 + v2 <= 10, v2 at most 2.5: v2 stays out, and one of it would cost .1
    const Outcome outcome = solved({.objective = {.5, .4},
                                    .rows = {{1, 1}},
                                    .relations = "<",
                                    .rhs = {10},
                                    .bounds = {Bounds{}, Bounds{0, 2.5}}});
    EXPECT_EQ(outcome.relaxation->reducedCosts, (Values{0, exact(-.1)}));
    EXPECT_EQ(outcome.relaxation->dualValues, Values{exact(.5)});
}

TEST(Solve, TellsWhatContradictsEachOther) {
    ProblemText text{
        .objective = {1, 1}, .rows = {{1, 1}, {1, 0}, {1, 1}}, .relations = "<<>", .rhs = {3, 2, 5}};
    EXPECT_EQ(solved(text).status, Status::Infeasible);
    EXPECT_EQ(solved(text).relaxation->conflict, (std::vector<int>{1, 3}));
    text.integers = {1, 2};
    EXPECT_EQ(solved(text).status, Status::Infeasible);
}

TEST(Solve, TellsThatOnlyFractionsWouldDo) {
    const Outcome outcome =
        solved({.objective = {1, 1}, .rows = {{2, 2}}, .relations = "=", .rhs = {3}, .integers = {1, 2}});
    EXPECT_EQ(outcome.status, Status::Infeasible);
    EXPECT_EQ(outcome.relaxation->objective, exact(1.5));
    EXPECT_FALSE(outcome.solution);
}

TEST(Solve, TellsWhatGrowsWithoutLimit) {
    ProblemText text{.objective = {1, 1}, .rows = {{1, -1}}, .relations = "<", .rhs = {3.5}};
    EXPECT_EQ(solved(text).status, Status::Unbounded);
    EXPECT_EQ(solved(text).relaxation->unlimited, (std::vector<int>{1, 2}));
    text.integers = {1, 2};
    EXPECT_EQ(solved(text).status, Status::Unbounded);
    EXPECT_FALSE(solved(text).solution);
}

TEST(Solve, DoesNotCallUnboundedWhatHasNoSolution) {
    // 2 v1 = 3 has no whole solution, however far v2 may go
    const Outcome outcome =
        solved({.objective = {1, 1}, .rows = {{2, 0}}, .relations = "=", .rhs = {3}, .integers = {1, 2}});
    EXPECT_EQ(outcome.status, Status::Infeasible);
}

TEST(Solve, ManagesWithoutConstraintsOrVariables) {
    EXPECT_EQ(solved({}).status, Status::Optimal);
    EXPECT_EQ(solved({}).solution->objective, 0);
    const Outcome bounds =
        solved({.objective = {3, -2}, .integers = {1}, .bounds = {Bounds{0, 7}, Bounds{1, miprog::noBound}}});
    EXPECT_EQ(bounds.status, Status::Optimal);
    EXPECT_EQ(bounds.solution->values, (Values{7, 1}));
    EXPECT_EQ(solved({.objective = {1}}).status, Status::Unbounded);
    EXPECT_EQ(solved({.objective = {1}, .integers = {1}}).status, Status::Unbounded);
    EXPECT_EQ(solved({.rows = {{}}, .relations = "<", .rhs = {3}}).status, Status::Optimal);
    EXPECT_EQ(solved({.rows = {{}}, .relations = ">", .rhs = {3}}).status, Status::Infeasible);
}

TEST(Solve, ManagesARowWithoutCoefficients) {
    ProblemText text{.objective = {1, 1}, .rows = {{0, 0}}, .relations = "<", .rhs = {3}};
    text.bounds = {Bounds{0, 2.5}, Bounds{0, 2.5}};
    text.integers = {2};
    EXPECT_EQ(solved(text).solution->values, (Values{exact(2.5), 2}));
    text.relations = "=";
    EXPECT_EQ(solved(text).relaxation->conflict, std::vector<int>{1});
}

TEST(Solve, KeepsBoundsOtherThanTheUsualOnes) {
    const Outcome outcome = solved({.maximize = false,
                                    .objective = {1, 2},
                                    .rows = {{1, 1}},
                                    .relations = ">",
                                    .rhs = {-10},
                                    .integers = {1},
                                    .bounds = {Bounds{-3.5, 8}, Bounds{-miprog::noBound, 4}}});
    EXPECT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->values, (Values{8, -18}));
}

TEST(Solve, RoundsTheBoundsOfIntegerVariablesInwards) {
    ProblemText text{.objective = {1, 1}, .rows = {{1, 1}}, .relations = "<", .rhs = {3.5}, .integers = {1}};
    text.bounds = {Bounds{.5, 1.5}, Bounds{0, 2}};
    EXPECT_EQ(solved(text).solution->values, (Values{1, 2}));
    text.bounds = {Bounds{.5, .5}, Bounds{}};
    EXPECT_EQ(solved(text).status, Status::Infeasible);
    EXPECT_EQ(solved(text).withoutWholeNumber, 1);
}

// Problems that doubles get wrong

TEST(Solve, TakesDecimalsForWhatTheyAre) {
    const Outcome outcome = solved(
        {.objective = {47, 10}, .rows = {{.2, .12}}, .relations = "<", .rhs = {1.2}, .integers = {1, 2}});
    EXPECT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->values, (Values{6, 0}));
    EXPECT_EQ(
        solved({.objective = {1}, .rows = {{.2}}, .relations = "=", .rhs = {1.2}, .integers = {1}}).status,
        Status::Optimal);
}

TEST(Solve, FindsTheBestWhereObjectivesAreTiny) {
    EXPECT_EQ(solved({.maximize = false,
                      .objective = {.00012345, .0001234},
                      .rows = {{1, 1}},
                      .relations = "=",
                      .rhs = {1000000}})
                  .solution->objective,
              exact(123.4));
    EXPECT_EQ(solved({.objective = {1E-07}, .rows = {{1}}, .relations = "<", .rhs = {10000000}})
                  .solution->objective,
              1);
    EXPECT_EQ(
        solved(
            {.objective = {1E-300}, .rows = {{1E+300}}, .relations = "<", .rhs = {3E+300}, .integers = {1}})
            .solution->objective,
        exact(3E-300));
}

TEST(Solve, IsNotTakenInByAHugeFixedCharge) {
    // maximise v1 - .001 v2 with v1 <= 1E+09 v2, v1 <= 100: rounding would let v1 in for nothing
    const Outcome limited = solved({.objective = {1, -.001},
                                    .rows = {{1, -1E+09}, {1, 0}},
                                    .relations = "<<",
                                    .rhs = {0, 100},
                                    .integers = {2},
                                    .bounds = {Bounds{}, Bounds{0, 1}}});
    EXPECT_EQ(limited.status, Status::Optimal);
    EXPECT_EQ(limited.solution->objective, exact(99.999));
    // minimise v1 + 500 v2 with v1 <= 1E+09 v2, v1 >= 50
    const Outcome unlimited = solved({.maximize = false,
                                      .objective = {1, 500},
                                      .rows = {{1, -1E+09}, {1, 0}},
                                      .relations = "<>",
                                      .rhs = {0, 50},
                                      .integers = {2},
                                      .bounds = {Bounds{}, Bounds{0, 1}}});
    EXPECT_EQ(unlimited.status, Status::Optimal);
    EXPECT_EQ(unlimited.solution->objective, 550);
}

TEST(Solve, LooksBeyondWhatTheLibraryIsToldToSearch) {
    // v1 = 1E+12 is the only solution of 3 v1 - v2 = 2E+12 with v2 = v1 + 0
    const Outcome outcome = solved({.objective = {1, 0},
                                    .rows = {{3, -1}, {1, -1}},
                                    .relations = "==",
                                    .rhs = {2E+12, 0},
                                    .integers = {1, 2}});
    ASSERT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->objective, exact(1E+12));
}

TEST(Solve, ImprovesWhatTheLibraryFoundInItsPart) {
    // v1 may go up to 1E+12, which the two rows tell only together
    const Outcome outcome = solved({.objective = {2E+06, 0},
                                    .rows = {{3, -1}, {-1, 1}},
                                    .relations = "<<",
                                    .rhs = {2E+12, 0},
                                    .integers = {1, 2}});
    ASSERT_EQ(outcome.status, Status::Optimal);
    EXPECT_EQ(outcome.solution->objective, exact(2E+18));
}

// Stages that don't come to their end

TEST(Solve, GivesTheBestSolutionOfASearchThatHadNoTime) {
    const Outcome outcome = solve(marketSplit(), {.relaxation = 20, .search = .7, .proof = 60});
    EXPECT_EQ(outcome.status, Status::Stopped);
    ASSERT_TRUE(outcome.halt);
    EXPECT_EQ(outcome.halt->stage, Stage::Search);
    EXPECT_EQ(outcome.halt->cause, watch::End::TimeLimit);
    ASSERT_TRUE(outcome.solution);
    EXPECT_GT(outcome.solution->objective, 0);
    EXPECT_GE(outcome.used.search, .7);
    EXPECT_LT(outcome.used.search, 2);
    EXPECT_EQ(outcome.used.proof, 0);
}

TEST(Solve, ClaimsNoMoreThanTheLibraryWhereTheProofHadNoTime) {
    auto text = crates();
    text.integers = {1, 2};
    const Outcome outcome = solved(text, {.relaxation = 20, .search = 20, .proof = 0});
    EXPECT_EQ(outcome.status, Status::OptimalWithinTolerances);
    EXPECT_EQ(outcome.halt->stage, Stage::Proof);
    EXPECT_EQ(outcome.solution->objective, 22);
    text = {.objective = {1, 1}, .rows = {{2, 2}}, .relations = "=", .rhs = {3}, .integers = {1, 2}};
    EXPECT_EQ(solved(text, {.relaxation = 20, .search = 20, .proof = 0}).status,
              Status::NoneWithinTolerances);
}

TEST(Solve, ProvesNothingWithoutTheRelaxation) {
    auto text = crates();
    text.integers = {1, 2};
    const Outcome outcome = solved(text, {.relaxation = 0, .search = 20, .proof = 20});
    EXPECT_EQ(outcome.status, Status::OptimalWithinTolerances);
    EXPECT_EQ(outcome.halt->stage, Stage::Relaxation);
    EXPECT_EQ(outcome.solution->objective, 22);
    EXPECT_FALSE(outcome.relaxation);
}

TEST(Solve, DoesNotCallUnboundedWhereNoSolutionIsKnown) {
    // as many integers as make the search take its time: a market split without a limit to one more variable
    miprog::SolverInput input =
        ProblemText{.objective = {0, 1}, .rows = {{2, 0}}, .relations = "=", .rhs = {4}, .integers = {1, 2}}
            .input();
    const Outcome outcome = solve(input, {.relaxation = 20, .search = 0, .proof = 0});
    EXPECT_EQ(outcome.status, Status::Stopped);
    EXPECT_FALSE(outcome.solution);
    EXPECT_EQ(solve(input, usualLimits).status, Status::Unbounded);
}

} // namespace
} // namespace vantore::mip::tests
