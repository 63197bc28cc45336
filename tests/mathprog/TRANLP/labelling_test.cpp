#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <string>
#include <tuple>
#include <vector>

#include "mathprog/TRANLP/method.h"
#include "tests/mathprog/TRANLP/network_simplex.h"
#include "tests/mathprog/TRANLP/plain_labelling.h"
#include "tests/mathprog/TRANLP/random_problem.h"

namespace vantore::tests {
namespace {

using namespace tranlp;

struct Size {
    int sources, sinks;
};

using Augmentations = std::vector<std::tuple<int, int, std::int32_t>>;

AugmentationWatch into(Augmentations& list) {
    return [&list](int row, int col, std::int32_t units) { list.emplace_back(row, col, units); };
}

/// The two methods' results, differences first; empty when all bits agree.
std::string difference(const Problem& problem) {
    Tableau fast = balanced(problem);
    Tableau plain = fast;
    Augmentations fastSteps, plainSteps;
    label(fast, into(fastSteps));
    labelPlainly(plain, problem.sources * problem.sinks, into(plainSteps));
    if (fastSteps != plainSteps) return "other augmentations";
    for (int i = 1; i <= fast.rows; ++i)
        for (int j = 1; j <= fast.cols; ++j) {
            const std::string cell = std::to_string(i) + ", " + std::to_string(j);
            const bool real = i <= problem.sources && j <= problem.sinks;
            if (real && fast.alloc(i, j) != plain.alloc(i, j)) return "other shipment in " + cell;
            const auto bits = std::bit_cast<std::uint64_t>(fast.reduced(i, j));
            if (bits != std::bit_cast<std::uint64_t>(plain.reduced(i, j)))
                return "other reduced cost in " + cell;
        }
    return "";
}

constexpr std::array<Costs, 5> allCosts = {Costs::Whole, Costs::Few, Costs::Cents, Costs::Fractional,
                                           Costs::Signed};
constexpr std::array<Balance, 3> allBalances = {Balance::Even, Balance::SupplyHeavy, Balance::DemandHeavy};

/// From 2 x 2 to 100 x 100, square, wide and tall.
constexpr std::array<Size, 12> sizes = {{{2, 2},
                                         {3, 7},
                                         {7, 3},
                                         {10, 10},
                                         {15, 40},
                                         {40, 15},
                                         {33, 33},
                                         {64, 63},
                                         {20, 100},
                                         {100, 20},
                                         {80, 90},
                                         {100, 100}}};

TEST(Labelling, GivesThePlainLoopsResultToTheLastBit) {
    for (unsigned seed = 1; seed <= 3; ++seed)
        for (const Size size : sizes)
            for (const Costs costs : allCosts)
                for (const Balance balance : allBalances)
                    ASSERT_EQ(difference(randomProblem(size.sources, size.sinks, costs, balance, seed)), "")
                        << size.sources << " x " << size.sinks << ", costs " << int(costs) << ", balance "
                        << int(balance) << ", seed " << seed;
}

TEST(Labelling, GivesThePlainLoopsResultOnManySmallProblems) {
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        const int sources = static_cast<int>(seed % 7) + 1;
        const int sinks = static_cast<int>(seed / 7 % 6) + 1;
        const Problem problem =
            randomProblem(sources, sinks, allCosts[seed % 5], allBalances[seed / 5 % 3], seed);
        ASSERT_EQ(difference(problem), "") << "seed " << seed;
    }
}

/// Costs between neighbours are so small that they are lost when a whole one is taken off and put back.
TEST(Labelling, GivesThePlainLoopsResultWhereSmallCostsAreLost) {
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        Problem problem = randomProblem(12, 14, Costs::Few, allBalances[seed % 3], seed);
        for (int i = 1; i <= 12; ++i)
            for (int j = 1; j <= 14; ++j)
                if (i / 4 == j / 4) problem.cost(i, j) = std::ldexp(problem.cost(i, j), -56);
        ASSERT_EQ(difference(problem), "") << "seed " << seed;
    }
}

TEST(Labelling, GivesThePlainLoopsResultWithNegativeSuppliesAndDemands) {
    for (unsigned seed = 1; seed <= 2000; ++seed) {
        const int size = static_cast<int>(seed % 8) + 1;
        Problem problem = randomProblem(size, 9 - size, allCosts[seed % 5], Balance::Even, seed);
        for (int i = 1; i <= size; ++i)
            if ((seed >> i) % 3 == 0) problem.supply(i) *= -1;
        for (int j = 1; j <= 9 - size; ++j)
            if ((seed >> j) % 4 == 0) problem.demand(j) *= -1;
        ASSERT_EQ(difference(problem), "") << "seed " << seed;
    }
}

