#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

#include "solvers/WARELO/plan.h"
#include "solvers/WARELO/search.h"
#include "tests/solvers/WARELO/cases.h"

namespace vantore::warelo {
namespace {

/// One warehouse that two plants must supply, with so many customers.
Case sharedWarehouse(const std::vector<double>& sales, double first, double second) {
    Case problem = tests::freeCase();
    problem.plantCount = 2;
    problem.plants(2) = problem.plants(1);
    problem.plants(2).y = 85;
    problem.plants(1).capacity = first;
    problem.plants(2).capacity = second;
    problem.plants(2).productionCost = 1;
    problem.customerCount = static_cast<int>(sales.size());
    for (int c = 1; c <= problem.customerCount; ++c) {
        problem.customers(c) = problem.customers(1);
        problem.customers(c).sales = sales[static_cast<std::size_t>(c - 1)];
    }
    return problem;
}

std::vector<int> plantsOf(const Case& problem) {
    const Network network = networkOf(problem);
    const Plan plan = planOf(problem, network, Allocation(network.customers.size()));
    std::vector<int> plants;
    for (const auto& customer : plan.customers) plants.push_back(customer.plant);
    return plants;
}

TEST(WareloPlan, CountsTheLargestCustomersToThePlantWithMostLeft) {
    EXPECT_EQ(plantsOf(sharedWarehouse({10, 40, 30, 20}, 60, 50)), (std::vector<int>{2, 1, 2, 1}));
}

TEST(WareloPlan, GivesEachPlantACustomerWhereThereAreEnough) {
    EXPECT_EQ(plantsOf(sharedWarehouse({50, 40, 30}, 119, 5)), (std::vector<int>{1, 1, 2}));
    EXPECT_EQ(plantsOf(sharedWarehouse({50}, 40, 30)), (std::vector<int>{1}));
}

TEST(WareloPlan, AddsUpToTheCostOfTheSearch) {
    std::mt19937 random(10);
    for (int i = 0; i < 50; ++i) {
        const Case problem = tests::randomCase(random, {.warehouses = 10, .customers = 40});
        const Network network = networkOf(problem);
        Found best;
        search(network, [&](const Found& found) { best = found; });
        const Plan plan = planOf(problem, network, best.allocation);
        EXPECT_NEAR(plan.costs().total(), best.cost, 1E-6 * best.cost);
        double output = 0, throughput = 0;
        for (int p = 1; p <= problem.plantCount; ++p) {
            output += plan.output(p);
            EXPECT_LE(plan.output(p), problem.plants(p).capacity * (1 + 1E-9));
            if (!problem.plants(p).selected()) {
                EXPECT_EQ(plan.output(p), 0);
            }
        }
        for (const auto& open : plan.warehouses) {
            throughput += open.throughput;
            EXPECT_TRUE(problem.warehouses(open.row).selected());
            EXPECT_GT(open.customers, 0);
            EXPECT_FALSE(open.plants.empty());
        }
        EXPECT_NEAR(output, network.sales(), 1E-6 * network.sales());
        EXPECT_NEAR(throughput, network.sales(), 1E-9 * network.sales());
    }
}

TEST(WareloPlan, HandsEveryCustomerToTheMap) {
    std::mt19937 random(11);
    for (int i = 0; i < 100; ++i) {
        const Case problem = tests::randomCase(random, {.warehouses = 10, .customers = 40});
        const Network network = networkOf(problem);
        Allocation allocation;
        for (std::size_t c = 0; c < network.customers.size(); ++c)
            allocation.push_back(c % network.warehouses.size());
        const Plan plan = planOf(problem, network, allocation);
        const std::vector<wareloca::Flow> flows = flowsOf(problem, plan);
        ASSERT_EQ(flows.size(), network.customers.size());
        for (std::size_t c = 0; c < flows.size(); ++c) {
            const Customer& customer = problem.customers(network.customers[c].row);
            EXPECT_EQ(flows[c].customer, (wareloca::Place{customer.x, customer.y}));
            EXPECT_EQ(flows[c].warehouse, network.warehouses[allocation[c]].row);
            EXPECT_GT(plan.shipped(flows[c].plant, flows[c].warehouse), 0);
            EXPECT_EQ(flows[c].source.x, problem.plants(flows[c].plant).x);
            EXPECT_EQ(flows[c].from.y, problem.warehouses(flows[c].warehouse).y);
        }
    }
}

} // namespace
} // namespace vantore::warelo
