#include <gtest/gtest.h>

#include <limits>

#include "solvers/WARELO/costs.h"
#include "solvers/WARELO/network.h"
#include "tests/solvers/WARELO/cases.h"

namespace vantore::warelo {
namespace {

using tests::freeCase;

/// The fault of a case after a change.
template <class Change>
std::string faultAfter(Change change) {
    Case problem = freeCase();
    change(problem);
    return faultIn(problem).value_or("");
}

TEST(WareloNetwork, HasNoFaultInAPlainCase) {
    EXPECT_EQ(faultAfter([](Case&) {}), "");
    EXPECT_FALSE(faultIn(tests::baseCase()));
}

TEST(WareloNetwork, NamesWhatIsNotSelected) {
    EXPECT_EQ(faultAfter([](Case& p) { p.plants(1).selection = ""; }),
              "No plant is selected.  Select at least one.");
    EXPECT_EQ(faultAfter([](Case& p) { p.warehouses(1).selection = ""; }),
              "No warehouse is selected.  Select at least one.");
    EXPECT_EQ(faultAfter([](Case& p) { p.plantCount = 0; }), "No plant is selected.  Select at least one.");
    EXPECT_EQ(faultAfter([](Case& p) { p.customers(1).sales = 0; }), "No customer has any sales.");
    EXPECT_EQ(faultAfter([](Case& p) { p.customerCount = 0; }), "No customer has any sales.");
}

TEST(WareloNetwork, NamesTheShortfall) {
    EXPECT_EQ(faultAfter([](Case& p) {
                  p.plants(1).capacity = 1000.5;
                  p.customers(1).sales = 1234567;
              }),
              "The capacity of the selected plants does not suffice.  Capacity: 1,000.5 cwt. a year.  Sales: "
              "1,234,567. cwt. a year.  Shortfall: 1,233,566.5 cwt. a year.");
    EXPECT_NE(faultAfter([](Case& p) { p.plants(1).capacity = 0; }).find("Capacity: 0"), std::string::npos);
    EXPECT_EQ(faultAfter([](Case& p) { p.plants(1).capacity = 10; }), "");
    EXPECT_NE(faultAfter([](Case& p) { p.plants(1).capacity = 9.9999; }), "");
}

TEST(WareloNetwork, NamesTheFigureThatIsWrong) {
    EXPECT_EQ(faultAfter([](Case& p) { p.capitalCost = -1; }), "The capital cost is negative: -1.");
    EXPECT_EQ(faultAfter([](Case& p) { p.productValue = 2E+12; }),
              "The product value is too large: 2000000000000.");
    EXPECT_EQ(faultAfter([](Case& p) { p.inventoryExponent = 1.01; }),
              "The exponent of the inventory function is above 1: 1.01.");
    EXPECT_EQ(faultAfter([](Case& p) { p.plants(1).capacity = -5; }),
              "Plant 1 (P): its capacity is negative: -5.");
    EXPECT_EQ(faultAfter([](Case& p) { p.warehouses(1).storage = -.5; }),
              "Warehouse 1 (W): its storage rate is negative: -.5.");
    EXPECT_EQ(faultAfter([](Case& p) { p.customers(1).sales = -1; }),
              "Customer 1 (C): its sales is negative: -1.");
    EXPECT_EQ(faultAfter([](Case& p) { p.customers(1).x = 91; }),
              "Customer 1 (C): its latitude is no latitude: 91.");
    EXPECT_EQ(faultAfter([](Case& p) { p.warehouses(1).y = -361; }),
              "Warehouse 1 (W): its longitude is no longitude: -361.");
}

TEST(WareloNetwork, WantsASizeOfOrdersThatCost) {
    EXPECT_EQ(faultAfter([](Case& p) { p.warehouses(1).stockOrderProcessing = 1; }),
              "Warehouse 1 (W): its stock orders cost something and have no size.");
    EXPECT_EQ(faultAfter([](Case& p) { p.warehouses(1).customerOrderProcessing = 1; }),
              "Warehouse 1 (W): its customer orders cost something and have no size.");
    EXPECT_EQ(faultAfter([](Case& p) {
                  p.warehouses(1).stockOrderProcessing = 1;
                  p.warehouses(1).stockOrderSize = .5;
              }),
              "");
}

TEST(WareloNetwork, PassesOverWhatIsNotSelected) {
    EXPECT_EQ(faultAfter([](Case& p) {
                  p.plantCount = p.warehouseCount = 2;
                  p.plants(2).capacity = -5;
                  p.warehouses(2).stockOrderProcessing = 7;
              }),
              "");
}

TEST(WareloNetwork, HoldsSelectedRowsWithWhatACwtCosts) {
    Case problem = freeCase();
    problem.plantCount = problem.warehouseCount = 2;
    problem.customerCount = 3;
    problem.plants(2) = {
        .x = 41, .y = 80, .location = "Q", .capacity = 50, .productionCost = 7, .selection = mark};
    problem.plants(1).capacity = 0;
    problem.warehouses(2) = problem.warehouses(1);
    problem.warehouses(1).selection = "";
    problem.warehouses(2).handling = .25;
    problem.warehouses(2).localDelivery = 2;
    problem.warehouses(2).storage = .1;
    problem.customers(3) = {.x = 40, .y = 81, .sales = 4, .location = "D"};
    problem.warehouseCustomerFixed = 3;
    problem.plantWarehouseFixed = 1;
    problem.capitalCost = 10;
    problem.productValue = 5;
    problem.inventoryConstant = 2;
    problem.inventoryExponent = .5;
    const Network network = networkOf(problem);
    ASSERT_EQ(network.plants.size(), 1U);
    EXPECT_EQ(network.plants[0].row, 2);
    EXPECT_EQ(network.capacity(), 50);
    ASSERT_EQ(network.warehouses.size(), 1U);
    EXPECT_EQ(network.warehouses[0].row, 2);
    EXPECT_DOUBLE_EQ(network.warehouses[0].inventoryRate, 2 * 5 * (.1 + .1));
    EXPECT_DOUBLE_EQ(network.inventoryCost(0, 16), 2 * 4);
    EXPECT_EQ(network.inventoryCost(0, 0), 0);
    ASSERT_EQ(network.customers.size(), 2U);
    EXPECT_EQ(network.customers[1].row, 3);
    EXPECT_EQ(network.sales(), 14);
    EXPECT_DOUBLE_EQ(network.supplyCostOf(0, 0), 8);
    EXPECT_DOUBLE_EQ(network.deliveryCostOf(0, 0), 2.25);
    EXPECT_DOUBLE_EQ(network.deliveryCostOf(0, 1), 3.25);
}

} // namespace
} // namespace vantore::warelo
