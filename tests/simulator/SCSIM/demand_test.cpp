#include "simulator/SCSIM/demand.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

Problem evenDemand() {
    Problem problem;
    problem.years = 2;
    problem.averageDemand = 100;
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = 1;
    return problem;
}

DaySeries demandOf(const Problem& problem, double seed = 1) {
    UniformGenerator uniforms(seed);
    DaySeries demand;
    generateDemand(problem, uniforms, demand);
    return demand;
}

TEST(GeneratedDemand, IsTheAverageWithoutNoiseGrowthAndSeason) {
    const DaySeries demand = demandOf(evenDemand());
    for (int day = -359; day <= 3 * 360; ++day) EXPECT_EQ(demand(day), 100) << day;
    EXPECT_EQ(demand(-360), 0);
    EXPECT_EQ(demand(3 * 360 + 1), 0);
}

/// 10 per cent of 3600 in a year is one unit a day.
TEST(GeneratedDemand, GrowsByTheSameStepEachDayAndReachesTheAverageOnDay0) {
    Problem problem = evenDemand();
    problem.averageDemand = 3600;
    problem.growth = 10;
    const DaySeries demand = demandOf(problem);
    EXPECT_EQ(demand(-359), 3241);
    EXPECT_EQ(demand(0), 3600);
    EXPECT_EQ(demand(1), 3601);
    EXPECT_EQ(demand(360), 3960);
    EXPECT_EQ(demand(1080), 4680);
}

/// A day's place in its year is often a rounding error off; only the first days of months tell.
TEST(GeneratedDemand, FollowsTheMonths) {
    Problem problem = evenDemand();
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = month;
    const DaySeries demand = demandOf(problem);
    for (int year = -1; year <= 2; ++year)
        for (int month = 1; month <= monthsPerYear; ++month)
            for (const int day : {3, 15, 28})
                EXPECT_EQ(demand(year * 360 + (month - 1) * 30 + day), 100 * month);
}

TEST(GeneratedDemand, KeepsTheIndexOfTheDayBeforeOnTheLastDayOfAYear) {
    Problem problem = evenDemand();
    problem.seasonalIndices(12) = 3;
    const DaySeries demand = demandOf(problem);
    EXPECT_EQ(demand(0), 300);
    EXPECT_EQ(demand(359), 300);
    EXPECT_EQ(demand(360), 300);
}

/// 31 / 360 of a year times 360 is a rounding error below 31 or not; whichever it is, the day takes the index
/// of a month that it touches.
TEST(GeneratedDemand, TakesEveryIndexWithoutAGap) {
    Problem problem = evenDemand();
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = month;
    const DaySeries demand = demandOf(problem);
    for (int day = -358; day <= 1080; ++day) {
        const double change = demand(day) - demand(day - 1);
        EXPECT_TRUE(change == 0 || change == 100 || change == -1100) << day;
    }
}

TEST(GeneratedDemand, AddsNoiseThatNeitherSeasonNorGrowthScales) {
    Problem problem = evenDemand();
    problem.demandDeviation = 5;
    problem.seasonalIndices(1) = 2;
    const DaySeries demand = demandOf(problem, 9);
    UniformGenerator uniforms(9);
    for (int day = -359; day <= -330; ++day)
        EXPECT_EQ(demand(day), std::floor(200 + 5 * normalDeviate(uniforms))) << day;
}

TEST(GeneratedDemand, IsNeverBelow0) {
    Problem problem = evenDemand();
    problem.averageDemand = 1;
    problem.demandDeviation = 50;
    const DaySeries demand = demandOf(problem);
    int zeros = 0;
    for (int day = -359; day <= 1080; ++day) {
        EXPECT_GE(demand(day), 0);
        zeros += demand(day) == 0;
    }
    EXPECT_GT(zeros, 500);
}

TEST(GeneratedDemand, TakesTwoUniformsADay) {
    UniformGenerator uniforms(5);
    DaySeries demand;
    generateDemand(evenDemand(), uniforms, demand);
    UniformGenerator counted(5);
    for (int i = 0; i < 2 * 4 * 360; ++i) counted.next();
    EXPECT_EQ(uniforms.next(), counted.next());
}

TEST(GeneratedDemand, OverflowsWhereItHasNoFiniteValue) {
    Problem problem = evenDemand();
    problem.averageDemand = 1E308;
    problem.seasonalIndices(1) = 10;
    EXPECT_EQ(tests::errorOf([&] { demandOf(problem); }), ErrorNumber::Overflow);
}

Problem typicalYear() {
    Problem problem = evenDemand();
    problem.demandSource = DemandSource::Specified;
    for (int day = 1; day <= daysPerYear; ++day) problem.dayProfile(day) = day + .75;
    return problem;
}

TEST(SpecifiedDemand, RepeatsTheTypicalYearWithoutFractions) {
    UniformGenerator uniforms(5);
    DaySeries demand;
    generateDemand(typicalYear(), uniforms, demand);
    for (int day = 1; day <= daysPerYear; ++day)
        for (const int year : {-1, 0, 1, 2}) EXPECT_EQ(demand(year * 360 + day), day);
    EXPECT_EQ(demand(1081), 0);
    EXPECT_EQ(uniforms.next(), UniformGenerator(5).next());
}

/// A mean of 720 and 50 per cent a year are one unit a day: day 1 has one step; the year of warming up starts
/// a year of growth lower and ends at none.
TEST(SpecifiedDemand, GrowsFromDay1OnAndUpToDay0) {
    Problem problem = typicalYear();
    problem.dayProfile.fill(720);
    problem.profileGrowth = 50;
    const DaySeries demand = demandOf(problem);
    EXPECT_EQ(demand(-359), 720 - 360 + 1);
    EXPECT_EQ(demand(0), 720);
    EXPECT_EQ(demand(1), 721);
    EXPECT_EQ(demand(360), 1080);
    EXPECT_EQ(demand(1080), 1800);
}

TEST(SpecifiedDemand, IsNeverBelow0) {
    Problem problem = typicalYear();
    problem.dayProfile(7) = -3;
    const DaySeries demand = demandOf(problem);
    EXPECT_EQ(demand(7), 0);
    EXPECT_EQ(demand(7 - 360), 0);
}

} // namespace
} // namespace vantore::scsim
