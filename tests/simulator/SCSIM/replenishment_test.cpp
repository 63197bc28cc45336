#include "simulator/SCSIM/replenishment.h"

#include <gtest/gtest.h>

#include "simulator/SCSIM/forecast.h"
#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

using tests::errorOf;

/// 100 units a day with an error of 15, ordered at $25 and held at 20 % of $100: the economic quantity is
/// sqrt(2 x 100 x 360 x 25 / 20) = 300.
class ReplenishmentTest : public testing::Test {
  protected:
    ReplenishmentTest() {
        data.orderProcessingCost = 25;
        data.carryingCost = 20;
        data.itemValue = 100;
        data.inStockProbability = 99;
    }

    Replenishment of(Level level) { return {level, data, answers, safety}; }

    LevelData data;
    Outlook outlook = {.forecast = 100, .deviation = 15, .leadTime = 4, .lossLeadTime = 4};
    SafetyFactor safety;
    Stock stock;
    LevelDays days;
    std::vector<OrdersQuestion> asked;
    int answersOfYes = 0;
    Answers answers = {{}, [this](const OrdersQuestion& question) {
                           asked.push_back(question);
                           return static_cast<int>(asked.size()) <= answersOfYes;
                       }};
};

// Reorder point

class SpecifiedReorderPoint : public ReplenishmentTest {
  protected:
    SpecifiedReorderPoint() {
        data.reorderParameters = Parameters::Specified;
        data.reorderQuantity = 40.5;
        data.reorderPoint = 100;
    }
};

TEST_F(SpecifiedReorderPoint, OrdersUntilThePositionIsntBelowThePoint) {
    stock = {.onHand = 25, .backOrders = 5, .onOrder = 0};
    of(Level::Distributor).order(-359, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 80); // 20, 60, 100
    EXPECT_EQ(days.onOrder(-359), 80);
    EXPECT_EQ(days.orderQuantity(-359), 80);
    EXPECT_EQ(days.orderCount(-359), 2);
}

TEST_F(SpecifiedReorderPoint, RoundsTheQuantityAtTheRetailerAlone) {
    of(Level::Retailer).order(1, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(1), 3 * 41);
    stock = {};
    of(Level::Warehouse).order(2, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(2), 3 * 40);
}

TEST_F(SpecifiedReorderPoint, AsksAfter100000Orders) {
    data.reorderQuantity = 0;
    EXPECT_THROW(of(Level::Retailer).order(1, outlook, stock, days), RunStopped);
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].level, Level::Retailer);
    EXPECT_EQ(asked[0].parameters, Parameters::Specified);
    EXPECT_EQ(days.orderCount(1), 100000); // the one that was asked about isn't placed
}

TEST_F(SpecifiedReorderPoint, AsksAgainAfter100000MoreInOneLoopAndAtOnceInTheNext) {
    data.reorderQuantity = 1;
    data.reorderPoint = 250000;
    answersOfYes = 3;
    Replenishment replenishment = of(Level::Warehouse);
    replenishment.order(1, outlook, stock, days);
    EXPECT_EQ(asked.size(), 2U);
    EXPECT_EQ(days.orderCount(1), 250000);
    stock.onHand -= 1;
    replenishment.order(2, outlook, stock, days);
    EXPECT_EQ(asked.size(), 3U);
    EXPECT_EQ(days.orderCount(2), 1);
    stock.onHand -= 1;
    EXPECT_THROW(replenishment.order(3, outlook, stock, days), RunStopped);
    EXPECT_EQ(asked.size(), 4U);
}

class CalculatedReorderPoint : public ReplenishmentTest {
  protected:
    CalculatedReorderPoint() { data.reorderParameters = Parameters::Calculated; }
};

/// Over 4 days the error is 30. A loss of 300 x .01 / 30 = .1 is nearest to .1019, z .8965:
/// ROP = Int(400 + 26.895).
TEST_F(CalculatedReorderPoint, ProtectsTheLeadTime) {
    Replenishment replenishment = of(Level::Distributor);
    replenishment.order(-348, outlook, stock, days);
    EXPECT_EQ(replenishment.calculated().reorderQuantity, 300);
    EXPECT_EQ(replenishment.calculated().reorderPoint, 426);
    EXPECT_FALSE(replenishment.calculated().targetLevel.has_value());
    EXPECT_EQ(safety.z, .8965);
    EXPECT_EQ(days.orderQuantity(-348), 600);
    EXPECT_EQ(days.orderCount(-348), 2);
}

