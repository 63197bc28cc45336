#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

#include "demand/FORECAST/method.h"
#include "tests/demand/FORECAST/plain_loops.h"
#include "tests/support/error_of.h"

namespace vantore::forecast {
namespace {

using tests::plainForecast;
using tests::PlainResult;
using vantore::tests::errorOf;

enum class Values { Positive, WithZeros, AnySign, Constant, Tiny, Huge, AnySize, SmallWhole, Count };

double randomValue(std::mt19937& random, Values kind) {
    std::uniform_real_distribution<double> unit(0, 1);
    const double u = unit(random);
    switch (kind) {
    case Values::Positive: return std::round(1000 * (.5 + u)) / 10;
    case Values::WithZeros: return unit(random) < .08 ? 0 : 100 * (.5 + u);
    case Values::AnySign: return 200 * u - 100;
    case Values::Constant: return 42;
    case Values::Tiny: return u * 1E-306;
    case Values::Huge: return (unit(random) < .9 ? 1E+153 : 1E+307) * (u - .3);
    case Values::AnySize: return std::pow(10, 600 * u - 300) * (unit(random) < .5 ? -1 : 1);
    default: return std::floor(5 * u) - 1;
    }
}

int between(std::mt19937& random, int low, int high) {
    return std::uniform_int_distribution<int>(low, high)(random);
}

Problem randomProblem(std::mt19937& random) {
    Problem problem;
    problem.model = static_cast<Model>(between(random, 1, 4));
    problem.dataPeriods = between(random, 0, 40);
    problem.initialPeriods = between(random, 0, 9) == 0 ? between(random, -2, 45) : between(random, 3, 16);
    problem.seasonalLength = between(random, 0, 9) == 0 ? between(random, -2, 14) : between(random, 1, 6);
    problem.seasonalLength = std::min(problem.seasonalLength, problem.initialPeriods - 2);
    problem.errorPeriods = between(random, 0, 9) == 0 ? between(random, -3, 60) : between(random, 1, 20);
    problem.forecastPeriods = between(random, -1, 12);
    problem.search = "Y";
    problem.searchIncrement =
        std::array{.1, .1, .13, .25, .5, 1.0, 1.5}.at(static_cast<std::size_t>(between(random, 0, 6)));
    const auto kind = static_cast<Values>(between(random, 0, static_cast<int>(Values::Count) - 1));
    for (int t = 1; t <= problem.dataPeriods; ++t) problem.periods(t).value = randomValue(random, kind);
    return problem;
}

bool sameValues(const Series::Values& a, const Series::Values& b) {
    return std::equal(a.span().begin(), a.span().end(), b.span().begin());
}

std::string difference(const Forecast& ours, const PlainResult& plain) {
    std::string names;
    if (!sameValues(ours.series.y, plain.series.y)) names += " y";
    if (!sameValues(ours.series.level, plain.series.level)) names += " level";
    if (!sameValues(ours.series.trend, plain.series.trend)) names += " trend";
    if (!sameValues(ours.series.seasonal, plain.series.seasonal)) names += " seasonal";
    if (!sameValues(ours.series.fitted, plain.series.fitted)) names += " fitted";
    if (!sameValues(ours.series.error, plain.series.error)) names += " error";
    if (ours.constants.level != plain.constants.level) names += " alpha";
    if (ours.constants.trend != plain.constants.trend) names += " beta";
    if (ours.constants.seasonal != plain.constants.seasonal) names += " gamma";
    if (ours.errors.mad != plain.errors.mad || ours.errors.bias != plain.errors.bias ||
        ours.errors.rmse != plain.errors.rmse)
        names += " measures";
    return names;
}

/// What differs between both ways: results to the last bit, or the number of the error.
std::string differenceOn(const Problem& problem) {
    Forecast ours;
    PlainResult plain;
    const ErrorNumber ourError = errorOf([&] { ours = forecast(problem); });
    const ErrorNumber plainError = errorOf([&] { plain = plainForecast(problem); });
    if (ourError != plainError)
        return "error " + std::to_string(static_cast<int>(ourError)) + ", by plain loops " +
               std::to_string(static_cast<int>(plainError));
    return plainError == ErrorNumber{} ? difference(ours, plain) : "";
}

/// A grid whose first combination is fine and a later one isn't.
bool failsLate(const Problem& problem) {
    Problem first = problem;
    first.search = "N";
    first.levelConstant = first.trendConstant = first.seasonalConstant = 0;
    return errorOf([&] { tests::plainSearch(problem); }) != ErrorNumber{} &&
           errorOf([&] { plainForecast(first); }) == ErrorNumber{};
}

TEST(Search, IsThePlainLoopsToTheLastBitOnRandomSeries) {
    std::mt19937 random(20240607);
    int solved = 0;
    int failedLate = 0;
    for (int i = 0; i < 5000; ++i) {
        const Problem problem = randomProblem(random);
        ASSERT_EQ(differenceOn(problem), "") << "series " << i;
        solved += errorOf([&] { forecast(problem); }) == ErrorNumber{} ? 1 : 0;
        failedLate += failsLate(problem) ? 1 : 0;
    }
    EXPECT_GT(solved, 1000);
    EXPECT_GT(failedLate, 100);
}

Problem salesWithSeason(Model model, int periods, double increment) {
    Problem problem;
    problem.model = model;
    problem.dataPeriods = periods;
    problem.initialPeriods = 8;
    problem.errorPeriods = periods - 10;
    problem.seasonalLength = 4;
    problem.forecastPeriods = 4;
    problem.search = "y";
    problem.searchIncrement = increment;
    std::mt19937 random(7);
    for (int t = 1; t <= periods; ++t)
        problem.periods(t).value = (100 + 3 * t) * (t % 4 == 0 ? .6 : 1.1) + between(random, -9, 9);
    return problem;
}

TEST(Search, IsThePlainLoopsOnTheFinestGridOfEachModel) {
    for (const Model model : {Model::Level, Model::LevelTrend, Model::LevelSeasonal})
        EXPECT_EQ(differenceOn(salesWithSeason(model, 200, .01)), "");
    EXPECT_EQ(differenceOn(salesWithSeason(Model::LevelTrendSeasonal, 24, .01)), "");
}

TEST(Search, FitsNoCombinationOfATameSeriesAgain) {
    for (const Model model :
         {Model::Level, Model::LevelTrend, Model::LevelSeasonal, Model::LevelTrendSeasonal}) {
        const Problem problem = salesWithSeason(model, 40, .1);
        Setting setting{.model = model, .dataPeriods = 40, .initialPeriods = 12, .seasonalLength = 4};
        setting.errorPeriods = 12;
        Series series;
        for (int t = 1; t <= 40; ++t) series.y(t) = problem.periods(t).value;
        const Best best = search(series, setting, ConstantGrid(model, 10));
        EXPECT_EQ(best.redone, 0) << nameOf(model);
        EXPECT_LT(best.squared, 1E+5) << nameOf(model);
    }
}

TEST(Search, MeetsADivisionBy0InTheLastCombinationsToo) {
    // Behind a datum of 0 an alpha of 1 leaves a level of 0. Such combinations come last and never win.
    Problem problem = salesWithSeason(Model::LevelSeasonal, 40, .1);
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber{});
    problem.periods(30).value = 0;
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::DivisionByZero);
    problem.searchIncrement = .3; // alpha up to .9
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber{});
}

