#include <gtest/gtest.h>

#include "location/COG/method.h"

namespace vantore::cog {
namespace {

Problem problemOf(std::initializer_list<Point> points) {
    Problem problem;
    problem.powerFactor = .5;
    problem.mapFactor = 1;
    for (const Point& point : points) problem.points(++problem.rowCount) = point;
    return problem;
}

TEST(CentreOfGravity, IsTheWeightedMean) {
    const Problem problem = problemOf({{"A", 0, 0, 1, 1}, {"B", 4, 0, 3, 1}, {"C", 0, 8, 2, 2}});
    const auto centre = centreOfGravity(problem);
    ASSERT_TRUE(centre);
    EXPECT_DOUBLE_EQ(centre->x, 12.0 / 8);
    EXPECT_DOUBLE_EQ(centre->y, 32.0 / 8);
}

TEST(CentreOfGravity, NeedsAWeight) {
    EXPECT_FALSE(centreOfGravity(problemOf({{"A", 1, 1, 0, 5}, {"B", 2, 2, 7, 0}})));
}

TEST(TotalCost, IsVolumeTimesRateTimesFactorTimesDistance) {
    Problem problem = problemOf({{"A", 3, 4, 2, .5}});
    problem.mapFactor = 10;
    EXPECT_DOUBLE_EQ(totalCost(problem, {0, 0}), 50);
    problem.powerFactor = 1;
    EXPECT_DOUBLE_EQ(totalCost(problem, {0, 0}), 250);
}

TEST(NextLocation, NeverRaisesTheCostAndEndsAtTheBestPoint) {
    // Three points of an equilateral triangle of side 2 with equal weights: the best location is its centre.
    const Problem problem =
        problemOf({{"A", 0, 0, 1, 1}, {"B", 2, 0, 1, 1}, {"C", 1, 1.7320508075688772, 1, 1}});
    Location location{.3, .2};
    for (int cycle = 0; cycle < 60; ++cycle) {
        const Location next = nextLocation(problem, location);
        EXPECT_LE(totalCost(problem, next), totalCost(problem, location) * (1 + 1E-15));
        location = next;
    }
    EXPECT_NEAR(location.x, 1, 1E-9);
    EXPECT_NEAR(location.y, .57735026918962573, 1E-9);
}

TEST(NextLocation, IsHeldByAPointThatItStandsOn) {
    const Problem problem = problemOf({{"A", 1, 1, 1, 1}, {"B", 5, 1, 1, 1}});
    const Location next = nextLocation(problem, {1, 1});
    EXPECT_NEAR(next.x, 1, 2E-6);
}

TEST(NextLocation, DividesByZeroWhenAllWeightsAreZero) {
    EXPECT_THROW(nextLocation(problemOf({{"A", 1, 1, 0, 1}}), {0, 0}), RuntimeError);
}

} // namespace
} // namespace vantore::cog