TEST_F(CalculatedReorderPoint, BeginsAfterDay349BeforeTheStart) {
    Replenishment replenishment = of(Level::Retailer);
    replenishment.order(-349, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 0);
    EXPECT_FALSE(replenishment.calculated().reorderPoint.has_value());
}

TEST_F(CalculatedReorderPoint, RoundsTheQuantityOrderedAndCutsTheOneShown) {
    data.orderProcessingCost = 25.1; // Q = 300.599
    Replenishment replenishment = of(Level::Warehouse);
    replenishment.order(1, outlook, stock, days);
    EXPECT_EQ(replenishment.calculated().reorderQuantity, 300);
    EXPECT_EQ(days.orderQuantity(1), 2 * 301);
}

TEST_F(CalculatedReorderPoint, NeedsNoSafetyWithoutError) {
    outlook.deviation = 0;
    Replenishment replenishment = of(Level::Retailer);
    safety.z = 2;
    replenishment.order(1, outlook, stock, days);
    EXPECT_EQ(replenishment.calculated().reorderPoint, 400);
    EXPECT_EQ(safety.z, 0);
}

TEST_F(CalculatedReorderPoint, KeepsTheSafetyFactorWhereTheTableHasNone) {
    data.inStockProbability = 100;
    safety.z = 2; // left by another level
    Replenishment replenishment = of(Level::Retailer);
    replenishment.order(1, outlook, stock, days);
    EXPECT_EQ(replenishment.calculated().reorderPoint, 460);
}

TEST_F(CalculatedReorderPoint, IsAtLeast1WithAQuantityOfAtLeast1) {
    outlook.forecast = 0;
    outlook.deviation = 0;
    Replenishment replenishment = of(Level::Retailer);
    replenishment.order(1, outlook, stock, days);
    EXPECT_EQ(replenishment.calculated().reorderPoint, 1);
    EXPECT_EQ(replenishment.calculated().reorderQuantity, 1);
    EXPECT_EQ(days.orderQuantity(1), 1);
}

TEST_F(CalculatedReorderPoint, TellsItsValuesWhenItAsks) {
    data.orderProcessingCost = 0; // Q = 1
    outlook.forecast = 1E6;
    EXPECT_THROW(of(Level::Warehouse).order(1, outlook, stock, days), RunStopped);
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].parameters, Parameters::Calculated);
    EXPECT_EQ(asked[0].reorderPoint, 4000093); // a loss of .01 / 30 is nearest to .0003, z 3.1
    EXPECT_EQ(asked[0].orderQuantity, 1);
}

/// 2 x 100 x 360 x 25 / (.00001 / 100 x 100) = 1.8E11; the cost of 0 counts as .00001.
TEST_F(CalculatedReorderPoint, TakesAlmostNothingForACostOf0) {
    data.carryingCost = 0;
    Replenishment replenishment = of(Level::Distributor);
    replenishment.order(1, outlook, stock, days);
    EXPECT_EQ(replenishment.calculated().reorderQuantity, 424264);
    data.carryingCost = 20;
    data.itemValue = 0;
    Replenishment other = of(Level::Warehouse);
    other.order(2, outlook, stock, days);
    EXPECT_EQ(other.calculated().reorderQuantity, 948683); // sqrt(1.8E6 / (.2 x .00001))
}

TEST_F(CalculatedReorderPoint, TakesANegativeCostForNothingAtTheRetailerAlone) {
    data.carryingCost = -20;
    Replenishment retailer = of(Level::Retailer);
    retailer.order(1, outlook, stock, days);
    EXPECT_EQ(retailer.calculated().reorderQuantity, 424264);
    EXPECT_EQ(errorOf([&] { of(Level::Distributor).order(1, outlook, stock, days); }),
              ErrorNumber::InvalidProcedureCall);
}

TEST_F(CalculatedReorderPoint, HasNoQuantityWhereTheHoldingCostIsLostInRounding) {
    data.carryingCost = 1E-200;
    data.itemValue = 1E-200;
    EXPECT_EQ(errorOf([&] { of(Level::Distributor).order(1, outlook, stock, days); }),
              ErrorNumber::DivisionByZero);
}

