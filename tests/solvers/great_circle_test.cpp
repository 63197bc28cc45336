#include <gtest/gtest.h>

#include <numbers>
#include <random>

#include "solvers/great_circle.h"
#include "tests/solvers/WARELO/yardstick.h"

namespace vantore::tests {
namespace {

TEST(GreatCircle, IsADegreeLongAsTheSphereSays) {
    EXPECT_NEAR(greatCircleMiles({0, 10}, {0, 11}), 3958.8 * std::numbers::pi / 180, 1E-9);
    EXPECT_NEAR(greatCircleMiles({40, 80}, {41, 80}), 69.0941, 1E-4);
    EXPECT_NEAR(greatCircleMiles({90, 0}, {0, 77}), 3958.8 * std::numbers::pi / 2, 1E-9);
}

TEST(GreatCircle, ReachesHalfAroundTheEarthAndNoFarther) {
    EXPECT_NEAR(greatCircleMiles({30, 0}, {-30, 180}), 3958.8 * std::numbers::pi, 1E-6);
    EXPECT_EQ(greatCircleMiles({33.5272, 86.797}, {33.5272, 86.797}), 0);
}

TEST(GreatCircle, LeadsFromNewYorkToLosAngeles) {
    // 40.6627 N 73.9387 W and 34.0194 N 118.4108 W: 2,465 miles in every atlas, within the flattening.
    EXPECT_NEAR(greatCircleMiles({40.6627, 73.9387}, {34.0194, 118.4108}), 2465, 10);
}

TEST(GreatCircle, AgreesWithTheAngleBetweenTheTwoPlaces) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> latitude(-90, 90), longitude(-180, 360);
    for (int i = 0; i < 1000; ++i) {
        const wareloca::Place a{latitude(random), longitude(random)};
        const wareloca::Place b{latitude(random), longitude(random)};
        EXPECT_NEAR(greatCircleMiles({a.x, a.y}, {b.x, b.y}), plainMiles(a, b), 1E-4);
    }
}

} // namespace
} // namespace vantore::tests