Problem threeConstants(Model model, int seasonalLength, std::initializer_list<double> values) {
    Problem problem;
    problem.model = model;
    problem.initialPeriods = 3;
    problem.seasonalLength = seasonalLength;
    problem.search = "Y";
    problem.searchIncrement = .5;
    problem.errorPeriods = -1; // no error counts
    problem.forecastPeriods = -1;
    for (const double value : values) problem.periods(++problem.dataPeriods).value = value;
    return problem;
}

TEST(Search, MeetsADivisionBy0InAMiddleCombinationsLastPeriod) {
    // alpha .5: the level of period 4 is .5 x -1 + .5 x 3 = 1; gamma .5: its index is .5 x -1 + .5 x 1 = 0.
    const Problem problem = threeConstants(Model::LevelSeasonal, 1, {3, 3, 3, -1, 5});
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(differenceOn(problem), "");
}

TEST(Search, MeetsAnErrorBeyondTheRangeInAMiddleCombination) {
    // Period 6 is forecast as alpha (1 - alpha) x 1.7E+308: most at alpha .5, and too far from -1.5E+308.
    const Problem problem = threeConstants(Model::Level, 0, {0, 0, 0, 1.7E+308, 0, -1.5E+308});
    EXPECT_EQ(errorOf([&] { forecast(problem); }), ErrorNumber::Overflow);
    EXPECT_EQ(differenceOn(problem), "");
}

