#include <gtest/gtest.h>

#include "demand/FORECAST/problem.h"
#include "tests/support/error_of.h"

namespace vantore::forecast {
namespace {

using Texts = std::vector<std::string>;
using vantore::tests::errorOf;

Problem sample() {
    Problem problem;
    problem.label = "Paint shops";
    problem.dataPeriods = 5;
    problem.initialPeriods = 3;
    problem.errorPeriods = 2;
    problem.model = Model::LevelTrend;
    problem.search = "N";
    problem.searchIncrement = .1;
    problem.levelConstant = .25;
    problem.trendConstant = .5;
    problem.seasonalLength = 0;
    problem.forecastPeriods = 4;
    problem.periods(1) = {"Jan, early", 101.5};
    problem.periods(2) = {"  Feb ", -3};
    problem.periods(3) = {"", 0};
    problem.periods(4) = {"Apr", 1E+15};
    problem.periods(5) = {"May", .000012};
    return problem;
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

TEST(ForecastFile, HasALineForTheHeadTheCountAndEachPeriod) {
    EXPECT_EQ(written(sample()), "\"Paint shops\",5,3,2,2,\"N\",.1,.25,.5,0,0,4\r\n5\r\n"
                                 "\"Jan, early\",101.5\r\n\"Feb\",-3\r\n\" \",0\r\n\"Apr\",1E+15\r\n"
                                 "\"May\",.000012\r\n");
}

TEST(ForecastFile, ReadsBackWhatItWrote) {
    const Problem problem = readFrom(written(sample()));
    EXPECT_EQ(problem.model, Model::LevelTrend);
    EXPECT_EQ(problem.periods(4).value, 1E+15);
    EXPECT_EQ(written(problem), written(sample()));
    EXPECT_EQ(written(readFrom(skeleton())), skeleton());
}

TEST(ForecastFile, RefusesCountsOutsideItsTable) {
    const std::string head = "\"A\",5,3,2,2,\"N\",.1,.25,.5,0,0,4\r\n";
    EXPECT_EQ(errorOf([&] { readFrom(head + "201\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { readFrom(head + "-1\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { readFrom("\"A\",1000000,3,2,2"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { readFrom(head + "2\r\n\"Jan\",1\r\n"); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(readFrom(head + "0\r\n").dataPeriods, 0);
}

TEST(ForecastFile, TakesAnUnknownModelNumberForNone) {
    for (const char* number : {"0", "6", "-1", "1E+300", "many"})
        EXPECT_EQ(readFrom("\"A\",0,3,2," + std::string(number) + ",\"N\",.1,.25,.5,0,0,4\r\n0\r\n").model,
                  Model::None);
    EXPECT_EQ(readFrom("\"A\",0,3,2,5,\"N\",.1,.25,.5,0,0,4\r\n0\r\n").model, Model::Decomposition);
}

TEST(Rounding, IsToWholePeriodsAndToHundredths) {
    EXPECT_EQ(roundedCount(7.5), 8);
    EXPECT_EQ(roundedCount(-.4), 0);
    EXPECT_EQ(roundedConstant(.126), .13);
    EXPECT_EQ(roundedConstant(.004), 0);
}

TEST(ForecastValidation, PassesAGoodProblem) {
    EXPECT_EQ(validate(sample()).texts, Texts{});
    EXPECT_FALSE(validate(sample()).stops);
}

TEST(ForecastValidation, WarnsInItsOrderAndGoesOn) {
    Problem problem = sample();
    problem.dataPeriods = 4;
    problem.initialPeriods = 2;
    problem.seasonalLength = 1;
    problem.forecastPeriods = 0;
    problem.model = Model::LevelTrendSeasonal;
    problem.levelConstant = problem.trendConstant = 0;
    problem.label = "A, B, C";
    const Verdict verdict = validate(problem);
    EXPECT_EQ(
        verdict.texts,
        (Texts{"Initialization period must be at least 2 periods longer than the seasonal cycle.",
               "Initialization period should be at least 3 periods.",
               "A minimum of 5 data points should be used.", "Forecast at least one period into the future.",
               "Problem label has a comma (,) in it.  Remove it.",
               "Problem label has a comma (,) in it.  Remove it.",
               "NOTICE: The level smoothing constant is 0.", "NOTICE: The trend smoothing constant is 0.",
               "NOTICE: The seasonal smoothing constant is 0."}));
    EXPECT_FALSE(verdict.stops);
}

TEST(ForecastValidation, StopsAtADoubleQuote) {
    Problem problem = sample();
    problem.forecastPeriods = 51;
    problem.periods(5).label = "M\"y";
    EXPECT_EQ(validate(problem).texts.back(),
              "Period identification has a single quote mark (\") in it.  Remove it.");
    EXPECT_TRUE(validate(problem).stops);
    problem.label = "A,\",";
    EXPECT_EQ(validate(problem).texts,
              (Texts{"No more than 50 future periods can be forecast.",
                     "Problem label has a comma (,) in it.  Remove it.",
                     "Problem label has a double quote mark (\") in it.  Remove it."}));
    EXPECT_TRUE(validate(problem).stops);
}

TEST(ForecastValidation, NoticesOnlyConstantsOfTheModelAndOnlyWithoutASearch) {
    Problem problem = sample();
    problem.label = "Paint";
    problem.levelConstant = problem.trendConstant = 0;
    problem.search = "";
    EXPECT_EQ(validate(problem).texts.size(), 2U);
    problem.model = Model::Level;
    EXPECT_EQ(validate(problem).texts, Texts{"NOTICE: The level smoothing constant is 0."});
    problem.search = "Y";
    EXPECT_EQ(validate(problem).texts, Texts{});
    problem.search = "N";
    problem.model = Model::None;
    EXPECT_EQ(validate(problem).texts, Texts{});
}

TEST(ForecastValidation, BoundsTheIncrementOfASearchWithASmoothingModel) {
    Problem problem = sample();
    problem.label = "Paint";
    problem.search = "y";
    problem.searchIncrement = 0;
    EXPECT_EQ(validate(problem).texts, Texts{"Search increment must be greater than 0."});
    EXPECT_TRUE(validate(problem).stops);
    problem.searchIncrement = 1.01;
    EXPECT_EQ(validate(problem).texts, Texts{"Search increment must not be greater than 1."});
    EXPECT_FALSE(validate(problem).stops);
    problem.searchIncrement = -1;
    problem.model = Model::Decomposition;
    problem.seasonalLength = 1;
    EXPECT_EQ(validate(problem).texts, Texts{});
}

TEST(ForecastValidation, NeedsASeasonalLengthForSeasons) {
    Problem problem = sample();
    problem.label = "Paint";
    problem.seasonalConstant = .5;
    for (const Model model : {Model::LevelSeasonal, Model::LevelTrendSeasonal, Model::Decomposition}) {
        problem.model = model;
        EXPECT_EQ(validate(problem).texts,
                  Texts{"Seasonal length must not be zero (0) if a seasonal model type is selected."});
        EXPECT_TRUE(validate(problem).stops);
    }
}

} // namespace
} // namespace vantore::forecast
