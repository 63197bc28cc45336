#include "simulator/SCSIM/problem.h"

#include <gtest/gtest.h>

#include "shell/base/text.h"
#include "tests/simulator/SCSIM/random_problem.h"
#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

using tests::errorOf;

/// A file in which every item differs from its neighbours.
Problem pumps() {
    Problem problem;
    problem.title = "Pumps, north";
    problem.seed = 4711;
    problem.years = 3;
    problem.averageDemand = 100;
    problem.demandDeviation = 20;
    problem.growth = 2.5;
    problem.price = 99.5;
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = month / 10.0;
    problem.profileGrowth = 4;
    for (int day = 1; day <= daysPerYear; ++day) problem.dayProfile(day) = 1000 + day;
    LevelData& retailer = problem.levels(Level::Retailer);
    retailer = {62, 1.25, 40, 24, 1, .5, 95, 9, ForecastMethod::MovingAverage, .2, 10, 30};
    retailer.policy = Policy::PeriodicReview;
    retailer.reorderParameters = Parameters::Specified;
    retailer.reorderQuantity = 700;
    retailer.reorderPoint = 620;
    retailer.reviewParameters = Parameters::Specified;
    retailer.orderInterval = 14;
    retailer.targetLevel = 2500;
    retailer.targetDays = 21;
    retailer.reviewTime = 7;
    problem.levels(Level::Warehouse).smoothingConstant = .3;
    problem.levels(Level::Warehouse).averagedDays = 12;
    problem.factory = {27.5, 800, .4, 4, .6, 11.25};
    problem.lanes(Level::Retailer) = {1.75, 2, .25};
    problem.lanes(Level::Distributor) = {1.2, 3, 0};
    problem.lanes(Level::Warehouse) = {.9, 4, 1};
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

TEST(ProblemFile, HoldsALineForEachGroupOfItems) {
    const std::vector<std::string> file = lines(written(pumps()));
    ASSERT_EQ(file.size(), 389U);
    EXPECT_EQ(file[0], "\"Pumps, north\"");
    EXPECT_EQ(file[1], "4711,3,100,20,2.5,99.5");
    EXPECT_EQ(file[2], ".1");
    EXPECT_EQ(file[13], "1.2");
    EXPECT_EQ(file[14], "4");
    EXPECT_EQ(file[15], "1001");
    EXPECT_EQ(file[374], "1360");
    EXPECT_EQ(file[375], "62,1.25,40,24,1,.5,95,9");
    EXPECT_EQ(file[376], "0,.2,1,10,0,30");
    EXPECT_EQ(file[377], "0,0,1,700,620,1,0,1,14,2500,1,0,21,7");
    EXPECT_EQ(file[378], "0,0,0,0,0,0,0,0");
    EXPECT_EQ(file[379], "1,0,0,0,0,0");
    EXPECT_EQ(file[380], "1,1,0,0,0,0,0,0,0,0,0,0,0,0");
    EXPECT_EQ(file[384], "27.5,800,.4,4,.6,11.25");
    EXPECT_EQ(file[385], "1,.3,0,12,0,30");
    EXPECT_EQ(file[386], "1.75,2,.25");
    EXPECT_EQ(file[387], "1.2,3,0");
    EXPECT_EQ(file[388], ".9,4,1");
}

TEST(ProblemFile, ReadsWhatItWrote) {
    std::mt19937 random(1);
    for (int i = 0; i < 50; ++i) {
        const std::string text = written(tests::randomProblem(random, mostYears));
        EXPECT_EQ(written(readFrom(text)), text);
    }
}

TEST(ProblemFile, DropsTheSpareForecastLine) {
    const std::string text = written(pumps());
    const std::string other = replaced(text, "1,.3,0,12,0,30", "0,7,1,8,1,9");
    ASSERT_NE(other, text);
    EXPECT_EQ(written(readFrom(other)), text);
}

TEST(ProblemFile, EndsTooSoonAtEveryCut) {
    const std::string text = written(pumps());
    for (std::size_t end = text.size() - 4; end > 0; end -= std::min<std::size_t>(end, 97))
        EXPECT_EQ(errorOf([&] { readFrom(text.substr(0, end)); }), ErrorNumber::InputPastEnd) << end;
}

std::string withPolicyLine(const std::string& line) {
    return replaced(written(pumps()), "0,0,1,700,620,1,0,1,14,2500,1,0,21,7", line);
}

TEST(ProblemFile, TakesTheLastOptionOfAGroupThatIsFlagged) {
    const LevelData data = readFrom(withPolicyLine("1,1,1,0,0,1,1,1,0,0,1,1,0,0")).levels(Level::Retailer);
    EXPECT_EQ(data.policy, Policy::StockToDemand);
    EXPECT_EQ(data.reorderParameters, Parameters::Specified);
    EXPECT_EQ(data.reviewParameters, Parameters::Specified);
}

TEST(ProblemFile, ClearsOptionsThatNoFlagOf1Selects) {
    const LevelData data = readFrom(withPolicyLine("2,0,-1,0,0,0,0,x,0,0,0,.5,0,0")).levels(Level::Retailer);
    EXPECT_EQ(data.policy, Policy::None);
    EXPECT_EQ(data.reorderParameters, Parameters::None);
    EXPECT_EQ(data.reviewParameters, Parameters::None);
}

TEST(ProblemFile, LetsTheRepeatedFlagHaveTheLastWord) {
    EXPECT_EQ(
        readFrom(withPolicyLine("0,0,1,0,0,1,0,1,0,0,0,0,0,0")).levels(Level::Retailer).reviewParameters,
        Parameters::None);
    EXPECT_EQ(
        readFrom(withPolicyLine("0,0,1,0,0,1,1,0,0,0,1,0,0,0")).levels(Level::Retailer).reviewParameters,
        Parameters::Specified);
}

TEST(Limits, BelongToControls) {
    EXPECT_EQ(limitOf("txtServLvlD")->least, 50);
    EXPECT_EQ(limitOf("txtServLvlD")->message, "");
    EXPECT_EQ(limitOf("txtAvgFillTimeD")->message, "Retailer order fill time must be at least 1 day.");
    EXPECT_EQ(limitOf("txtTrnsTimeSDDR"), nullptr);
    EXPECT_EQ(limitOf("txtROPR"), nullptr);
}

TEST(Limits, SetSmallerValuesBack) {
    Problem problem = pumps();
    problem.averageDemand = .5;
    problem.demandDeviation = -1;
    problem.levels(Level::Distributor).inStockProbability = 49;
    problem.levels(Level::Retailer).forecastFrequency = 0;
    problem.levels(Level::Warehouse).smoothingConstant = 1.5;
    problem.factory.lotSize = -7;
    problem.factory.purchaseCost = -7;
    problem.lanes(Level::Warehouse).averageTime = 0;
    problem.lanes(Level::Warehouse).timeDeviation = -2;
    problem = withinLimits(problem);
    EXPECT_EQ(problem.averageDemand, 1);
    EXPECT_EQ(problem.demandDeviation, 0);
    EXPECT_EQ(problem.levels(Level::Distributor).inStockProbability, 50);
    EXPECT_EQ(problem.levels(Level::Retailer).forecastFrequency, 1);
    EXPECT_EQ(problem.levels(Level::Warehouse).smoothingConstant, 1.5);
    EXPECT_EQ(problem.factory.lotSize, 1);
    EXPECT_EQ(problem.factory.purchaseCost, -7);
    EXPECT_EQ(problem.lanes(Level::Warehouse).averageTime, 1);
    EXPECT_EQ(problem.lanes(Level::Warehouse).timeDeviation, -2);
}

TEST(Limits, HoldTheRunBetweenOneAndTwentyYears) {
    Problem problem = pumps();
    for (const auto& [typed, kept] : {std::pair{.5, 1.0}, {1.0, 1.0}, {20.0, 20.0}, {20.5, 20.0}}) {
        problem.years = typed;
        EXPECT_EQ(withinLimits(problem).years, kept);
    }
}

} // namespace
} // namespace vantore::scsim
