#include <gtest/gtest.h>

#include "solvers/WARELO/costs.h"
#include "tests/solvers/WARELO/cases.h"

namespace vantore::warelo {
namespace {

constexpr double degree = 69.0941; // miles on a meridian

/// A warehouse one degree of latitude from the plant, and the customer two from the warehouse.
Case sample() {
    Case problem = tests::freeCase();
    problem.plants(1).productionCost = 20;
    problem.warehouses(1).x = 41;
    problem.customers(1).x = 43;
    problem.plantWarehouseFixed = .92;
    problem.plantWarehouseVariable = .002;
    problem.warehouseCustomerFixed = 5.45;
    problem.warehouseCustomerVariable = .0037;
    problem.capitalCost = 10;
    problem.productValue = 25;
    problem.inventoryConstant = 3;
    problem.inventoryExponent = .5;
    Warehouse& warehouse = problem.warehouses(1);
    warehouse.storage = .06;
    warehouse.handling = .5;
    warehouse.stockOrderProcessing = 18;
    warehouse.stockOrderSize = 400;
    warehouse.customerOrderProcessing = 1.5;
    warehouse.customerOrderSize = 10;
    warehouse.localDelivery = 2;
    return problem;
}

TEST(WareloCosts, MakeAndSendTheGoods) {
    const Case problem = sample();
    const Costs costs = supplyCosts(problem, problem.plants(1), problem.warehouses(1), 100);
    EXPECT_DOUBLE_EQ(costs(CostKind::Production), 2000);
    EXPECT_NEAR(costs(CostKind::PlantWarehouse), 100 * (.92 + .002 * degree), 1E-3);
    EXPECT_DOUBLE_EQ(costs.total(), costs(CostKind::Production) + costs(CostKind::PlantWarehouse));
}

TEST(WareloCosts, DeliverByTheGeneralCarriers) {
    const Case problem = sample();
    const Costs costs = deliveryCosts(problem, problem.warehouses(1), problem.customers(1), 100);
    EXPECT_NEAR(costs(CostKind::WarehouseCustomer), 100 * (5.45 + .0037 * 2 * degree), 1E-3);
    EXPECT_EQ(costs(CostKind::LocalDelivery), 0);
}

TEST(WareloCosts, DeliverLocallyWithinThirtyMiles) {
    Case problem = sample();
    problem.customers(1).x = 41 + 29.9 / degree;
    Costs costs = deliveryCosts(problem, problem.warehouses(1), problem.customers(1), 100);
    EXPECT_DOUBLE_EQ(costs(CostKind::LocalDelivery), 200);
    EXPECT_EQ(costs(CostKind::WarehouseCustomer), 0);
    problem.customers(1).x = 41 + 30.1 / degree;
    costs = deliveryCosts(problem, problem.warehouses(1), problem.customers(1), 100);
    EXPECT_EQ(costs(CostKind::LocalDelivery), 0);
    EXPECT_GT(costs(CostKind::WarehouseCustomer), 545);
}

TEST(WareloCosts, HandleAndProcessOrders) {
    const Case problem = sample();
    const Costs costs = handlingCosts(problem.warehouses(1), 1000);
    EXPECT_DOUBLE_EQ(costs(CostKind::Handling), 500);
    EXPECT_DOUBLE_EQ(costs(CostKind::StockOrders), 18 * 2.5);
    EXPECT_DOUBLE_EQ(costs(CostKind::CustomerOrders), 150);
}

TEST(WareloCosts, LeaveFreeOrdersWithoutASize) {
    Case problem = sample();
    problem.warehouses(1).stockOrderProcessing = problem.warehouses(1).stockOrderSize = 0;
    EXPECT_EQ(handlingCosts(problem.warehouses(1), 1000)(CostKind::StockOrders), 0);
}

TEST(WareloCosts, HoldAnInventory) {
    const Case problem = sample();
    EXPECT_DOUBLE_EQ(inventory(problem, 10000), 300); // 3 x 100
    const Costs costs = inventoryCosts(problem, problem.warehouses(1), 10000);
    EXPECT_DOUBLE_EQ(costs(CostKind::Storage), .06 * 300 * 25);
    EXPECT_DOUBLE_EQ(costs(CostKind::Capital), .1 * 300 * 25);
}

TEST(WareloCosts, HoldNothingWithoutAThroughput) {
    Case problem = sample();
    problem.inventoryExponent = 0;
    EXPECT_EQ(inventory(problem, 0), 0);
    EXPECT_EQ(inventory(problem, 1), 3);
}

TEST(WareloCosts, AddUpByKind) {
    const Case problem = sample();
    Costs costs = handlingCosts(problem.warehouses(1), 1000);
    costs += handlingCosts(problem.warehouses(1), 10);
    EXPECT_DOUBLE_EQ(costs(CostKind::Handling), 505);
    EXPECT_DOUBLE_EQ(costs.total(), 1.01 * (500 + 45 + 150));
}

} // namespace
} // namespace vantore::warelo
