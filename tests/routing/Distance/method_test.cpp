#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "routing/Distance/method.h"
#include "tests/support/error_of.h"

namespace vantore::distance {
namespace {

using vantore::tests::errorOf;

constexpr double semiMajorAxis = 6378206.4; // metres, Clarke 1866
constexpr double flattening = 1 / 294.9786982138;
constexpr double typedPi = 3.141592653;
constexpr double degree = std::numbers::pi / 180;

const Tell silent = [](const std::string&) {};

Problem grid(Place origin, Place destination) {
    return {CoordinateType::LinearGrid, Dimension::Miles, origin, destination, 1, 1};
}

Problem earth(Place origin, Place destination) {
    return {CoordinateType::LatitudeLongitude, Dimension::Miles, origin, destination, 1, 1};
}

/// Length of the meridian from the equator to a latitude: the integral of the radius of curvature by
/// Simpson's rule.
double meridianArc(double latitude) {
    const double e2 = flattening * (2 - flattening);
    const auto radius = [&](double angle) {
        return semiMajorAxis * (1 - e2) / std::pow(1 - e2 * std::sin(angle) * std::sin(angle), 1.5);
    };
    constexpr int steps = 1000;
    const double step = latitude * degree / steps;
    double sum = radius(0) + radius(latitude * degree);
    for (int i = 1; i < steps; ++i) sum += radius(i * step) * (i % 2 == 1 ? 4 : 2);
    return sum * step / 3;
}

TEST(LinearDistance, IsTheStraightLineTimesBothFactors) {
    Problem problem = grid({1, 2}, {4, -2});
    EXPECT_EQ(linearDistance(problem), 5);
    problem.circuityFactor = 1.2;
    problem.mapFactor = 10;
    EXPECT_DOUBLE_EQ(linearDistance(problem), 60);
    problem.dimension = Dimension::Kilometers;
    EXPECT_DOUBLE_EQ(linearDistance(problem), 96.564);
    EXPECT_EQ(linearDistance(grid({0, 0}, {0, 0})), 0);
}

TEST(LinearDistance, ReportsWhatIsBeyondTheRange) {
    EXPECT_EQ(errorOf([] { linearDistance(grid({1E200, 0}, {0, 0})); }), ErrorNumber::Overflow);
    Problem problem = grid({1E150, 0}, {0, 0});
    problem.mapFactor = 1E200;
    EXPECT_EQ(errorOf([&] { linearDistance(problem); }), ErrorNumber::Overflow);
}

TEST(FullCircleArctangent, KnowsEachQuarter) {
    EXPECT_DOUBLE_EQ(datan2(1, 1, silent), std::atan(1));
    EXPECT_DOUBLE_EQ(datan2(1, -1, silent), typedPi - std::atan(1));
    EXPECT_DOUBLE_EQ(datan2(-1, 1, silent), -std::atan(1));
    EXPECT_DOUBLE_EQ(datan2(-1, -1, silent), std::atan(1) - typedPi);
    EXPECT_EQ(datan2(0, 5, silent), 0);
    EXPECT_EQ(datan2(0, -5, silent), typedPi);
    EXPECT_EQ(datan2(5, 0, silent), typedPi / 2);
    EXPECT_EQ(datan2(-5, 0, silent), -typedPi / 2);
}

TEST(FullCircleArctangent, TellsWhenThereIsNoDirection) {
    std::vector<std::string> told;
    const Tell tell = [&](const std::string& text) { told.push_back(text); };
    EXPECT_EQ(datan2(0, 0, tell), 0);
    EXPECT_EQ(told, (std::vector<std::string>{"Error in data entry.  Check whether coordinates are zero."}));
    datan2(0, 1, tell);
    datan2(1, 0, tell);
    EXPECT_EQ(told.size(), 1U);
}

TEST(Geodesic, IsAnArcOfTheEquator) {
    const auto line = geodesic({0, 10}, {0, 30}, silent);
    ASSERT_TRUE(line);
    EXPECT_NEAR(line->metres, semiMajorAxis * 20 * degree, 1E-3);
    // Longitudes grow westward: the line leads due west.
    EXPECT_NEAR(line->originAzimuth, -std::numbers::pi / 2, 1E-8);
    EXPECT_NEAR(line->destinationAzimuth, -std::numbers::pi / 2, 1E-8);
    EXPECT_NEAR(geodesic({0, 170}, {0, -170}, silent)->metres, semiMajorAxis * 20 * degree, 1E-3);
}

TEST(Geodesic, IsAnArcOfTheMeridian) {
    const auto line = geodesic({0, 80}, {45, 80}, silent);
    ASSERT_TRUE(line);
    EXPECT_NEAR(line->metres, meridianArc(45), 1E-3);
    EXPECT_NEAR(line->originAzimuth, 0, 1E-9);
    EXPECT_NEAR(geodesic({-30, 0}, {40, 0}, silent)->metres, meridianArc(30) + meridianArc(40), 2E-3);
    EXPECT_NEAR(geodesic({40, 0}, {-30, 0}, silent)->originAzimuth, std::numbers::pi, 1E-8);
}

TEST(Geodesic, ReachesThePoles) {
    const double quadrant = meridianArc(90);
    EXPECT_NEAR(geodesic({90, 0}, {0, 0}, silent)->metres, quadrant, 3E-3);
    EXPECT_NEAR(geodesic({0, 25}, {-90, 60}, silent)->metres, quadrant, 3E-3);
    // Over the pole.
    EXPECT_NEAR(geodesic({80, 0}, {80, 180}, silent)->metres, 2 * (quadrant - meridianArc(80)), 3E-3);
    EXPECT_NEAR(geodesic({90, 0}, {90, 120}, silent)->metres, 0, 1E-6);
}

TEST(Geodesic, GivesUpOnOppositePlaces) {
    EXPECT_FALSE(geodesic({.5, 0}, {-.4, 179.7}, silent));
}

TEST(EarthDistance, TakesFactorsAndDimension) {
    Problem problem = earth({0, 0}, {0, 1});
    const double miles = semiMajorAxis * degree / 1609.34885;
    EXPECT_NEAR(*earthDistance(problem, silent), miles, 1E-8);
    problem.circuityFactor = 1.2;
    problem.mapFactor = -2;
    EXPECT_NEAR(*earthDistance(problem, silent), miles * 2.4, 1E-8);
    problem.dimension = Dimension::Kilometers;
    EXPECT_NEAR(*earthDistance(problem, silent), miles * 2.4 * 1.6094, 1E-8);
    problem.mapFactor = 1E308;
    EXPECT_EQ(errorOf([&] { earthDistance(problem, silent); }), ErrorNumber::Overflow);
}

TEST(EarthDistance, IsZeroBetweenEqualPlaces) {
    EXPECT_EQ(earthDistance(earth({45.5, 73.5}, {45.5, 73.5}), silent), 0);
    EXPECT_GT(*earthDistance(earth({45.5, 73.5}, {45.5, 73.6}), silent), 0);
    EXPECT_GT(*earthDistance(earth({45.5, 73.5}, {45.6, 73.5}), silent), 0);
    EXPECT_FALSE(earthDistance(earth({0, 0}, {0, 180}), silent));
}

TEST(DistanceChecks, RefuseFourZerosOverTheEarthOnly) {
    EXPECT_EQ(fault(earth({0, 0}, {0, 0})), "Not all latitudes and longitudes should be zero.");
    EXPECT_FALSE(fault(grid({0, 0}, {0, 0})));
    EXPECT_FALSE(fault(earth({1, 0}, {0, 0})));
    EXPECT_FALSE(fault(earth({0, 1}, {0, 0})));
    EXPECT_FALSE(fault(earth({0, 0}, {1, 0})));
    EXPECT_FALSE(fault(earth({0, 0}, {0, 1})));
}

} // namespace
} // namespace vantore::distance
