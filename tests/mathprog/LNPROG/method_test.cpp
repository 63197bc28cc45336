#include <gtest/gtest.h>

#include <variant>

#include "mathprog/LNPROG/method.h"
#include "shell/base/runtime_error.h"
#include "tests/mathprog/LNPROG/problems.h"

namespace vantore::lnprog {
namespace {

using tests::minimise;

double objectiveValue(const Simplex& simplex) {
    return -simplex.tableau(simplex.objectiveRow(), 1);
}

/// A variable's level, 0 when it is nonbasic.
double level(const Simplex& simplex, int variable) {
    const auto row = basicRow(simplex, variable);
    return row ? simplex.tableau(*row, 1) : 0;
}

double opportunityCost(const Simplex& simplex, int variable) {
    return simplex.tableau(simplex.objectiveRow(), variable + 1);
}

bool isOptimal(const Outcome& outcome) {
    return std::holds_alternative<Optimal>(outcome);
}

ErrorNumber errorOf(const Problem& problem) {
    Simplex simplex;
    try {
        solve(simplex, problem);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return ErrorNumber::CancelSelected;
}

TEST(Solve, FindsAProductMix) {
    // Hillier and Lieberman, "Introduction to Operations Research", the Wyndor Glass Co. example: 2 batches
    // of doors, 6 of windows, a profit of 36 thousand; shadow prices 0, 1.5 and 1.
    Simplex simplex;
    const Problem problem = minimise({-3, -5}, {{{1, 0}, "<", 4}, {{0, 2}, "<", 12}, {{3, 2}, "<", 18}});
    ASSERT_TRUE(isOptimal(solve(simplex, problem)));
    EXPECT_DOUBLE_EQ(level(simplex, 1), 2);
    EXPECT_DOUBLE_EQ(level(simplex, 2), 6);
    EXPECT_DOUBLE_EQ(level(simplex, 3), 2);
    EXPECT_DOUBLE_EQ(objectiveValue(simplex), -36);
    EXPECT_DOUBLE_EQ(opportunityCost(simplex, 4), 1.5);
    EXPECT_DOUBLE_EQ(opportunityCost(simplex, 5), 1);
}

TEST(Solve, RunsBothPhases) {
    // Hillier and Lieberman's radiation therapy example: 7.5 and 4.5 kilorads, an objective of 5.25.
    Simplex simplex;
    const Problem problem =
        minimise({.4, .5}, {{{.3, .1}, "<", 2.7}, {{.5, .5}, "=", 6}, {{.6, .4}, ">", 6}});
    ASSERT_TRUE(isOptimal(solve(simplex, problem)));
    EXPECT_NEAR(level(simplex, 1), 7.5, 1E-12);
    EXPECT_NEAR(level(simplex, 2), 4.5, 1E-12);
    EXPECT_NEAR(objectiveValue(simplex), 5.25, 1E-12);
}

TEST(BuildTableau, NumbersAddedVariablesInTheOrderOfTheRows) {
    Simplex simplex;
    buildTableau(simplex, minimise({1, 2}, {{{3, 4}, ">", 5}, {{6, 7}, "=", 8}, {{9, 1}, "<", 2}}));
    EXPECT_EQ(simplex.lastColumn, 7);
    EXPECT_EQ(simplex.tableau(1, 4), -1);
    EXPECT_EQ(simplex.tableau(1, 5), 1);
    EXPECT_EQ(simplex.artificialMark(1, 4), 0);
    EXPECT_EQ(simplex.artificialMark(1, 5), 1);
    EXPECT_EQ(simplex.artificialMark(2, 6), 1);
    EXPECT_EQ(simplex.artificialMark(3, 7), 0);
    EXPECT_EQ(simplex.basis(1), 4);
    EXPECT_EQ(simplex.basis(2), 5);
    EXPECT_EQ(simplex.basis(3), 6);
    EXPECT_EQ(simplex.tableau(2, 1), 8);
    EXPECT_EQ(simplex.tableau(4, 3), 2);
}

TEST(BuildTableau, HoldsTheLargestProblem) {
    Problem problem;
    problem.constraints = mostConstraints;
    problem.variables = mostVariables;
    for (int i = 1; i <= mostConstraints; ++i) {
        problem.rows(i) = {">", 1};
        problem.coefficients(i, i) = 1;
    }
    for (int j = 1; j <= mostVariables; ++j) problem.coefficients(problem.objectiveRow(), j) = 1;
    Simplex simplex;
    ASSERT_TRUE(isOptimal(solve(simplex, problem)));
    EXPECT_EQ(simplex.lastColumn, 201);
    EXPECT_DOUBLE_EQ(objectiveValue(simplex), 50);
}

TEST(Solve, LetsTheLowerOfTwoEqualCostsEnter) {
    Simplex simplex;
    solve(simplex, minimise({-5, -5}, {{{1, 1}, "<", 40}}));
    EXPECT_DOUBLE_EQ(level(simplex, 1), 40);
    EXPECT_DOUBLE_EQ(opportunityCost(simplex, 2), 0);
}

TEST(Solve, LetsTheUpperOfTwoEqualRatiosLeave) {
    Simplex simplex;
    solve(simplex, minimise({-1}, {{{1}, "<", 6}, {{2}, "<", 12}}));
    EXPECT_EQ(simplex.basis(1), 1);
    EXPECT_EQ(simplex.basis(2), 3);
}

TEST(Solve, TellsWhereAProblemIsUnbounded) {
    Simplex simplex;
    const Outcome outcome = solve(simplex, minimise({-2, -1}, {{{1, -1}, "<", 10}}));
    ASSERT_TRUE(std::holds_alternative<Unbounded>(outcome));
    EXPECT_EQ(std::get<Unbounded>(outcome).column, 3);
    EXPECT_EQ(std::get<Unbounded>(outcome).iteration, 2);
}

TEST(Solve, TakesRatiosFromTheLimitOnAsUnbounded) {
    Simplex simplex;
    const auto with = [&](double rightSide) {
        return solve(simplex, minimise({-1}, {{{1}, "<", rightSide}}));
    };
    EXPECT_TRUE(isOptimal(with(999999998)));
    EXPECT_TRUE(std::holds_alternative<Unbounded>(with(999999999)));
    EXPECT_TRUE(std::holds_alternative<Unbounded>(with(1E+12)));
}

TEST(Solve, CanBeUnboundedInPhaseOne) {
    // The only row that could leave has its right-hand side beyond the ratio limit.
    Simplex simplex;
    const Outcome outcome = solve(simplex, minimise({1}, {{{1}, ">", 2E+9}}));
    ASSERT_TRUE(std::holds_alternative<Unbounded>(outcome));
    EXPECT_EQ(std::get<Unbounded>(outcome).iteration, 1);
}

TEST(Solve, FindsConstraintsThatContradictEachOther) {
    Simplex simplex;
    const Problem problem = minimise({1}, {{{1}, "<", 4}, {{1}, ">", 5}});
    EXPECT_TRUE(std::holds_alternative<Infeasible>(solve(simplex, problem)));
    EXPECT_DOUBLE_EQ(level(simplex, 1), 4);
    EXPECT_DOUBLE_EQ(level(simplex, 4), 1);
}

TEST(Solve, TakesAnInfeasibilityWithinTheToleranceAsNone) {
    Simplex simplex;
    const auto with = [&](double excess) {
        return solve(simplex, minimise({1}, {{{1}, "<", 4}, {{1}, "=", 4 + excess}}));
    };
    EXPECT_TRUE(isOptimal(with(.0000009)));
    EXPECT_TRUE(std::holds_alternative<Infeasible>(with(.0000011)));
}

TEST(Solve, KeepsAnArtificialVariableAtLevelZeroInTheBasis) {
    // The second row repeats the first, so that its artificial variable 4 can't leave.
    Simplex simplex;
    const Problem problem = minimise({1, 2}, {{{1, 1}, "=", 5}, {{1, 1}, "=", 5}});
    ASSERT_TRUE(isOptimal(solve(simplex, problem)));
    EXPECT_EQ(basicRow(simplex, 4), 2);
    EXPECT_EQ(level(simplex, 4), 0);
    EXPECT_DOUBLE_EQ(objectiveValue(simplex), 5);
}

TEST(Solve, LeavesTheSignOfANegativeRightSide) {
    // The slack starts at -2; x enters by the negative ratio of its row and goes to -2.
    Simplex simplex;
    ASSERT_TRUE(isOptimal(solve(simplex, minimise({-1}, {{{1}, "<", -2}, {{1}, "<", 8}}))));
    EXPECT_DOUBLE_EQ(level(simplex, 1), -2);
    EXPECT_DOUBLE_EQ(level(simplex, 3), 10);
    EXPECT_DOUBLE_EQ(objectiveValue(simplex), 2);
}

TEST(Solve, KeepsTheBasisOfARowWithoutRelation) {
    Simplex simplex;
    const auto with = [&](const char* relation, double cost) {
        return solve(simplex, minimise({cost, cost}, {{{1, 0}, "<", 3}, {{0, 1}, relation, 4}}));
    };
    EXPECT_TRUE(isOptimal(with("", 1)));
    EXPECT_EQ(simplex.basis(2), 0);
    EXPECT_TRUE(isOptimal(with("<", -1)));
    EXPECT_EQ(simplex.basis(2), 2);
    EXPECT_TRUE(isOptimal(with("", 1)));
    EXPECT_EQ(simplex.basis(1), 3);
    EXPECT_EQ(simplex.basis(2), 2);
    EXPECT_EQ(simplex.lastColumn, 4);
}

TEST(BuildTableau, GivesARowWithoutRelationNoVariable) {
    Simplex simplex;
    for (const char* relation : {"", "<=", " <", "x"}) {
        buildTableau(simplex, minimise({1}, {{{1}, relation, 3}}));
        EXPECT_EQ(simplex.lastColumn, 2) << relation;
        EXPECT_EQ(simplex.basis(1), 0) << relation;
    }
}

TEST(Solve, NeverDependsOnTheTablesOfTheSolveBefore) {
    const Problem small = minimise({-3, -4}, {{{2, 1}, "<", 30}, {{1, 3}, "<", 45}});
    const Problem large =
        minimise({-3, -4, 9}, {{{2, 1, 4}, ">", 3}, {{1, 3, 7}, "=", 9}, {{1, 1, 1}, "<", 5}});
    Simplex used;
    solve(used, large);
    solve(used, small);
    Simplex fresh;
    solve(fresh, small);
    for (int i = 0; i <= lastTableauRow; ++i)
        for (int j = 0; j <= lastTableauColumn; ++j) {
            ASSERT_EQ(used.tableau(i, j), fresh.tableau(i, j)) << i << ", " << j;
            ASSERT_EQ(used.artificialMark(i, j), fresh.artificialMark(i, j)) << i << ", " << j;
        }
}

TEST(Solve, StopsACyclingProblemWhenTheCountOverflows) {
    // Chvatal, "Linear Programming" (1983), chapter 3: cycles under Dantzig's rule with the first of equal
    // rows leaving.
    EXPECT_EQ(errorOf(minimise(
                  {-10, 57, 9, 24},
                  {{{.5, -5.5, -2.5, 9}, "<", 0}, {{.5, -1.5, -.5, 1}, "<", 0}, {{1, 0, 0, 0}, "<", 1}})),
              ErrorNumber::Overflow);
}

TEST(Solve, EndsWithAnErrorBeforeAnElementLeavesTheRange) {
    EXPECT_EQ(errorOf(minimise({-1E+300, 1}, {{{1E-300, 1}, "<", 1E-300}})), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(minimise({-1}, {{{1E-300}, "<", 1E+300}})), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(minimise({1}, {{{1}, "=", 1E+308}, {{1}, "=", 1E+308}})), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(minimise({-1, 1E+308}, {{{.001, 1E+308}, "<", 1}})), ErrorNumber::Overflow);
}

TEST(Solve, TakesAProblemWithoutConstraintsOrVariables) {
    Simplex simplex;
    EXPECT_TRUE(isOptimal(solve(simplex, Problem{})));
    EXPECT_EQ(simplex.lastColumn, 1);
    EXPECT_TRUE(isOptimal(solve(simplex, minimise({1, 2}, {}))));
    EXPECT_TRUE(std::holds_alternative<Unbounded>(solve(simplex, minimise({1, -2}, {}))));
    EXPECT_TRUE(isOptimal(solve(simplex, minimise({}, {{{}, "<", 4}}))));
}

} // namespace
} // namespace vantore::lnprog
