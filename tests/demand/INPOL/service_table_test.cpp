#include "demand/INPOL/service_table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "tests/support/error_of.h"

namespace vantore::inpol {
namespace {

using tests::errorOf;

TEST(ServiceTable, GoesFromOneHalfToTheEndStopByHalfPerCents) {
    for (int row = 1; row < serviceLevels; ++row)
        EXPECT_NEAR(serviceLevel(row).probability, .495 + .005 * row, 1E-12) << row;
    EXPECT_EQ(serviceLevel(101).probability, 1);
    EXPECT_EQ(serviceLevel(101).z, 10000);
    EXPECT_EQ(serviceLevel(101).loss, 0);
}

TEST(ServiceTable, KeepsItsIrregularValues) {
    EXPECT_EQ(serviceLevel(3).loss, .3852);
    EXPECT_EQ(serviceLevel(40).z, .501);
    EXPECT_EQ(serviceLevel(61).z, .8479);
    EXPECT_EQ(serviceLevel(62).z, .86);
    EXPECT_EQ(serviceLevel(91).z, 1.645);
    EXPECT_EQ(serviceLevel(100).loss, .0016);
}

TEST(ServiceTable, FollowsTheNormalDistribution) {
    // Unit normal loss G(z) = phi(z) - z (1 - Phi(z)): Hadley and Whitin (1963), appendix 4.
    for (int row = 1; row < serviceLevels; ++row) {
        const auto [probability, z, loss] = serviceLevel(row);
        const double above = std::erfc(z / std::numbers::sqrt2) / 2;
        const double density = std::exp(-z * z / 2) / std::sqrt(2 * std::numbers::pi);
        EXPECT_NEAR(1 - above, probability, .0033) << row;
        EXPECT_NEAR(density - z * above, loss, .0015) << row;
        if (row > 1) {
            EXPECT_GT(z, serviceLevel(row - 1).z) << row;
            EXPECT_LT(loss, serviceLevel(row - 1).loss) << row;
        }
    }
}

TEST(ServiceTable, HasNoRowBeyondItsEnds) {
    EXPECT_EQ(errorOf([] { serviceLevel(0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { serviceLevel(102); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(ServiceLookup, TakesTheFirstRowThatReachesTheValueLessAThousandth) {
    EXPECT_EQ(serviceRow(-1E300), 1);
    EXPECT_EQ(serviceRow(.5), 1);
    EXPECT_EQ(serviceRow(.5008), 1);
    EXPECT_EQ(serviceRow(.502), 2);
    EXPECT_EQ(serviceRow(.95), 91);
    EXPECT_EQ(serviceRow(.9958), 100);
    EXPECT_EQ(serviceRow(.997), 101);
    EXPECT_EQ(serviceRow(1.0008), 101);
    EXPECT_EQ(serviceRow(1.002), 102);
    EXPECT_EQ(serviceRow(95), 102);
}

TEST(NormalDeviates, ComeFromTheTable) {
    EXPECT_EQ(deviateFor(.95).z, 1.645);
    EXPECT_EQ(deviateFor(.95).loss, .0209);
    EXPECT_EQ(deviateFor(.5).z, 0);
    EXPECT_EQ(deviateFor(1).z, 10000);
}

TEST(NormalDeviates, BelowOneHalfAreMirroredByAddingOneHalf) {
    // .3 is looked up as .8 (z .8479, loss .1104), not as .7.
    EXPECT_EQ(deviateFor(.3).z, -.8479);
    EXPECT_DOUBLE_EQ(deviateFor(.3).loss, .1104 + .8479);
    // .4999 becomes .9999, and that ends at the stop.
    EXPECT_EQ(deviateFor(.4999).z, -10000);
    EXPECT_EQ(deviateFor(.4999).loss, 10000);
    EXPECT_EQ(deviateFor(-40000).z, 0);
    EXPECT_EQ(deviateFor(-40000).loss, .3989);
}

TEST(NormalDeviates, OfAPercentageEndInAnError) {
    EXPECT_EQ(errorOf([] { deviateFor(95); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { deviateFor(1.002); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(NormalDeviates, TakeAnotherLookupValueThanTheProbability) {
    EXPECT_EQ(deviateFor(.9, .7).z, .5244);
    EXPECT_EQ(deviateFor(.2, .7).z, -.5244);
}

} // namespace
} // namespace vantore::inpol
