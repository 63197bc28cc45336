#include "simulator/SCSIM/forecast.h"

#include <gtest/gtest.h>

#include <deque>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

/// Forecasts of a level whose demand is told day by day.
class ForecastTest : public testing::Test {
  protected:
    explicit ForecastTest(Level level = Level::Retailer) : level_(level) { problem.years = 1; }

    LevelData& data() { return problem.levels(level_); }
    double forecastFor(int day) { return days.levels(level_).salesForecast(day); }

    void run(int first, int last) {
        for (int day = first; day <= last; ++day) forecasts.forecast(level_, day);
    }

    Problem problem;
    Days days;
    std::vector<ForecastQuestion> asked;
    std::deque<double> answers;
    Answers answering = {[this](const ForecastQuestion& question) -> std::optional<double> {
                             asked.push_back(question);
                             if (answers.empty()) return std::nullopt;
                             const double answer = answers.front();
                             answers.pop_front();
                             return answer;
                         },
                         {}};
    Forecasts forecasts{problem, answering, days};

  private:
    Level level_;
};

/// Starting from 1 unit: 1 + .5 x (9 - 1) = 5, then 5 + .5 x (13 - 5) = 9.
TEST_F(ForecastTest, SmoothsFromAFirstForecastOf1) {
    data().forecast = ForecastMethod::ExponentialSmoothing;
    data().smoothingConstant = .5;
    days.customerDemand(-359) = 9;
    days.customerDemand(-358) = 13;
    run(-359, -358);
    EXPECT_EQ(forecastFor(-359), 1);
    EXPECT_EQ(forecastFor(-358), 5);
    EXPECT_EQ(forecastFor(-357), 9);
}

TEST_F(ForecastTest, AveragesTheLastDaysOnceThereAreEnough) {
    data().forecast = ForecastMethod::MovingAverage;
    data().averagedDays = 3;
    for (int day = -359; day <= -354; ++day) days.customerDemand(day) = day + 360; // 1, 2, 3, ...
    run(-359, -354);
    // Three days have passed after day -357, but the first average is that of day -356.
    EXPECT_EQ(forecastFor(-356), 1);
    EXPECT_EQ(forecastFor(-355), 3); // (2 + 3 + 4) / 3
    EXPECT_EQ(forecastFor(-354), 4);
    EXPECT_EQ(forecastFor(-353), 5);
}

TEST_F(ForecastTest, RoundsTheFirstDayOfAnAverageWithAFraction) {
    data().forecast = ForecastMethod::MovingAverage;
    data().averagedDays = 2.25;
    for (int day = -359; day <= -356; ++day) days.customerDemand(day) = 9;
    run(-359, -356);
    EXPECT_EQ(forecastFor(-355), 18 / 2.25); // days -357.25 to -356
}

TEST_F(ForecastTest, StaysAt1WhereTheAverageTakesMoreDaysThanPass) {
    data().forecast = ForecastMethod::MovingAverage;
    data().averagedDays = 1000;
    days.customerDemand.fill(50);
    run(-359, 360);
    EXPECT_EQ(forecastFor(361), 1);
}

TEST_F(ForecastTest, AsksForSpecifiedForecastsEverySoManyDays) {
    data().forecast = ForecastMethod::Specified;
    data().forecastFrequency = 180;
    answers = {95, 100, 110.5, -8};
    run(-359, 360);
    ASSERT_EQ(asked.size(), 4U); // none on the last day
    EXPECT_EQ(asked[0].kind, ForecastQuestion::Kind::Initial);
    EXPECT_EQ(asked[1].kind, ForecastQuestion::Kind::Period);
    EXPECT_EQ(asked[1].day, -179);
    EXPECT_EQ(asked[2].day, 1);
    EXPECT_EQ(asked[3].day, 181);
    EXPECT_EQ(forecastFor(-359), 95);
    EXPECT_EQ(forecastFor(-180), 95);
    EXPECT_EQ(forecastFor(-179), 100);
    EXPECT_EQ(forecastFor(0), 100);
    EXPECT_EQ(forecastFor(1), 110.5);
    EXPECT_EQ(forecastFor(181), -8);
    EXPECT_EQ(forecastFor(360), -8);
    EXPECT_EQ(forecastFor(361), 0);
}

