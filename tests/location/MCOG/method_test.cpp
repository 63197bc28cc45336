#include <gtest/gtest.h>

#include <algorithm>

#include <cmath>
#include <vector>

#include "location/MCOG/method.h"
#include "tests/location/MCOG/problems.h"
#include "tests/support/error_of.h"

namespace vantore::mcog {
namespace {

using tests::randomProblem;
using vantore::tests::errorOf;

Problem problemOf(std::initializer_list<Point> points) {
    Problem problem;
    problem.mapFactor = 1;
    for (const Point& point : points) problem.points(++problem.rowCount) = point;
    return problem;
}

std::vector<int> allocation(const Problem& problem, const Plan& plan) {
    std::vector<int> facilities;
    for (int i = 1; i <= problem.rowCount; ++i) facilities.push_back(plan.assignedTo(i));
    return facilities;
}

TEST(SingleFacility, OfOnePointStandsOnItAndCostsNothing) {
    const std::vector<Point> points = {{"A", 3, 4, 10, 2}};
    const Facility facility = singleFacility(points);
    EXPECT_EQ(facility.location.x, 3);
    EXPECT_EQ(facility.location.y, 4);
    EXPECT_EQ(facility.cost, 0);
}

TEST(SingleFacility, OfPointsAtOnePlaceCostsNextToNothing) {
    const std::vector<Point> points = {{"A", 64, 32, 8, 2}, {"B", 64, 32, 16, 2}};
    EXPECT_EQ(singleFacility(points).cost, 0.0000001);
    EXPECT_EQ(singleFacility(points).location.x, 64);
}

TEST(SingleFacility, OfAnEquilateralTriangleIsItsCentre) {
    // Sides of 2: the centre is 2 / sqrt 3 from each corner.
    const std::vector<Point> points = {{"A", 0, 0, 1, 1}, {"B", 2, 0, 1, 1}, {"C", 1, std::sqrt(3.0), 1, 1}};
    EXPECT_NEAR(singleFacility(points).cost, 3 * 2 / std::sqrt(3.0), 1E-6);
}

TEST(SingleFacility, FollowsTheHeavierOfTwoPoints) {
    // The cost along the line falls to the heavier end: 10 x 1 at best.
    const std::vector<Point> points = {{"A", 0, 5, 1, 1}, {"B", 10, 5, 3, 1}};
    const Facility facility = singleFacility(points);
    EXPECT_NEAR(facility.cost, 10, .001);
    EXPECT_NEAR(facility.location.x, 10, .001);
    EXPECT_EQ(facility.location.y, 5);
}

TEST(SingleFacility, ComesBackHalfwayWhereAStepHasRaisedTheCost) {
    // The mean is B itself. A pulls by 6, C by 9, and the second derivatives (in lengths along the line) are
    // 6 / 3 + 9 / 2: the first step goes 3 / 6.5 beyond B, to x = 33 / 13, and costs more. Halfway between
    // the last two places, again and again, ends two thirds of the way.
    const std::vector<Point> points = {{"A", 6, 12, 6, 1}, {"B", 3, 6, 6, 1}, {"C", 1, 2, 9, 1}};
    const Facility facility = singleFacility(points);
    EXPECT_NEAR(facility.location.x, (3 + 2 * 33.0 / 13) / 3, 1E-12);
    EXPECT_NEAR(facility.location.y, (6 + 2 * 66.0 / 13) / 3, 1E-12);
    EXPECT_NEAR(facility.cost, std::sqrt(5.0) / 13 * (6 * 43 + 6 * 4 + 9 * 22), 1E-9);
}

TEST(SingleFacility, NeedsAWeight) {
    const std::vector<Point> points = {{"A", 1, 2, 0, 1}, {"B", 3, 4, 0, 1}};
    EXPECT_EQ(errorOf([&] { singleFacility(points); }), ErrorNumber::DivisionByZero);
}

TEST(SingleFacility, OverflowsRatherThanStandNowhere) {
    // So near each other that the second derivatives pass every number.
    const std::vector<Point> points = {{"A", 0, 0, 1E9, 1E5}, {"B", 1E-140, 0, 1E9, 1E5}};
    EXPECT_EQ(errorOf([&] { singleFacility(points); }), ErrorNumber::Overflow);
}

TEST(MultipleLocation, DealsThePointsOutInTurnToBeginWith) {
    const Problem problem = problemOf({{"A"}, {"B"}, {"C"}, {"D"}, {"E"}});
    EXPECT_EQ(allocation(problem, seeded(problem, 2)), (std::vector<int>{1, 2, 1, 2, 1}));
    EXPECT_EQ(allocation(problem, seeded(problem, 3)), (std::vector<int>{1, 2, 3, 1, 2}));
}

TEST(MultipleLocation, GivesAPointBetweenTwoFacilitiesToTheLowerNumber) {
    const Problem problem = problemOf({{"A", 0, 0, 1, 1}, {"B", 10, 0, 1, 1}, {"C", 5, 0, 1, 1}});
    Plan plan;
    plan.facilityCount = 2;
    plan.facilities(1).location = {10, 0};
    plan.facilities(2).location = {0, 0};
    reallocate(problem, plan);
    EXPECT_EQ(allocation(problem, plan), (std::vector<int>{2, 1, 1}));
}

TEST(MultipleLocation, FindsTwoTowns) {
    const Problem problem = problemOf(
        {{"A", 0, 0, 1, 1}, {"B", 100, 0, 1, 1}, {"C", 0, 4, 1, 1}, {"D", 100, 4, 1, 1}, {"E", 0, 2, 9, 1}});
    const Plan plan = located(problem, 2);
    EXPECT_EQ(allocation(problem, plan), (std::vector<int>{1, 2, 1, 2, 1}));
    EXPECT_NEAR(plan.facilities(1).location.y, 2, 1E-6);
    EXPECT_NEAR(plan.totalCost, 4 + 4, 1E-5);
}

TEST(MultipleLocation, MakesEachPointAFacilityWhereThereAreAsMany) {
    const Problem problem = problemOf({{"A", 1, 2, 3, 4}, {"B", 9, 2, 3, 4}, {"C", 9, 8, 3, 4}});
    const Plan plan = located(problem, 3);
    EXPECT_EQ(plan.totalCost, 0);
    EXPECT_EQ(allocation(problem, plan), (std::vector<int>{1, 2, 3}));
}

TEST(MultipleLocation, LeavesAFacilityWithoutPointsWhereItWas) {
    const Problem problem = problemOf({{"A", 1, 1, 1, 1}, {"B", 3, 1, 1, 1}});
    Plan plan;
    plan.facilityCount = 2;
    plan.facilities(2) = {{50, 60}, 7};
    plan.assignedTo(1) = plan.assignedTo(2) = 1;
    EXPECT_EQ(relocate(problem, plan), 2);
    EXPECT_EQ(plan.facilities(2).cost, 0);
    EXPECT_EQ(plan.facilities(2).location.x, 50);
    EXPECT_EQ(plan.facilities(2).location.y, 60);
}

TEST(MultipleLocation, PricesAPlanWithTheMapFactorOnce) {
    Problem problem = problemOf({{"A", 0, 0, 10, .5}, {"B", 3, 4, 2, 3}});
    problem.mapFactor = 2;
    Plan plan;
    plan.facilityCount = 2;
    plan.assignedTo(1) = plan.assignedTo(2) = 2;
    plan.facilities(2).location = {0, 0};
    price(problem, plan);
    EXPECT_EQ(plan.facilities(1).cost, 0);
    EXPECT_EQ(plan.facilities(2).cost, 30);
    EXPECT_EQ(plan.totalCost, 60);
}

TEST(MultipleLocation, OverflowsRatherThanCostMoreThanANumberHolds) {
    Problem problem = problemOf({{"A", 0, 0, 1E9, 1E4}, {"B", 30000, 0, 1E9, 1E4}});
    problem.mapFactor = 1E300;
    EXPECT_EQ(errorOf([&] { located(problem, 1); }), ErrorNumber::Overflow);
}

TEST(MultipleLocation, NeverRaisesTheTotalCostFromPassToPass) {
    std::mt19937 random(20261121);
    for (int trial = 0; trial < 400; ++trial) {
        const int points = 1 + static_cast<int>(random() % (trial % 40 == 0 ? 500 : 60));
        const Problem problem = randomProblem(random, points);
        Plan plan = seeded(problem, 1 + static_cast<int>(random() % std::min(points, mostFacilities)));
        // Each facility is at hand within a millionth of its cost, and costs something where points lie
        // together.
        const double together = 0.0000001 * problem.mapFactor * plan.facilityCount;
        double before = relocate(problem, plan);
        for (int pass = 0; pass < 30; ++pass) {
            reallocate(problem, plan);
            const double after = relocate(problem, plan);
            ASSERT_LE(after, before * (1 + 2E-6) + together) << "problem " << trial << ", pass " << pass;
            before = after;
        }
    }
}

TEST(MultipleLocation, GivesEachPointItsNearestFacility) {
    std::mt19937 random(99);
    for (int trial = 0; trial < 100; ++trial) {
        const Problem problem = randomProblem(random, 40);
        const Plan plan = located(problem, 5);
        for (int i = 1; i <= 40; ++i) {
            const auto distance = [&](int j) {
                const Location at = plan.facilities(j).location;
                return std::hypot(problem.points(i).x - at.x, problem.points(i).y - at.y);
            };
            for (int j = 1; j <= 5; ++j) ASSERT_LE(distance(plan.assignedTo(i)), distance(j) * (1 + 1E-12));
        }
    }
}

} // namespace
} // namespace vantore::mcog
