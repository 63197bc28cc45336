#include <gtest/gtest.h>

#include <cmath>

#include "demand/FORECAST/method.h"
#include "tests/support/error_of.h"

namespace vantore::forecast {
namespace {

using vantore::tests::errorOf;

/// A problem with all constants .5, errors over all periods behind the initial ones, two periods ahead.
Problem problemOf(Model model, int initialPeriods, int seasonalLength, std::initializer_list<double> values) {
    Problem problem;
    problem.model = model;
    problem.initialPeriods = initialPeriods;
    problem.seasonalLength = seasonalLength;
    problem.search = "N";
    problem.levelConstant = problem.trendConstant = problem.seasonalConstant = .5;
    problem.forecastPeriods = 2;
    for (const double value : values) problem.periods(++problem.dataPeriods).value = value;
    problem.errorPeriods = problem.dataPeriods - initialPeriods;
    return problem;
}

TEST(LevelOnly, StartsFromTheMeanAndRunsThroughTheInitialPeriods) {
    // Forecasts 20, 15, 17.5, 23.75, 31.875; errors 16.25 and -11.875.
    const Forecast result = forecast(problemOf(Model::Level, 3, 0, {10, 20, 30, 40, 20}));
    EXPECT_EQ(result.series.fitted(1), 20);
    EXPECT_EQ(result.series.fitted(2), 15);
    EXPECT_EQ(result.series.fitted(3), 17.5);
    EXPECT_EQ(result.series.fitted(4), 23.75);
    EXPECT_EQ(result.series.fitted(5), 31.875);
    EXPECT_EQ(result.errors.mad, 14.0625);
    EXPECT_EQ(result.errors.bias, 2.1875);
    EXPECT_DOUBLE_EQ(result.errors.rmse, std::sqrt(202.5390625));
    EXPECT_EQ(result.series.fitted(6), 25.9375);
    EXPECT_EQ(result.series.fitted(7), 25.9375);
    EXPECT_EQ(result.series.y(7), 25.9375);
}

TEST(LevelTrend, StartsFromTheLeastSquaresLine) {
    // The line through 10, 12, 14 has slope 2 and reaches 14. Then levels 18 and 19.5, trends 3 and 2.25.
    const Forecast result = forecast(problemOf(Model::LevelTrend, 3, 0, {10, 12, 14, 20, 18}));
    EXPECT_EQ(result.series.trend(3), 2);
    EXPECT_EQ(result.series.level(2), 12);
    EXPECT_EQ(result.series.level(3), 14);
    EXPECT_EQ(result.series.fitted(4), 16);
    EXPECT_EQ(result.series.trend(4), 3);
    EXPECT_EQ(result.series.fitted(5), 21);
    EXPECT_EQ(result.series.level(5), 19.5);
    EXPECT_EQ(result.errors.mad, 3.5);
    EXPECT_EQ(result.errors.bias, .5);
    EXPECT_DOUBLE_EQ(result.errors.rmse, std::sqrt(12.5));
    EXPECT_EQ(result.series.fitted(6), 21.75);
    EXPECT_EQ(result.series.fitted(7), 24);
    EXPECT_EQ(result.series.seasonal(5), 0);
}

TEST(LevelSeasonal, StartsFromTheLastSeasonsIndices) {
    // Mean 7, last season's mean 8: indices .5, 1.5, .5, levels 7 / 1.5 and 14.
    const Forecast result = forecast(problemOf(Model::LevelSeasonal, 4, 2, {8, 4, 12, 4, 9, 6}));
    EXPECT_EQ(result.series.seasonal(2), .5);
    EXPECT_EQ(result.series.seasonal(3), 1.5);
    EXPECT_EQ(result.series.level(3), 7 / 1.5);
    EXPECT_EQ(result.series.level(4), 14);
    EXPECT_EQ(result.series.fitted(5), 21);
    EXPECT_EQ(result.series.level(5), 10);
    EXPECT_DOUBLE_EQ(result.series.seasonal(5), 1.2);
    EXPECT_EQ(result.series.fitted(6), 5);
    EXPECT_EQ(result.series.level(6), 11);
    EXPECT_DOUBLE_EQ(result.series.seasonal(6), 3.0 / 11 + .25);
    EXPECT_EQ(result.errors.mad, 6.5);
    EXPECT_EQ(result.errors.bias, -5.5);
    EXPECT_DOUBLE_EQ(result.series.fitted(7), 13.2);
    EXPECT_DOUBLE_EQ(result.series.fitted(8), 5.75);
    EXPECT_EQ(result.series.trend(6), 0);
}

TEST(LevelTrendSeasonal, StartsFromTheLineAndTheIndicesAroundIt) {
    // Mean 11, slope 2; the last season's line ends at 15 + 2 x 1 / 2 = 16: indices 1 / 3, 9 / 7, 3 / 4.
    const Forecast result = forecast(problemOf(Model::LevelTrendSeasonal, 4, 2, {10, 4, 18, 12, 18, 10}));
    EXPECT_DOUBLE_EQ(result.series.seasonal(2), 1.0 / 3);
    EXPECT_DOUBLE_EQ(result.series.seasonal(3), 9.0 / 7);
    EXPECT_EQ(result.series.seasonal(4), .75);
    EXPECT_DOUBLE_EQ(result.series.level(4), 56.0 / 3);
    EXPECT_DOUBLE_EQ(result.series.level(3), 12 / (9.0 / 7));
    EXPECT_DOUBLE_EQ(result.series.fitted(5), 186.0 / 7);
    EXPECT_DOUBLE_EQ(result.series.level(5), 52.0 / 3);
    EXPECT_NEAR(result.series.trend(5), 1.0 / 3, 1E-14);
    EXPECT_DOUBLE_EQ(result.series.seasonal(5), 27.0 / 52 + 9.0 / 14);
    EXPECT_NEAR(result.series.fitted(6), 13.25, 1E-13);
    EXPECT_NEAR(result.series.level(6), 15.5, 1E-13);
    EXPECT_NEAR(result.series.trend(6), -.75, 1E-13);
    EXPECT_NEAR(result.errors.bias, ((18 - 186.0 / 7) + (10 - 13.25)) / 2, 1E-13);
    EXPECT_NEAR(result.series.fitted(7), 14.75 * (27.0 / 52 + 9.0 / 14), 1E-12);
    EXPECT_NEAR(result.series.fitted(8), 14 * (10.0 / 31 + .375), 1E-12);
}

TEST(Decomposition, IsTheLineTimesTheIndexOfOneSeasonBefore) {
    // The line through 4, 4, 8, 8 is 2 + 1.6 t: 3.6, 5.2, 6.8, 8.4, then 10, 11.6, 13.2.
    Problem problem = problemOf(Model::Decomposition, 2, 2, {4, 4, 8, 8});
    problem.forecastPeriods = 3;
    const Forecast result = forecast(problem);
    EXPECT_DOUBLE_EQ(result.line.intercept, 2);
    EXPECT_DOUBLE_EQ(result.line.slope, 1.6);
    EXPECT_DOUBLE_EQ(result.series.seasonal(1), 10.0 / 9);
    EXPECT_DOUBLE_EQ(result.series.seasonal(4), 20.0 / 21);
    EXPECT_DOUBLE_EQ(result.series.fitted(3), 68.0 / 9);
    EXPECT_DOUBLE_EQ(result.series.fitted(4), 84.0 / 13);
    EXPECT_DOUBLE_EQ(result.series.fitted(5), 200.0 / 17);
    EXPECT_DOUBLE_EQ(result.series.fitted(6), 232.0 / 21);
    EXPECT_DOUBLE_EQ(result.series.fitted(7), 264.0 / 17);
    EXPECT_DOUBLE_EQ(result.errors.bias, (4.0 / 9 + 20.0 / 13) / 2);
    EXPECT_EQ(result.constants.level, 0);
}

TEST(ErrorMeasures, AreOverTheLastPeriodsButDividedByAllThatWereAskedFor) {
    Problem problem = problemOf(Model::LevelTrend, 3, 0, {10, 12, 14, 20, 18}); // errors 4 and -3
    problem.errorPeriods = 1;
    EXPECT_EQ(forecast(problem).errors.mad, 3);
    problem.errorPeriods = 14;
    EXPECT_EQ(forecast(problem).errors.mad, .5);
    EXPECT_DOUBLE_EQ(forecast(problem).errors.rmse, std::sqrt(25.0 / 14));
    problem.errorPeriods = 0;
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::DivisionByZero);
}

TEST(Constants, AreHundredthsIn32BitsAndNever0) {
    EXPECT_EQ(inUse({35, 0, 100}).level, static_cast<double>(.35F));
    EXPECT_EQ(inUse({35, 0, 100}).trend, static_cast<double>(.01F));
    EXPECT_EQ(inUse({35, 0, 100}).seasonal, 1);
    Problem problem = problemOf(Model::LevelTrend, 3, 0, {10, 12, 14, 20, 18});
    problem.levelConstant = .29; // 100 x .29 is a little less than 29
    problem.trendConstant = 0;
    EXPECT_EQ(forecast(problem).constants.level, static_cast<double>(.29F));
    EXPECT_EQ(forecast(problem).constants.trend, static_cast<double>(.01F));
}

TEST(ForecastPeriods, Of0CountAs1) {
    Problem problem = problemOf(Model::LevelTrend, 3, 0, {10, 12, 14, 20, 18});
    problem.forecastPeriods = 0;
    EXPECT_EQ(forecast(problem).setting.lastForecast(), 6);
    EXPECT_EQ(forecast(problem).series.fitted(6), 21.75);
}

TEST(Tables, EndAtPeriod250) {
    Problem problem = problemOf(Model::Level, 3, 0, {10, 12, 14, 20, 18});
    problem.forecastPeriods = 245;
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber{});
    problem.forecastPeriods = 246;
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::SubscriptOutOfRange);
    problem.forecastPeriods = 1;
    problem.initialPeriods = 251;
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::SubscriptOutOfRange);
    problem.initialPeriods = 1E+15;
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::Overflow);
}

