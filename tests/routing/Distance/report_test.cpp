#include <gtest/gtest.h>

#include "routing/Distance/report.h"

namespace vantore::distance {
namespace {

TEST(DistanceOnGrid, IsShownWithTwoPlacesAndCommas) {
    const Shown shown = shownOnGrid(1503.595, 12871.805);
    EXPECT_EQ(shown.distance, "1,503.60");
    EXPECT_EQ(shown.total, "12,871.81");
    EXPECT_EQ(shownOnGrid(0, 0).distance, ".00");
}

TEST(DistanceOverEarth, IsCutToTwoPlaces) {
    const Shown shown = shownOverEarth(803.4799, "2.5");
    EXPECT_EQ(shown.distance, "803.47");
    EXPECT_EQ(shown.total, "805.97");
    EXPECT_EQ(shownOverEarth(1234.5, "").distance, "1234.5");
    EXPECT_EQ(shownOverEarth(1234.5, "").total, "1,234.50");
    EXPECT_EQ(shownOverEarth(0, "").distance, "0");
    EXPECT_EQ(shownOverEarth(0, "170.758").total, "170.75");
}

TEST(DistanceOverEarth, ReadsTheTotalUpToItsComma) {
    EXPECT_EQ(shownOverEarth(803.47, "3,281.21").total, "806.47");
}

} // namespace
} // namespace vantore::distance