// Periodic review

class CalculatedReview : public ReplenishmentTest {
  protected:
    CalculatedReview() {
        data.policy = Policy::PeriodicReview;
        data.reviewParameters = Parameters::Calculated;
        data.orderInterval = 7;
        data.targetLevel = 5000;
        outlook.leadTime = outlook.lossLeadTime = 6;
    }

    void runTo(Replenishment& replenishment, int last) {
        for (int day = -359; day <= last; ++day) replenishment.order(day, outlook, stock, days);
    }
};

TEST_F(CalculatedReview, ShowsAMaxOf0AndTheIntervalAsItWasUntilTheFirstReview) {
    Replenishment replenishment = of(Level::Retailer);
    runTo(replenishment, -359);
    EXPECT_EQ(replenishment.calculated().targetLevel, 0);
    EXPECT_FALSE(replenishment.calculated().orderInterval.has_value());
    runTo(replenishment, -348);
    EXPECT_EQ(replenishment.calculated().orderInterval, 7);
}

/// T = 300 / 100. Over 3 + 6 days the error is 45; a loss of 3 / 45 = .0667 is nearest to .0652, z 1.1264:
/// Max = Int(900 + 50.688 + .5).
TEST_F(CalculatedReview, OrdersUpToTheMaxOfTheReviewBefore) {
    stock.backOrders = 30;
    Replenishment replenishment = of(Level::Retailer);
    runTo(replenishment, -346);
    EXPECT_EQ(stock.onOrder, 0);
    runTo(replenishment, -345);
    EXPECT_EQ(days.orderQuantity(-345), 30); // the back orders alone
    EXPECT_EQ(replenishment.calculated().targetLevel, 951);
    EXPECT_EQ(replenishment.calculated().orderInterval, 3);
    for (const int day : {-344, -343}) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 30);
    replenishment.order(-342, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(-342), 951);
    EXPECT_EQ(days.orderCount(-342), 1);
    EXPECT_EQ(days.onOrder(-342), 981);
}

/// Over 3 + 1 days the loss is .1 and z .8965, with which 9 days are protected: Int(900 + 40.3425 + .5).
TEST_F(CalculatedReview, SetsItsLossTargetByALeadTimeOfItsOwn) {
    outlook.lossLeadTime = 1;
    Replenishment replenishment = of(Level::Distributor);
    runTo(replenishment, -345);
    EXPECT_EQ(replenishment.calculated().targetLevel, 940);
}

TEST_F(CalculatedReview, RoundsTheDaysToTheNextReviewAndShowsThemWhole) {
    outlook.forecast = 123.25; // Q = 333.05, T = 2.70226...
    outlook.deviation = 0;
    Replenishment replenishment = of(Level::Warehouse);
    runTo(replenishment, -345);
    EXPECT_NEAR(replenishment.calculated().orderInterval.value(), 2.70226, 1E-5);
    EXPECT_EQ(replenishment.calculated().targetLevel, 1073); // 123.25 x 8.70226 + .5 = 1073.05
    for (int day = -344; day <= -342; ++day) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(days.orderCount(-343), 0);
    EXPECT_EQ(days.orderQuantity(-342), 1073);
}

TEST_F(CalculatedReview, ReviewsEachDayAtTheLeast) {
    data.orderProcessingCost = 0;
    outlook.deviation = 0;
    Replenishment replenishment = of(Level::Retailer);
    runTo(replenishment, -344);
    EXPECT_EQ(replenishment.calculated().orderInterval, 1);
    EXPECT_EQ(replenishment.calculated().targetLevel, 700);
    EXPECT_EQ(days.orderQuantity(-344), 700);
}

TEST_F(CalculatedReview, ReplacesAForecastOf0AndNeverReviewsAgain) {
    outlook.forecast = 0;
    stock.backOrders = 5;
    Replenishment replenishment = of(Level::Retailer);
    runTo(replenishment, -345);
    EXPECT_EQ(days.salesForecast(-345), .00001);
    EXPECT_DOUBLE_EQ(replenishment.calculated().orderInterval.value(), 100000);
    stock.backOrders = 500;
    for (int day = -344; day <= 7200; ++day) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 5);
}

