#include "simulator/SCSIM/safety_table.h"

#include <gtest/gtest.h>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

TEST(SafetyTable, RisesInProbabilityAndFallsInLoss) {
    for (int row = 2; row <= safetyRows; ++row) {
        EXPECT_GT(safetyRow(row).probability, safetyRow(row - 1).probability) << row;
        EXPECT_GT(safetyRow(row).z, safetyRow(row - 1).z) << row;
        EXPECT_LT(safetyRow(row).loss, safetyRow(row - 1).loss) << row;
    }
}

/// Sums of the columns as listed, added up apart from the program.
TEST(SafetyTable, HoldsAllRows) {
    double probability = 0, z = 0, loss = 0;
    for (int row = 1; row <= safetyRows; ++row) {
        probability += safetyRow(row).probability;
        z += safetyRow(row).z;
        loss += safetyRow(row).loss;
    }
    EXPECT_NEAR(probability, 82.7385, 1E-9);
    EXPECT_NEAR(z, 102.74435, 1E-9);
    EXPECT_NEAR(loss, 16.7295, 1E-9);
    EXPECT_EQ(tests::errorOf([] { safetyRow(0); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(tests::errorOf([] { safetyRow(109); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(SafetyFactor, IsThatOfTheNearestLoss) {
    EXPECT_EQ(safetyFactor(.1), .8965); // .1019 is nearer than .0976
    EXPECT_EQ(safetyFactor(.099), .91538);
    EXPECT_EQ(safetyFactor(.0209), 1.645);
    EXPECT_EQ(safetyFactor(.00004), 3.54);
}

TEST(SafetyFactor, IsTheLowerOneInATie) {
    EXPECT_EQ(safetyFactor(.00005), 3.3); // halfway between .0001 and 0
    EXPECT_EQ(safetyFactor(.0001), 3.3);
}

TEST(SafetyFactor, IsNothingFromTheFirstRowUp) {
    EXPECT_EQ(safetyFactor(.3989), 0);
    EXPECT_EQ(safetyFactor(.39891), 0);
    EXPECT_EQ(safetyFactor(9E20), 0);
    EXPECT_EQ(safetyFactor(.398), 0);
    EXPECT_EQ(safetyFactor(.393), .0125);
}

TEST(SafetyFactor, IsUnknownFromNoLossDown) {
    EXPECT_EQ(safetyFactor(0), std::nullopt);
    EXPECT_EQ(safetyFactor(-.1), std::nullopt);
}

} // namespace
} // namespace vantore::scsim