TEST(Search, TakesTheFirstOfEqualCombinations) {
    // A constant series is fitted without an error by every constant.
    Problem problem = salesWithSeason(Model::LevelTrendSeasonal, 20, .25);
    for (int t = 1; t <= 20; ++t) problem.periods(t).value = 64;
    const Forecast result = forecast(problem);
    EXPECT_EQ(result.errors.rmse, 0);
    EXPECT_EQ(result.constants.level, static_cast<double>(.01F));
    EXPECT_EQ(result.constants.trend, static_cast<double>(.01F));
    EXPECT_EQ(result.constants.seasonal, static_cast<double>(.01F));
}

TEST(Search, KeepsNoCombinationWhoseSumIsNotBelow1E38) {
    Problem problem = salesWithSeason(Model::Level, 20, .1);
    for (int t = 1; t <= 20; ++t) problem.periods(t).value *= t % 2 == 0 ? 1E+30 : -1E+30;
    EXPECT_EQ(tests::plainSearch(problem).squared, 1E+38);
    EXPECT_EQ(forecast(problem).constants.level, static_cast<double>(.01F));
}

TEST(ConstantGrid, RunsAlphaOutermostAndGammaInnermost) {
    const ConstantGrid grid(Model::LevelTrendSeasonal, 30);
    EXPECT_EQ(grid.size(), 64);
    EXPECT_EQ(grid.at(0), (Hundredths{0, 0, 0}));
    EXPECT_EQ(grid.at(1), (Hundredths{0, 0, 30}));
    EXPECT_EQ(grid.at(4), (Hundredths{0, 30, 0}));
    EXPECT_EQ(grid.at(16), (Hundredths{30, 0, 0}));
    EXPECT_EQ(grid.at(63), (Hundredths{90, 90, 90}));
}

TEST(ConstantGrid, HasOnlyTheConstantsOfTheModel) {
    EXPECT_EQ(ConstantGrid(Model::Level, 10).size(), 11);
    EXPECT_EQ(ConstantGrid(Model::LevelTrend, 10).size(), 121);
    EXPECT_EQ(ConstantGrid(Model::LevelSeasonal, 10).at(12), (Hundredths{10, 0, 10}));
    EXPECT_EQ(ConstantGrid(Model::LevelTrendSeasonal, 10).size(), 1331);
    EXPECT_EQ(ConstantGrid(Model::LevelTrendSeasonal, 1).size(), 1030301);
    EXPECT_EQ(ConstantGrid(Model::LevelTrend, 150).size(), 1);
    EXPECT_EQ(ConstantGrid(Model::Level, 0).size(), 0);
    EXPECT_EQ(ConstantGrid(Model::Level, -10).size(), 0);
}

} // namespace
} // namespace vantore::forecast