class SpecifiedReview : public ReplenishmentTest {
  protected:
    SpecifiedReview() {
        data.policy = Policy::PeriodicReview;
        data.reviewParameters = Parameters::Specified;
        data.orderInterval = 10.9;
        data.targetLevel = 500.9;
    }
};

TEST_F(SpecifiedReview, OrdersUpToTheTargetEveryInterval) {
    Replenishment replenishment = of(Level::Distributor);
    for (int day = -359; day <= -345; ++day) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(-350), 500);
    EXPECT_EQ(stock.onOrder, 500);
    stock.backOrders = 20;
    for (int day = -344; day <= -335; ++day) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(-340), 20);
    EXPECT_EQ(days.orderCount(-340), 1);
    EXPECT_FALSE(replenishment.calculated().targetLevel.has_value());
}

TEST_F(SpecifiedReview, OrdersNothingAboveTheTarget) {
    stock.onHand = 501;
    Replenishment replenishment = of(Level::Distributor);
    for (int day = -359; day <= 0; ++day) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 0);
}

TEST_F(SpecifiedReview, NeverOrdersWithAnIntervalOf0) {
    data.orderInterval = .9;
    Replenishment replenishment = of(Level::Retailer);
    for (int day = -359; day <= 360; ++day) replenishment.order(day, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 0);
}

TEST_F(SpecifiedReview, OrdersOnTheFirstDayWithAnIntervalOf1) {
    data.orderInterval = 1;
    of(Level::Retailer).order(-359, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(-359), 500);
}

// Stock to demand

class StockToDemand : public ReplenishmentTest {
  protected:
    StockToDemand() {
        data.policy = Policy::StockToDemand;
        data.targetDays = 7.255;
        data.reviewTime = 5;
    }

    double firstOrderDay(Level level) {
        stock = {};
        Replenishment replenishment = of(level);
        for (int day = -359; day <= 360; ++day) {
            replenishment.order(day, outlook, stock, days);
            if (stock.onOrder > 0) return day;
        }
        return 0;
    }
};

TEST_F(StockToDemand, OrdersUpToSoManyDaysOfForecast) {
    EXPECT_EQ(firstOrderDay(Level::Retailer), -355);
    EXPECT_EQ(days.orderQuantity(-355), 725);
    EXPECT_EQ(days.orderCount(-355), 1);
}

TEST_F(StockToDemand, ReviewsAgainAfterTheReviewTime) {
    Replenishment replenishment = of(Level::Warehouse);
    for (int day = -359; day <= -351; ++day) replenishment.order(day, outlook, stock, days);
    stock.backOrders = 11;
    replenishment.order(-350, outlook, stock, days);
    EXPECT_EQ(days.orderQuantity(-350), 11);
}

TEST_F(StockToDemand, CutsAReviewTimeButTheRetailersWhichMeetsNoDay) {
    data.reviewTime = 5.5;
    EXPECT_EQ(firstOrderDay(Level::Retailer), 0);
    EXPECT_EQ(firstOrderDay(Level::Distributor), -355);
    data.reviewTime = 5.3;
    EXPECT_EQ(firstOrderDay(Level::Warehouse), -355);
}

TEST_F(StockToDemand, MissesAFirstReviewOnTheFirstDay) {
    data.reviewTime = 1;
    EXPECT_EQ(firstOrderDay(Level::Retailer), 0);
}

TEST_F(ReplenishmentTest, OrdersNothingWithoutAPolicy) {
    data.policy = Policy::None;
    of(Level::Retailer).order(-345, outlook, stock, days);
    data.policy = Policy::ReorderPoint;
    data.reorderParameters = Parameters::None;
    of(Level::Retailer).order(-345, outlook, stock, days);
    data.policy = Policy::PeriodicReview;
    of(Level::Retailer).order(-345, outlook, stock, days);
    EXPECT_EQ(stock.onOrder, 0);
}

TEST_F(ReplenishmentTest, OverflowsBeyondTheRange) {
    data.reorderParameters = Parameters::Specified;
    data.reorderPoint = 1E308;
    data.reorderQuantity = 9E307;
    stock.backOrders = 1E308;
    EXPECT_EQ(errorOf([&] { of(Level::Retailer).order(1, outlook, stock, days); }), ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore::scsim
