#include "simulator/SCSIM/listing.h"

#include <gtest/gtest.h>

namespace vantore::scsim {
namespace {

using Lines = std::vector<std::string>;

Problem garden() {
    Problem problem;
    problem.title = "Garden";
    problem.seed = 4711;
    problem.years = 3;
    problem.price = 99.5;
    problem.averageDemand = 120;
    problem.demandDeviation = 30;
    problem.growth = 2.5;
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = month / 10.0;
    problem.profileGrowth = 4;
    for (int day = 1; day <= daysPerYear; ++day) problem.dayProfile(day) = day;
    for (const Level level : allLevels) {
        const double k = 100 * (1 + static_cast<double>(level));
        LevelData& data = problem.levels(level);
        data = {k + 1, k + 2, k + 3, k + 4, k + 5, k + 6, k + 7, k + 8};
        data.smoothingConstant = .2;
        data.averagedDays = 12;
        data.forecastFrequency = 30;
        data.reorderQuantity = 700;
        data.reorderPoint = 620;
        data.orderInterval = 7;
        data.targetLevel = 900;
        data.targetDays = 20;
        data.reviewTime = 5;
        problem.lanes(level) = {k + 9, k + 10, k + 11};
    }
    problem.levels(Level::Distributor).forecast = ForecastMethod::MovingAverage;
    problem.levels(Level::Distributor).policy = Policy::PeriodicReview;
    problem.levels(Level::Distributor).reviewParameters = Parameters::Specified;
    problem.levels(Level::Warehouse).forecast = ForecastMethod::Specified;
    problem.levels(Level::Warehouse).policy = Policy::StockToDemand;
    problem.factory = {27.5, 800, .4, 4, .6, 11.25};
    return problem;
}

Lines part(const Problem& problem, std::size_t first, std::size_t count) {
    const Lines all = listingOf(problem).lines();
    const auto at = [&](std::size_t i) {
        return all.begin() + static_cast<std::ptrdiff_t>(std::min(i, all.size()));
    };
    return {at(first), at(first + count)};
}

TEST(Listing, BeginsWithTheRunAndGeneratedDemand) {
    EXPECT_EQ(part(garden(), 0, 20), (Lines{"                              SIMULATION DATABASE",
                                            "",
                                            "Title: Garden",
                                            "",
                                            "Initialization",
                                            "4711               Seed value",
                                            "3                  Length of simulation, years",
                                            "99.5               Selling price, $/unit",
                                            "",
                                            "Customer demand pattern",
                                            "Generate daily demand",
                                            "120                Average daily demand, units",
                                            "30                 Standard deviation of daily demand, units",
                                            "2.5                Annual demand growth increment, %",
                                            "Monthly seasonal indices",
                                            "  Month   Index   Month   Index   Month   Index   Month   Index",
                                            "      1      .1       4      .4       7      .7      10       1",
                                            "      2      .2       5      .5       8      .8      11     1.1",
                                            "      3      .3       6      .6       9      .9      12     1.2",
                                            ""}));
}

TEST(Listing, HoldsTheTypicalYearAMonthAColumn) {
    Problem problem = garden();
    problem.demandSource = DemandSource::Specified;
    problem.dayProfile(31) = 12345;
    problem.dayProfile(61) = 123456;
    problem.dayProfile(91) = -.4;
    const Lines lines = part(problem, 9, 37);
    EXPECT_EQ(lines[1], "Specify daily demand");
    EXPECT_EQ(lines[2], "4                  Annual growth increment, %");
    EXPECT_EQ(lines[3], "Monthly specified demand");
    EXPECT_EQ(lines[4],
              "Month      1      2      3      4      5      6      7      8      9     10     11     12");
    EXPECT_EQ(lines[5], "Day");
    EXPECT_EQ(lines[6],
              "    1      1 12,345 ******      0    121    151    181    211    241    271    301    331");
    EXPECT_EQ(lines[35],
              "   30     30     60     90    120    150    180    210    240    270    300    330    360");
    EXPECT_EQ(lines[36], "");
}

TEST(Listing, TellsOfEachLevelTheMethodAndPolicyInUse) {
    EXPECT_EQ(part(garden(), 20, 55),
              (Lines{"Retailer/Level 1",
                     "Product item data",
                     "101                Item value in inventory, $/unit",
                     "102                Customer order filling cost, $/unit",
                     "103                Purchase order processing cost, $/order",
                     "104                Inventory carrying cost, %/year",
                     "105                Average customer order fill time, days",
                     "106                Customer order fill time standard deviation, days",
                     "107                In-stock probability, %",
                     "108                Back order cost, $/unit",
                     "Forecasting method",
                     "Exponential smoothing",
                     ".2                 Smoothing constant",
                     "Reorder policy",
                     "Reorder point control method",
                     "Calculate inventory control parameters (Q, ROP)",
                     "700                Reorder quantity (Q), units",
                     "620                Reorder point quantity (ROP), units",
                     "",
                     "Distributor/Level 2",
                     "Product item data",
                     "201                Item value in inventory, $/unit",
                     "202                Retailer order filling cost, $/unit",
                     "203                Purchase order processing cost, $/order",
                     "204                Inventory carrying cost, %/year",
                     "205                Average retailer order fill time, days",
                     "206                Retailer order fill time standard deviation, days",
                     "207                In-stock probability, %",
                     "208                Backorder cost, $/unit",
                     "Forecasting method",
                     "Moving average",
                     "12                 Number of periods",
                     "Reorder policy",
                     "Periodic review control method",
                     "Specify inventory control parameters",
                     "7                  Order review interval (T), days",
                     "900                Target level (Max), units",
                     "",
                     "Warehouse/Level 3",
                     "Product item data",
                     "301                Item value in inventory, $/unit",
                     "302                Distributor order filling cost, $/unit",
                     "303                Purchase order processing cost, $/order",
                     "304                Inventory carrying cost, %/year",
                     "305                Average distributor order fill time, days",
                     "306                Distributor order fill time standard deviation, days",
                     "307                In-stock probability, %",
                     "308                Backorder cost, $/unit",
                     "Forecasting method",
                     "Specified forecast",
                     "30                 Forecast frequency, days",
                     "Reorder policy",
                     "Stock-to-demand control method",
                     "20                 Target days of inventory",
                     "5                  Review time in days"}));
}

TEST(Listing, EndsWithTheFactoryAndTheLanes) {
    EXPECT_EQ(part(garden(), 75, 100), (Lines{"",
                                              "Factory/Source",
                                              "27.5               Production cost, $/unit",
                                              "800                Minimum production lot size, units",
                                              ".4                 Warehouse order filling cost, $/unit",
                                              "4                  Average production time, days",
                                              ".6                 Production time standard deviation, days",
                                              "11.25              Purchase cost, $/unit",
                                              "",
                                              "Transportation",
                                              "Transport between Distributor and Retailer",
                                              "109                Transport cost, $/unit",
                                              "110                Average time in-transit, days",
                                              "111                Transit time standard deviation, days",
                                              "Transport between Warehouse and Distributor",
                                              "209                Transport cost, $/unit",
                                              "210                Average time in-transit, days",
                                              "211                Transit time standard deviation, days",
                                              "Transport between Factory and Warehouse",
                                              "309                Transport cost, $/unit",
                                              "310                Average time in-transit, days",
                                              "311                Transit time standard deviation, days"}));
}

TEST(Listing, TellsWhichParametersAreCalculated) {
    Problem problem = garden();
    problem.levels(Level::Distributor).reviewParameters = Parameters::Calculated;
    problem.levels(Level::Retailer).reorderParameters = Parameters::Specified;
    EXPECT_EQ(part(problem, 35, 1), (Lines{"Specify inventory control parameters"}));
    EXPECT_EQ(part(problem, 54, 1), (Lines{"Calculate inventory control parameters (T, Max)"}));
}

} // namespace
} // namespace vantore::scsim
