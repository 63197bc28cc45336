#include "demand/INPOL/plot.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"

namespace vantore::inpol {
namespace {

using tests::errorOf;

/// Figures that rise by one from level to level, so that each curve can be told from the others.
Sensitivity rising() {
    Sensitivity sensitivity;
    sensitivity.productCount = 2;
    for (int level = 1; level <= serviceLevels; ++level)
        sensitivity.rows(2, level) = {.ropInStock = .5 + level / 1000.0,
                                      .ropQ = 0,
                                      .ropAvgInv = 1000.125 + level,
                                      .reorderPoint = 2000.5 + level,
                                      .ropTotal = 60000.0 - level,
                                      .prInStock = .25 + level / 1000.0,
                                      .prAvgInv = 3000.5 + level,
                                      .maxLevel = 4000.5 + level,
                                      .reviewTime = 0,
                                      .prTotal = 70000.0 - level};
    return sensitivity;
}

struct Expected {
    PlottedSystem system;
    PlottedCurve curve;
    const char* title;
    const char* xLabel;
    const char* yLabel;
    double xHigh, yLow, yHigh;
};

TEST(Plots, AreEightCurvesThroughNinetyNinePoints) {
    using enum PlottedSystem;
    using enum PlottedCurve;
    const char* reorder = "REORDER POINT SYSTEM, PRODUCT 2";
    const char* periodic = "PERIODIC REVIEW SYSTEM, PRODUCT 2";
    const char* cost = "Total Cost, $";
    const char* inventory = "Average inventory level";
    // Levels 2 to 100: service 50.2 to 60 and 25.2 to 35 per cent.
    const std::vector<Expected> curves = {
        {ReorderPoint, CostByService, reorder, "Service level, % ( 50.2+)", cost, 9.8, 59900, 59998},
        {ReorderPoint, CostByInventory, reorder, "Average inventory level ( 1002.12+)", cost, 98.005, 59900,
         59998},
        {ReorderPoint, InventoryByOrderPoint, reorder, "Reorder point quantity ( 2002.5+)", inventory, 98,
         1002.125, 1100.125},
        {ReorderPoint, InventoryByService, reorder, "Service level, % ( 50.2+)", inventory, 9.8, 1002.125,
         1100.125},
        {PeriodicReview, CostByService, periodic, "Service level, % ( 25.2+)", cost, 9.8, 69900, 69998},
        {PeriodicReview, CostByInventory, periodic, "Average inventory level ( 3002.5+)", cost, 98, 69900,
         69998},
        {PeriodicReview, InventoryByOrderPoint, periodic, "Max level ( 4002.5+)", inventory, 98, 3002.5,
         3100.5},
        {PeriodicReview, InventoryByService, periodic, "Service level, % ( 25.2+)", inventory, 9.8, 3002.5,
         3100.5}};
    for (const Expected& expected : curves) {
        const ChartData chart = curveOf(rising(), expected.system, 2, expected.curve);
        EXPECT_EQ(chart.title, expected.title);
        EXPECT_EQ(chart.x.label, expected.xLabel);
        EXPECT_EQ(chart.y.label, expected.yLabel);
        EXPECT_EQ(chart.x.low, 0);
        EXPECT_NEAR(chart.x.high, expected.xHigh, 1E-9) << expected.xLabel;
        EXPECT_EQ(chart.y.low, expected.yLow);
        EXPECT_EQ(chart.y.high, expected.yHigh);
        ASSERT_EQ(chart.series.size(), 1u);
        EXPECT_EQ(chart.series[0].kind, SeriesKind::Line);
        ASSERT_EQ(chart.series[0].points.size(), 99u);
        EXPECT_NEAR(chart.series[0].points.back().x, expected.xHigh, 1E-9);
    }
}

TEST(Plots, SearchTheirRangeFromZeroAndALargeValue) {
    Sensitivity sensitivity;
    for (int level = 1; level <= serviceLevels; ++level) {
        sensitivity.rows(1, level).ropTotal = -500;
        sensitivity.rows(1, level).ropAvgInv = 5E21;
        sensitivity.rows(1, level).ropInStock = -.123456;
    }
    const ChartData low = curveOf(sensitivity, PlottedSystem::ReorderPoint, 1, PlottedCurve::CostByService);
    EXPECT_EQ(low.y.low, -500);
    EXPECT_EQ(low.y.high, 0);
    EXPECT_EQ(low.x.label, "Service level, % (-12.35+)");
    const ChartData high =
        curveOf(sensitivity, PlottedSystem::ReorderPoint, 1, PlottedCurve::InventoryByService);
    EXPECT_EQ(high.y.low, 9E20);
    EXPECT_EQ(high.y.high, 5E21);
}

TEST(Plots, NeedAProduct) {
    for (const int product : {0, -3, 51})
        EXPECT_EQ(errorOf([&] {
                      curveOf(rising(), PlottedSystem::ReorderPoint, product, PlottedCurve::CostByService);
                  }),
                  ErrorNumber::SubscriptOutOfRange);
}

} // namespace
} // namespace vantore::inpol
