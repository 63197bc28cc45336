#include <gtest/gtest.h>

#include <initializer_list>
#include <vector>

#include "mathprog/TRANLP/method.h"

namespace vantore::tranlp {
namespace {

using Row = std::vector<double>;
using Shipments = std::vector<std::vector<int>>;

Problem problemOf(const Row& supplies, const Row& demands, const std::vector<Row>& costs) {
    Problem problem;
    for (const double supply : supplies) problem.supply(++problem.sources) = supply;
    for (const double demand : demands) problem.demand(++problem.sinks) = demand;
    for (int i = 1; i <= problem.sources; ++i)
        for (int j = 1; j <= problem.sinks; ++j)
            problem.cost(i, j) = costs.at(std::size_t(i) - 1).at(std::size_t(j) - 1);
    return problem;
}

Shipments shipments(const Problem& problem, const Plan& plan) {
    Shipments rows(std::size_t(problem.sources));
    for (int i = 1; i <= problem.sources; ++i)
        for (int j = 1; j <= problem.sinks; ++j) rows[std::size_t(i) - 1].push_back(plan.alloc(i, j));
    return rows;
}

// By hand: rows lose 1, 2, 2, columns 0, 0, 1; costs of 0 are left at (1,1), (2,2), (3,1) and (3,3). The
// first allocation ships 10, 15, 0 and 5 over them, which is all there is.
TEST(CheapestPlan, IsTheGreedyOneWhereThatUsesUpAllSupply) {
    const Problem problem = problemOf({10, 15, 5}, {10, 15, 5}, {{1, 4, 6}, {5, 2, 7}, {2, 6, 3}});
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(shipments(problem, plan), (Shipments{{10, 0, 0}, {0, 15, 0}, {0, 0, 5}}));
    EXPECT_EQ(plan.totalCost, 10 * 1 + 15 * 2 + 5 * 3);
    EXPECT_EQ(plan.totalAllocated, 30);
}

// By hand: reduced costs are 0, 0 and 0, 3. The first allocation ships 2 over (1,1) and 2 over (2,1). The
// path 2-1, 1-1, 1-2 moves row 1's units to column 2. Row 2's last 2 units then reach column 1 alone: the
// duals change by 3, and they go over (2,2).
TEST(CheapestPlan, ChangesDualsWhereLabelsStall) {
    const Problem problem = problemOf({2, 6}, {4, 4}, {{1, 2}, {1, 5}});
    Tableau tableau = balanced(problem);
    Shipments steps;
    label(tableau, [&](int row, int col, std::int32_t units) { steps.push_back({row, col, units}); });
    EXPECT_EQ(steps, (Shipments{{1, 2, 2}, {2, 2, 2}}));
    EXPECT_EQ(tableau.reduced(2, 2), 0);
    EXPECT_EQ(tableau.reduced(1, 1), 3);
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(shipments(problem, plan), (Shipments{{0, 2}, {4, 2}}));
    EXPECT_EQ(plan.totalCost, 18);
}

// By hand: the greedy start gives column 1 to row 1, which row 2 needs; the path 2-1, 1-1, 1-2 moves it on.
TEST(CheapestPlan, TakesUnitsBackAlongAPath) {
    const Problem problem = problemOf({5, 5}, {5, 5}, {{0, 0}, {0, 3}});
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(shipments(problem, plan), (Shipments{{0, 5}, {5, 0}}));
    EXPECT_EQ(plan.totalCost, 0);
}

TEST(CheapestPlan, KeepsSurplusAtHome) {
    const Problem problem = problemOf({8, 7}, {5, 4}, {{2, 3}, {1, 6}});
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(shipments(problem, plan), (Shipments{{0, 4}, {5, 0}}));
    EXPECT_EQ(plan.totalAllocated, 9);
    EXPECT_EQ(plan.rowTotal(1), 4);
    EXPECT_EQ(plan.colTotal(1), 5);
    EXPECT_EQ(plan.totalCost, 17);
}

TEST(CheapestPlan, LeavesTheDearestSinkShort) {
    const Problem problem = problemOf({6}, {5, 5}, {{4, 2}});
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(shipments(problem, plan), (Shipments{{1, 5}}));
    EXPECT_EQ(plan.totalAllocated, 6);
    EXPECT_EQ(plan.totalCost, 14);
}

TEST(CheapestPlan, TakesNegativeCostsAsTheyAre) {
    const Problem problem = problemOf({3, 3}, {3, 3}, {{-2, 1}, {-5, 0}});
    EXPECT_EQ(cheapestPlan(problem).totalCost, 3 * 1 + 3 * -5);
}

TEST(CheapestPlan, RoundsHalfUnitsUp) {
    const Tableau tableau = balanced(problemOf({2.5, 2.4, -1.5}, {.5, 3.49}, {{1, 1}, {1, 1}, {1, 1}}));
    EXPECT_EQ(tableau.unitsLeft(1), 3);
    EXPECT_EQ(tableau.unitsLeft(2), 2);
    EXPECT_EQ(tableau.unitsLeft(3), -1);
    EXPECT_EQ(tableau.needLeft(1), 1);
    EXPECT_EQ(tableau.needLeft(2), 3);
}

TEST(CheapestPlan, ShipsNothingWhereThereIsNothing) {
    const Problem problem = problemOf({0, 0}, {0, 0}, {{3, 4}, {1, 2}});
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(shipments(problem, plan), (Shipments{{0, 0}, {0, 0}}));
    EXPECT_EQ(plan.totalAllocated, 0);
}

ErrorNumber errorOf(const Problem& problem) {
    try {
        cheapestPlan(problem);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    return ErrorNumber::CancelSelected;
}

TEST(CheapestPlan, CountsUnitsIn32Bits) {
    EXPECT_EQ(errorOf(problemOf({3E+9}, {1}, {{1}})), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(problemOf({2E+9, 2E+9}, {1}, {{1}, {1}})), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(problemOf({2E+9}, {-2E+9}, {{1}})), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(problemOf({1E+300}, {1}, {{1}})), ErrorNumber::Overflow);
}

TEST(CheapestPlan, HasRoomFor102RowsAndColumnsInAll) {
    Problem problem;
    problem.sources = problem.sinks = mostPlaces;
    for (int place = 1; place <= mostPlaces; ++place) problem.supply(place) = problem.demand(place) = 1;
    EXPECT_EQ(cheapestPlan(problem).totalAllocated, mostPlaces);
    problem.supply(1) = 2;
    EXPECT_EQ(errorOf(problem), ErrorNumber::SubscriptOutOfRange);
    problem.supply(1) = 0;
    EXPECT_EQ(errorOf(problem), ErrorNumber::SubscriptOutOfRange);
}

TEST(CheapestPlan, ReportsACostBeyondTheRange) {
    EXPECT_EQ(errorOf(problemOf({2}, {2}, {{1.7E+308}})), ErrorNumber::Overflow);
}

TEST(CheapestPlan, ReportsAReducedCostBeyondTheRangeInAnyCell) {
    constexpr double huge = 1.5E+308;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t col = 0; col < 3; ++col) {
            // Nothing is shipped where it would cost so much: only its reduced cost leaves the range.
            std::vector<Row> costs(3, Row(3, 0));
            costs[row][col] = huge;
            EXPECT_EQ(errorOf(problemOf({0, 0, 0}, {0, 0, 0}, costs)), ErrorNumber::CancelSelected);
            costs[row][(col + 1) % 3] = -huge;
            EXPECT_EQ(errorOf(problemOf({0, 0, 0}, {0, 0, 0}, costs)), ErrorNumber::Overflow)
                << row << ' ' << col;
        }
}

TEST(Balanced, GivesTheExtraRowOrColumnNoCostWhateverLiesBeyondTheProblem) {
    for (const bool surplus : {true, false}) {
        Problem problem = surplus ? problemOf({8, 7}, {5, 4}, {{2, 3}, {1, 6}})
                                  : problemOf({5, 4}, {8, 7}, {{2, 3}, {1, 6}});
        for (int place = 1; place <= 3; ++place) problem.cost(3, place) = problem.cost(place, 3) = 99;
        const Tableau tableau = balanced(problem);
        EXPECT_EQ(tableau.rows, surplus ? 2 : 3);
        EXPECT_EQ(tableau.cols, surplus ? 3 : 2);
        for (int place = 1; place <= 2; ++place)
            EXPECT_EQ(surplus ? tableau.reduced(place, 3) : tableau.reduced(3, place), 0) << place;
    }
}

} // namespace
} // namespace vantore::tranlp
