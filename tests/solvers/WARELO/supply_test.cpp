#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>

#include "solvers/WARELO/supply.h"
#include "tests/solvers/WARELO/cases.h"

namespace vantore::warelo {
namespace {

/// Plants with capacities and warehouses, and what a cwt. costs between them.
Network network(const std::vector<double>& capacities, const std::vector<std::vector<double>>& costs) {
    Network result;
    for (const double capacity : capacities) result.plants.push_back({1, capacity});
    result.warehouses.resize(costs.front().size());
    for (std::size_t p = 0; p < costs.size(); ++p)
        for (std::size_t w = 0; w < costs[p].size(); ++w)
            result.supplyCost(static_cast<long long>(p), static_cast<long long>(w)) = costs[p][w];
    return result;
}

TEST(CheapestSupply, TakesTheCheapestPlantWhileItLasts) {
    const Supply supply = cheapestSupply(network({100, 100}, {{3, 4}, {5, 7}}), {60, 30});
    EXPECT_DOUBLE_EQ(supply.cost, 60 * 3 + 30 * 4);
    EXPECT_EQ(supply.flows(0, 0), 60);
    EXPECT_EQ(supply.flows(0, 1), 30);
    EXPECT_EQ(supply.capacityPrice, (std::vector<double>{0, 0}));
    EXPECT_EQ(supply.warehousePrice, (std::vector<double>{3, 4}));
}

TEST(CheapestSupply, HandsOnWhatAnotherCanMakeAtLessLoss) {
    // The first plant is full: warehouse 1 loses 2 $ by changing over, warehouse 2 loses 3.
    const Supply supply = cheapestSupply(network({70, 100}, {{3, 4}, {5, 7}}), {60, 30});
    EXPECT_DOUBLE_EQ(supply.cost, 40 * 3 + 30 * 4 + 20 * 5);
    EXPECT_DOUBLE_EQ(supply.flows(0, 0), 40);
    EXPECT_DOUBLE_EQ(supply.flows(0, 1), 30);
    EXPECT_DOUBLE_EQ(supply.flows(1, 0), 20);
    EXPECT_EQ(supply.capacityPrice, (std::vector<double>{2, 0}));
    EXPECT_EQ(supply.warehousePrice, (std::vector<double>{5, 6}));
}

TEST(CheapestSupply, HandsOnThroughSeveralPlants) {
    const Supply supply =
        cheapestSupply(network({10, 10, 10}, {{1, 5, 9}, {9, 1, 5}, {9, 9, 1}}), {12, 10, 5});
    // Two cwt. too many for plant 1 and none to spare in plant 2: whichever way they are handed on, each
    // costs 8 more.
    EXPECT_NEAR(supply.cost, 10 * 1 + 2 * 9 + 10 * 1 + 5 * 1, 1E-8);
}

TEST(CheapestSupply, IsNotHeldUpByTheLittleThatAFullPlantMakesForTheSameWarehouse) {
    // Plant 1 spends its last millionth on warehouse 2, which can as well have the rest from plant 2 at once.
    const Supply supply = cheapestSupply(network({10, 2000}, {{0, 1}, {10, 2}}), {10 - 1E-6, 1000});
    EXPECT_NEAR(supply.flows(0, 0), 10 - 1E-6, 1E-8);
    EXPECT_NEAR(supply.flows(0, 1), 1E-6, 1E-8);
    EXPECT_NEAR(supply.flows(1, 1), 1000, 1E-5);
}

TEST(CheapestSupply, IsNotHeldUpByTheLittleThatPlantsHandOnOverTheSameWarehouse) {
    // Plants 2 and 1 share warehouse 1 and are full; what plant 3 takes over there passes plant 1 by.
    const Supply supply = cheapestSupply(network({10, 1000, 3000}, {{2, 0, 9}, {1, 0, 0}, {4, 20, 20}}),
                                         {1000 + 1E-6, 10 - 1E-6, 900});
    EXPECT_NEAR(supply.flows(2, 0), 900, 1E-5);
    EXPECT_NEAR(supply.cost, 100 + 2E-6 + 900 * 4, 1E-3);
}

TEST(CheapestSupply, UsesUpTheWholeCapacity) {
    const Supply supply = cheapestSupply(network({.1, .2}, {{1, 2}, {2, 1}}), {.1 + .2, 0});
    EXPECT_NEAR(supply.flows(0, 0) + supply.flows(1, 0), .3, 1E-12);
    EXPECT_NEAR(supply.cost, .5, 1E-9);
}

/// Flows and prices prove each other: no flow where the price doesn't pay for it, no price where capacity is
/// left, and both add up to the same cost.
void expectProved(const Network& network, const std::vector<double>& throughput) {
    const Supply supply = cheapestSupply(network, throughput);
    const double amount = std::accumulate(throughput.begin(), throughput.end(), 0.0);
    double dual = 0, dearest = 0;
    for (std::size_t w = 0; w < throughput.size(); ++w) {
        double supplied = 0;
        for (std::size_t p = 0; p < network.plants.size(); ++p) {
            const double flow = supply.flows(static_cast<long long>(p), static_cast<long long>(w));
            const double price = network.supplyCostOf(p, w) + supply.capacityPrice[p];
            dearest = std::max(dearest, network.supplyCostOf(p, w));
            EXPECT_GE(flow, 0);
            EXPECT_GE(price, supply.warehousePrice[w] - 1E-9 * price);
            if (flow > 1E-9 * amount) {
                EXPECT_NEAR(price, supply.warehousePrice[w], 1E-9 * price);
            }
            supplied += flow;
        }
        EXPECT_NEAR(supplied, throughput[w], 1E-9 * amount);
        dual += throughput[w] * supply.warehousePrice[w];
    }
    for (std::size_t p = 0; p < network.plants.size(); ++p) {
        double output = 0;
        for (std::size_t w = 0; w < throughput.size(); ++w)
            output += supply.flows(static_cast<long long>(p), static_cast<long long>(w));
        EXPECT_LE(output, network.plants[p].capacity * (1 + 1E-9) + 1E-9 * amount);
        EXPECT_GE(supply.capacityPrice[p], 0);
        dual -= network.plants[p].capacity * supply.capacityPrice[p];
    }
    EXPECT_NEAR(supply.cost, dual, 1E-8 * amount * dearest);
}

TEST(CheapestSupply, IsProvedByItsPrices) {
    std::mt19937 random(2);
    for (int i = 0; i < 1000; ++i) {
        const Network network = networkOf(tests::randomCase(random, {}));
        std::vector<double> throughput(network.warehouses.size());
        for (std::size_t c = 0; c < network.customers.size(); ++c)
            throughput[c % throughput.size()] += network.customers[c].sales;
        expectProved(network, throughput);
        if (HasFailure()) FAIL() << "problem " << i;
    }
}

} // namespace
} // namespace vantore::warelo