TEST(RunTimeErrors, TellWhatCannotBeDivided) {
    EXPECT_EQ(errorOf([] {
                  forecast(problemOf(Model::Level, 0, 0, {1, 2, 3, 4, 5}));
              }),
              ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] {
                  forecast(problemOf(Model::LevelTrend, 1, 0, {1, 2, 3, 4, 5}));
              }),
              ErrorNumber::DivisionByZero);
    // A 0 in the last season is an index of 0.
    EXPECT_EQ(errorOf([] {
                  forecast(problemOf(Model::LevelSeasonal, 4, 2, {1, 2, 0, 4, 5}));
              }),
              ErrorNumber::DivisionByZero);
    // The line through -1, 0, 1 is 0 in period 2.
    EXPECT_EQ(errorOf([] {
                  forecast(problemOf(Model::Decomposition, 2, 1, {-1, 0, 1}));
              }),
              ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] {
                  forecast(problemOf(Model::Decomposition, 2, 3, {4, 4, 8, 8}));
              }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] {
                  forecast(problemOf(Model::Level, 2, 0, {1E+308, 1E+308, 3, 4, 5}));
              }),
              ErrorNumber::Overflow);
}

TEST(Seasons, NeedTwoInitialPeriodsMoreThanTheirLength) {
    Problem problem = problemOf(Model::LevelSeasonal, 6, 4, {1});
    EXPECT_FALSE(seasonIsTooLong(problem));
    problem.initialPeriods = 5;
    EXPECT_TRUE(seasonIsTooLong(problem));
    problem.model = Model::LevelTrend;
    EXPECT_FALSE(seasonIsTooLong(problem));
    problem.model = Model::Decomposition;
    EXPECT_FALSE(seasonIsTooLong(problem));
}

} // namespace
} // namespace vantore::forecast
