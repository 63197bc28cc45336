#include "simulator/SCSIM/stock.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

TEST(Stock, CountsWhatIsOnOrderIntoItsPosition) {
    const Stock stock = {.onHand = 10, .backOrders = 3, .onOrder = 40};
    EXPECT_EQ(stock.position(), 47);
    EXPECT_EQ(stock.missingTo(100), 53);
}

TEST(Receiving, TakesReceiptsOffTheOrdersDownTo0) {
    Stock stock = {.onHand = 5, .onOrder = 30};
    receive(stock, 20);
    EXPECT_EQ(stock.onHand, 25);
    EXPECT_EQ(stock.onOrder, 10);
    receive(stock, 10);
    EXPECT_EQ(stock.onOrder, 0);
    receive(stock, 7);
    EXPECT_EQ(stock.onHand, 42);
    EXPECT_EQ(stock.onOrder, 0);
}

TEST(Filling, FillsBackOrdersAndDemandWhereStockSuffices) {
    Stock stock = {.onHand = 25, .backOrders = 5};
    const Filling filling = fill(stock, 20);
    EXPECT_EQ(filling.shipped, 25);
    EXPECT_EQ(filling.stockOut, 0);
    EXPECT_FALSE(filling.untouched);
    EXPECT_EQ(stock.onHand, 0);
    EXPECT_EQ(stock.backOrders, 0);
}

/// 18 on hand fill the 5 back orders and 13 of 20; short by the measure that takes the whole stock is 2.
TEST(Filling, ShipsAllOfAStockThatCoversTheBackOrdersAlone) {
    Stock stock = {.onHand = 18, .backOrders = 5};
    const Filling filling = fill(stock, 20);
    EXPECT_EQ(filling.shipped, 18);
    EXPECT_EQ(filling.stockOut, 2);
    EXPECT_EQ(stock.onHand, 0);
    EXPECT_EQ(stock.backOrders, 7);
    stock = {.onHand = 18, .backOrders = 5};
    EXPECT_EQ(fill(stock, 15).stockOut, 0);
    EXPECT_EQ(stock.backOrders, 2);
}

TEST(Filling, ShipsAllOfAStockThatDoesntCoverTheBackOrders) {
    Stock stock = {.onHand = 4, .backOrders = 10};
    const Filling filling = fill(stock, 6);
    EXPECT_EQ(filling.shipped, 4);
    EXPECT_EQ(filling.stockOut, 2);
    EXPECT_EQ(stock.backOrders, 12);
    EXPECT_EQ(stock.onHand, 0);
    stock = {.onHand = 4, .backOrders = 10};
    EXPECT_EQ(fill(stock, 3).stockOut, 0);
}

TEST(Filling, LeavesAStockThatEqualsTheBackOrders) {
    Stock stock = {.onHand = 10, .backOrders = 10};
    const Filling filling = fill(stock, 6);
    EXPECT_EQ(filling.shipped, 0);
    EXPECT_EQ(filling.stockOut, 6);
    EXPECT_TRUE(filling.untouched);
    EXPECT_EQ(stock.onHand, 10);
    EXPECT_EQ(stock.backOrders, 16);
}

TEST(Filling, FillsEqualBackOrdersOnADayWithoutDemand) {
    Stock stock = {.onHand = 10, .backOrders = 10};
    EXPECT_EQ(fill(stock, 0).shipped, 10);
    EXPECT_EQ(stock.onHand, 0);
    EXPECT_EQ(stock.backOrders, 0);
}

TEST(Filling, OverflowsBeyondTheRange) {
    Stock stock = {.backOrders = 1E308};
    EXPECT_EQ(tests::errorOf([&] { fill(stock, 1E308); }), ErrorNumber::Overflow);
    stock = {.onHand = 1E308};
    EXPECT_EQ(tests::errorOf([&] { receive(stock, 1E308); }), ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore::scsim