TEST(Labelling, FindsTheNetworkSimplexMethodsOptimum) {
    for (unsigned seed = 1; seed <= 60; ++seed) {
        const Size size = sizes[seed % sizes.size()];
        const Problem problem = randomProblem(size.sources, size.sinks, allCosts[seed % 5],
                                              allBalances[seed / 5 % 3], seed + 1000);
        const double optimum = networkSimplexCost(balanced(problem));
        EXPECT_NEAR(cheapestPlan(problem).totalCost, optimum, 1E-9 * std::max(1.0, std::abs(optimum)))
            << "seed " << seed;
    }
}

/// Everything that is there is shipped, nothing else, and only over cells of reduced cost 0.
TEST(Labelling, ShipsAllUnitsOverCellsOfReducedCostZero) {
    for (unsigned seed = 1; seed <= 30; ++seed) {
        const Problem problem = randomProblem(25, 35, allCosts[seed % 5], allBalances[seed % 3], seed);
        const Tableau before = balanced(problem);
        Tableau after = before;
        label(after);
        for (int i = 1; i <= after.rows; ++i) {
            std::int64_t shipped = 0;
            for (int j = 1; j <= after.cols; ++j) {
                shipped += after.alloc(i, j);
                EXPECT_GE(after.alloc(i, j), 0);
                EXPECT_GE(after.reduced(i, j), 0);
                EXPECT_TRUE(after.alloc(i, j) == 0 || after.reduced(i, j) == 0);
            }
            EXPECT_EQ(shipped, before.unitsLeft(i));
        }
        for (int j = 1; j <= after.cols; ++j) {
            std::int64_t received = 0;
            for (int i = 1; i <= after.rows; ++i) received += after.alloc(i, j);
            EXPECT_EQ(received, before.needLeft(j));
        }
    }
}

// Where the method could run on for ever

TEST(Labelling, EndsWithoutSinksWhereSuppliesCancelOut) {
    Problem problem;
    problem.sources = 2;
    problem.supply(1) = 5;
    problem.supply(2) = -5;
    const Plan plan = cheapestPlan(problem);
    EXPECT_EQ(plan.totalAllocated, 0);
    EXPECT_EQ(plan.totalCost, 0);
    EXPECT_EQ(difference(problem), "");
}

TEST(Labelling, EndsWithoutSourcesOrWithoutAnything) {
    Problem problem;
    EXPECT_EQ(cheapestPlan(problem).totalAllocated, 0);
    problem.sinks = 2;
    problem.demand(1) = 10;
    problem.demand(2) = -5;
    EXPECT_EQ(cheapestPlan(problem).totalAllocated, 0);
    EXPECT_EQ(difference(problem), "");
}

/// Changes of duals too small to alter the costs: each change still makes its own cell 0.
TEST(Labelling, EndsWhereAChangeIsLostBesideTheCosts) {
    Problem problem;
    problem.sources = problem.sinks = 4;
    for (int i = 1; i <= 4; ++i) {
        problem.supply(i) = 3;
        problem.demand(i) = 3;
        for (int j = 1; j <= 4; ++j) problem.cost(i, j) = i == j ? 1E+290 : std::ldexp(1.0 + i * j, -1000);
    }
    EXPECT_EQ(difference(problem), "");
    EXPECT_EQ(cheapestPlan(problem).totalAllocated, 12);
}

TEST(Labelling, EndsOnTheSmallestAndTheLargestNumbers) {
    for (const double cost : {std::numeric_limits<double>::denorm_min(), 1E+300}) {
        Problem problem;
        problem.sources = problem.sinks = 5;
        for (int i = 1; i <= 5; ++i) {
            problem.supply(i) = 2 * i;
            problem.demand(i) = 12 - 2 * i;
            for (int j = 1; j <= 5; ++j) problem.cost(i, j) = cost * ((i * 3 + j * 5) % 7 + 1);
        }
        EXPECT_EQ(difference(problem), "");
    }
}

TEST(Labelling, ReportsCostsThatLeaveTheRange) {
    Problem problem;
    problem.sources = problem.sinks = 2;
    problem.supply(1) = problem.demand(1) = 1;
    problem.cost(1, 1) = 1.7E+308;
    problem.cost(1, 2) = -1.7E+308;
    EXPECT_THROW(cheapestPlan(problem), RuntimeError);
}

} // namespace
} // namespace vantore::tests
