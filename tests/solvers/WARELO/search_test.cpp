#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "solvers/WARELO/bound.h"
#include "solvers/WARELO/local_search.h"
#include "solvers/WARELO/messages.h"
#include "solvers/WARELO/search.h"
#include "tests/solvers/WARELO/cases.h"
#include "tests/solvers/WARELO/yardstick.h"

namespace vantore::warelo {
namespace {

Found best(const Case& problem) {
    Found last;
    search(networkOf(problem), [&](const Found& found) { last = found; });
    return last;
}

/// A case in which two warehouses lie beside two customers.
Case twoTowns() {
    Case problem = tests::freeCase();
    problem.warehouseCount = problem.customerCount = 2;
    problem.warehouses(2) = problem.warehouses(1);
    problem.customers(2) = problem.customers(1);
    problem.warehouses(2).x = problem.customers(2).x = 42;
    problem.warehouseCustomerFixed = 1;
    problem.inventoryConstant = 1;
    problem.productValue = 1;
    problem.capitalCost = 100;
    return problem;
}

TEST(WareloSearch, ServesEachTownFromItsOwnWarehouse) {
    Case problem = twoTowns();
    problem.inventoryExponent = 1;
    const Found found = best(problem);
    EXPECT_EQ(found.allocation, (Allocation{0, 1}));
    EXPECT_DOUBLE_EQ(found.cost, 20); // 20 cwt. in inventory, locally delivered for nothing
    EXPECT_NEAR(found.bound, 20, 1E-6);
}

TEST(WareloSearch, PutsInventoriesTogetherWhereThatSavesMore) {
    Case problem = twoTowns();
    problem.inventoryConstant = 30;
    problem.inventoryExponent = 0;
    const Found found = best(problem);
    EXPECT_EQ(found.allocation[0], found.allocation[1]);
    EXPECT_DOUBLE_EQ(found.cost, 40); // one inventory of 30, 10 cwt. sent for 1 $
    EXPECT_NEAR(found.bound, 40, 1E-6);
}

TEST(WareloSearch, FindsTheLeastCostOfAllAllocations) {
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        const Case problem = tests::randomCase(random, {.plants = 3, .warehouses = 4, .customers = 5});
        const double least = tests::leastCostByEnumeration(problem);
        const Found found = best(problem);
        EXPECT_NEAR(found.cost, least, 1E-6 * least) << "problem " << i;
        EXPECT_LE(found.bound, least * (1 + 1E-9)) << "problem " << i;
    }
}

TEST(WareloSearch, KeepsTheBoundBelowAndTheCostBestFromCallToCall) {
    std::mt19937 random(4);
    for (int i = 0; i < 20; ++i) {
        const Network network = networkOf(tests::randomCase(random, {.warehouses = 12, .customers = 60}));
        Found before;
        search(network, [&](const Found& found) {
            if (!before.allocation.empty()) {
                EXPECT_LE(found.cost, before.cost);
                EXPECT_GE(found.bound, before.bound);
            }
            EXPECT_LE(found.bound, found.cost * (1 + 1E-9));
            EXPECT_NEAR(found.cost, costOf(network, found.allocation), 1E-9 * found.cost);
            before = found;
        });
        ASSERT_EQ(before.allocation.size(), network.customers.size());
    }
}

/// The base case with other plants and warehouses selected, enough of them for the sales.
Case baseCaseWith(std::mt19937& random) {
    Case problem = tests::baseCase();
    std::bernoulli_distribution half(.5);
    do {
        for (int p = 1; p <= problem.plantCount; ++p) problem.plants(p).selection = half(random) ? mark : "";
        for (int w = 1; w <= problem.warehouseCount; ++w)
            problem.warehouses(w).selection = half(random) ? mark : "";
    } while (faultIn(problem));
    return problem;
}

TEST(WareloSearch, ProvesTheBaseCaseWithinAThousandth) {
    EXPECT_LT(best(tests::baseCase()).gap(), 1E-3);
}

TEST(WareloSearch, ProvesRandomSelectionsWithinAThousandth) {
    std::mt19937 random(5);
    for (int i = 0; i < 5; ++i) EXPECT_LT(best(baseCaseWith(random)).gap(), 1E-3) << "selection " << i;
}

/// The base case with these rows selected.
Case baseCaseWith(const std::vector<int>& plants, const std::vector<int>& warehouses) {
    Case problem = tests::baseCase();
    for (int p = 1; p <= problem.plantCount; ++p) problem.plants(p).selection.clear();
    for (int w = 1; w <= problem.warehouseCount; ++w) problem.warehouses(w).selection.clear();
    for (const int p : plants) problem.plants(p).selection = mark;
    for (const int w : warehouses) problem.warehouses(w).selection = mark;
    return problem;
}

TEST(WareloSearch, ProvesASelectionOfScarcePlantsWithinAFewTenThousandths) {
    EXPECT_LT(best(baseCaseWith({3, 4, 5, 6}, {4, 5, 7, 27, 46})).gap(), 2E-4);
}

/// Raises a bound on the base case for so many steps.
double raisedBound(int steps) {
    const Network network = networkOf(tests::baseCase());
    Found first;
    search(network, [&](const Found& found) {
        if (first.allocation.empty()) first = found;
    });
    Bound bound(network, first.allocation);
    for (int step = 0; step < steps; ++step) bound.step(first.cost);
    return bound.value();
}

TEST(WareloBound, IsNearItsHighestAfterAHundredSteps) {
    EXPECT_GT(raisedBound(100), .9998 * raisedBound(1000));
}

TEST(WareloSearch, ComesWithinAThousandthOfTheLinearRelaxation) {
    std::mt19937 random(6);
    for (int i = 0; i < 3; ++i) {
        Case problem = baseCaseWith(random);
        for (int w = 1; w <= problem.warehouseCount; ++w)
            if (w % 4 != i) problem.warehouses(w).selection = "";
        for (int c = 1; c <= problem.customerCount; ++c)
            if (c % 6 != i) problem.customers(c).sales = 0;
        problem.warehouses(1).selection = mark;
        const double relaxation = tests::linearBound(problem, 8);
        const Found found = best(problem);
        EXPECT_GE(found.cost, relaxation * (1 - 1E-9));
        EXPECT_LE(found.cost, relaxation * 1.001);
        EXPECT_GE(found.bound, relaxation * .999);
    }
}

TEST(LocalSearch, NeverMakesAnAllocationDearer) {
    std::mt19937 random(7);
    for (int i = 0; i < 100; ++i) {
        const Network network = networkOf(tests::randomCase(random, {.warehouses = 10, .customers = 40}));
        Allocation start;
        for (std::size_t c = 0; c < network.customers.size(); ++c)
            start.push_back(c % network.warehouses.size());
        const Allocation better = improved(network, start);
        EXPECT_LE(costOf(network, better), costOf(network, start));
        EXPECT_EQ(improved(network, better), better);
    }
}

/// The cheapest of the allocations in which one customer goes elsewhere or two change places.
double leastCostNextTo(const Network& network, const Allocation& allocation) {
    double least = costOf(network, allocation);
    const auto look = [&](const Allocation& other) { least = std::min(least, costOf(network, other)); };
    for (std::size_t a = 0; a < allocation.size(); ++a) {
        Allocation other = allocation;
        for (std::size_t w = 0; w < network.warehouses.size(); ++w) {
            other[a] = w;
            look(other);
        }
        for (std::size_t b = 0; b < a; ++b) {
            other = allocation;
            std::swap(other[a], other[b]);
            look(other);
        }
    }
    return least;
}

TEST(LocalSearch, LeavesNoShiftAndNoSwapThatPays) {
    std::mt19937 random(17);
    for (int i = 0; i < 300; ++i) {
        const Network network =
            networkOf(tests::randomCase(random, {.plants = 3, .warehouses = 5, .customers = 10}));
        Allocation start(network.customers.size());
        for (std::size_t& warehouse : start) warehouse = random() % network.warehouses.size();
        const Allocation better = improved(network, start);
        const double cost = costOf(network, better);
        EXPECT_GE(leastCostNextTo(network, better), cost * (1 - 1E-9)) << "case " << i;
    }
}

TEST(LocalSearch, ClosesAWarehouseThatDoesNotPay) {
    Case problem = twoTowns();
    problem.inventoryConstant = 30;
    problem.inventoryExponent = 0;
    const Allocation together = improved(networkOf(problem), {0, 1});
    EXPECT_EQ(together[0], together[1]);
}

TEST(LocalSearch, ClosesAWarehouseWhoseCustomersPartToItsNeighbours) {
    // A degree apart from each other lie three warehouses, each of them with an inventory of 30 $; halfway
    // between them two customers of the middle one. Either of the others would serve one of them as well, and
    // both of them for 10 x 69 miles x .1 $ more.
    Case problem = tests::freeCase();
    problem.warehouseCount = 3;
    problem.customerCount = 4;
    for (int w = 2; w <= 3; ++w) problem.warehouses(w) = problem.warehouses(1);
    for (int c = 2; c <= 4; ++c) problem.customers(c) = problem.customers(1);
    problem.warehouses(2).x = 41;
    problem.warehouses(3).x = problem.customers(4).x = 42;
    problem.customers(2).x = 40.5;
    problem.customers(3).x = 41.5;
    problem.plants(1).capacity = 1000;
    problem.warehouseCustomerVariable = .1;
    problem.inventoryConstant = 30;
    problem.inventoryExponent = 0;
    problem.productValue = 1;
    problem.capitalCost = 100;
    EXPECT_EQ(improved(networkOf(problem), {0, 1, 1, 2}), (Allocation{0, 0, 2, 2}));
}

TEST(WareloBound, PricesWarehousesThatServeNextToNothing) {
    // An inventory costs 1 $ of any size, so that each warehouse would rather have it for both customers.
    Case problem = twoTowns();
    problem.customers(1).sales = problem.customers(2).sales = .25;
    const Network network = networkOf(problem);
    const Bound bound(network, {0, 1});
    EXPECT_EQ(bound.warehousePrice(), (std::vector<double>{2, 2}));
}

TEST(WareloBound, IsExactAtTheStartWhereNothingPullsApart) {
    Case problem = twoTowns();
    problem.inventoryExponent = 1;
    const Network network = networkOf(problem);
    const Bound bound(network, {0, 1});
    EXPECT_NEAR(bound.value(), 20, 1E-9);
}

TEST(WareloMessages, ArriveAsTheyWereSent) {
    const Found found{{3, 0, 47}, 45106853.1234567, 1.0 / 3};
    const Found heard = foundFrom(toText(found));
    EXPECT_EQ(heard.allocation, found.allocation);
    EXPECT_EQ(heard.cost, found.cost);
    EXPECT_EQ(heard.bound, found.bound);
    EXPECT_THROW(foundFrom("1 2 3 4"), std::runtime_error);
}

} // namespace
} // namespace vantore::warelo