TEST_F(ForecastTest, StopsWhereNoForecastIsGiven) {
    data().forecast = ForecastMethod::Specified;
    data().forecastFrequency = 100;
    answers = {95};
    EXPECT_THROW(run(-359, 360), RunStopped);
    EXPECT_EQ(asked.size(), 2U);
}

/// Both levels count together: on day -260 the retailer raises the count to 2, so that the distributor's turn
/// is day -160, when the retailer comes first again.
TEST_F(ForecastTest, SharesTheCountOfForecastsAmongTheLevels) {
    problem.levels(Level::Retailer).forecast = ForecastMethod::Specified;
    problem.levels(Level::Distributor).forecast = ForecastMethod::Specified;
    problem.levels(Level::Retailer).forecastFrequency = 100;
    problem.levels(Level::Distributor).forecastFrequency = 100;
    answers.assign(100, 50);
    for (int day = -359; day <= 360; ++day)
        for (const Level level : {Level::Retailer, Level::Distributor}) forecasts.forecast(level, day);
    std::vector<int> daysAsked;
    for (const ForecastQuestion& question : asked) {
        daysAsked.push_back(question.day);
        EXPECT_EQ(question.level, daysAsked.size() == 2 ? Level::Distributor : Level::Retailer);
    }
    EXPECT_EQ(daysAsked, (std::vector<int>{-359, -359, -259, -159, -59, 41, 141, 241, 341}));
}

TEST_F(ForecastTest, AsksOnceWhereTheFrequencyIs0) {
    data().forecast = ForecastMethod::Specified;
    answers = {70};
    run(-359, 360);
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0].kind, ForecastQuestion::Kind::Constant);
    EXPECT_EQ(forecastFor(-359), 70);
    EXPECT_EQ(forecastFor(361), 70);
}

TEST_F(ForecastTest, MeasuresTodaysErrorFromDay349BeforeTheStartOn) {
    data().forecast = ForecastMethod::Specified;
    answers = {70};
    days.customerDemand.fill(66);
    run(-359, -350);
    EXPECT_EQ(forecasts.demandDeviation(Level::Retailer), 0);
    run(-349, -349);
    EXPECT_DOUBLE_EQ(forecasts.demandDeviation(Level::Retailer), 4);
    days.customerDemand(-348) = 77.5;
    run(-348, -348);
    EXPECT_DOUBLE_EQ(forecasts.demandDeviation(Level::Retailer), 7.5); // the ten days before don't count
    EXPECT_EQ(forecasts.demandDeviation(Level::Distributor), 0);
}

TEST_F(ForecastTest, OverflowsBeyondTheRange) {
    data().smoothingConstant = 10;
    days.customerDemand(-359) = 1E308;
    EXPECT_EQ(tests::errorOf([&] { run(-359, -359); }), ErrorNumber::Overflow);
    data().forecast = ForecastMethod::Specified;
    days.customerDemand(-349) = 1E200; // its square is out of range
    answers = {1};
    run(-359, -350);
    EXPECT_EQ(tests::errorOf([&] { run(-349, -349); }), ErrorNumber::Overflow);
}

TEST(DemandSeen, IsTheOrdersOfTheLevelBelow) {
    Days days;
    EXPECT_EQ(&demandSeenBy(days, Level::Retailer), &days.customerDemand);
    EXPECT_EQ(&demandSeenBy(days, Level::Distributor), &days.levels(Level::Retailer).orderQuantity);
    EXPECT_EQ(&demandSeenBy(days, Level::Warehouse), &days.levels(Level::Distributor).orderQuantity);
}

} // namespace
} // namespace vantore::scsim
