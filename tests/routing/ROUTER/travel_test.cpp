#include <gtest/gtest.h>

#include <cmath>

#include "routing/ROUTER/travel.h"
#include "tests/routing/ROUTER/random_problems.h"
#include "tests/support/error_of.h"

namespace vantore::router::tests {
namespace {

using vantore::tests::errorOf;

Stop at(double x, double y, double zone = 0) {
    Stop stop;
    stop.x = x;
    stop.y = y;
    stop.zone = zone;
    return stop;
}

/// The depot at (0, 0), stops at (3, 4), (6, 8) and (30, 0).
Problem threeTowns() {
    Problem problem;
    problem.stops.add(at(3, 4, 1));
    problem.stops.add(at(6, 8, 2));
    problem.stops.add(at(30, 0));
    return problem;
}

TEST(Travel, MeasuresTheStraightLineInScaledUnits) {
    Problem problem = threeTowns();
    EXPECT_EQ(Travel(problem).leg(0, 1).distance, 5);
    problem.horizontalScale = 2;
    problem.verticalScale = 2;
    EXPECT_EQ(Travel(problem).leg(2, 1).distance, 10);
}

TEST(Travel, KeepsStopsAtOnePlaceAHairApart) {
    Problem problem = threeTowns();
    problem.stops.add(at(3.000009, 4));
    problem.stops.add(at(3.00002, 4));
    const Travel travel(problem);
    EXPECT_EQ(travel.leg(1, 4).distance, .001);
    EXPECT_EQ(travel.leg(4, 4).distance, .001);
    EXPECT_NEAR(travel.leg(1, 5).distance, .00002, 1E-12);
}

TEST(Travel, TakesTheFirstDistanceSpecifiedEitherWay) {
    Problem problem = threeTowns();
    problem.distances.add({2, "", 1, "", 7});
    problem.distances.add({1, "", 2, "", 9});
    problem.distances.add({0, "", 3, "", 11});
    problem.distances.add({5, "", 1, "", 13});
    problem.distances.add({-1, "", 1, "", 13});
    const Travel travel(problem);
    EXPECT_EQ(travel.leg(1, 2).distance, 7);
    EXPECT_EQ(travel.leg(2, 1).distance, 7);
    EXPECT_EQ(travel.leg(3, 0).distance, 11);
    EXPECT_EQ(travel.leg(0, 1).distance, 5);
}

TEST(Travel, AddsTheDetoursRoundAllBarriersButToSpecifiedDistances) {
    Problem problem = threeTowns();
    problem.barriers.add({10, 5, 12, 5, 10, -9, 12, -9}); // 5 + 2 + 5 for 2
    problem.barriers.add({20, 3, 22, 3, 20, -9, 22, -9}); // 3 + 2 + 3 for 2
    EXPECT_DOUBLE_EQ(Travel(problem).leg(0, 3).distance, 30 + 10 + 6);
    problem.distances.add({0, "", 3, "", 31});
    EXPECT_EQ(Travel(problem).leg(0, 3).distance, 31);
}

TEST(Travel, CountsTheBarriersThatALegEndsIn) {
    Problem problem = threeTowns();
    for (int k = 0; k < 2; ++k) problem.barriers.add({2, 5, 4, 5, 2, 3, 4, 3}); // around stop 1
    EXPECT_EQ(Travel(problem).leg(0, 1).barriersEnded, 2);
    EXPECT_EQ(Travel(problem).leg(1, 3).barriersEnded, 2);
    EXPECT_EQ(Travel(problem).leg(0, 3).barriersEnded, 0);
    EXPECT_EQ(Travel(problem).leg(0, 1).distance, 5);
    problem.distances.add({0, "", 1, "", 6});
    EXPECT_EQ(Travel(problem).leg(0, 1).barriersEnded, 0);
}

TEST(Travel, PutsSpecifiedSpeedsBeforeThoseOfZonesAndTheDefault) {
    Problem problem = threeTowns();
    EXPECT_EQ(Travel(problem).leg(0, 1).speed, 30);
    problem.zoneSpeeds.add({2, 1, 20});
    problem.zoneSpeeds.add({1, 2, 25});
    problem.zoneSpeeds.add({0, 0, 50});
    EXPECT_EQ(Travel(problem).leg(1, 2).speed, 20);
    EXPECT_EQ(Travel(problem).leg(2, 1).speed, 20);
    EXPECT_EQ(Travel(problem).leg(0, 3).speed, 50);
    EXPECT_EQ(Travel(problem).leg(1, 3).speed, 30);
    problem.speeds.add({2, "", 1, "", 70});
    problem.speeds.add({1, "", 2, "", 75});
    problem.speeds.add({9, "", 2, "", 75});
    problem.speeds.add({1, "", -2, "", 75});
    EXPECT_EQ(Travel(problem).leg(1, 2).speed, 70);
    EXPECT_EQ(Travel(problem).leg(2, 1).speed, 70);
    problem.depotZone = 2;
    EXPECT_EQ(Travel(problem).leg(1, 0).speed, 20);
}

TEST(Travel, TimesALegByItsSpeed) {
    const Problem problem = threeTowns();
    const Travel travel(problem);
    EXPECT_DOUBLE_EQ(Travel::hours(travel.leg(0, 3)), 1);
    EXPECT_EQ(errorOf([] { Travel::hours({.distance = 1, .speed = 0}); }), ErrorNumber::DivisionByZero);
}

TEST(Travel, HasNoLegsBeyondItsStops) {
    const Problem problem = threeTowns();
    const Travel travel(problem);
    for (const int number : {-1, 4}) {
        EXPECT_EQ(errorOf([&] { travel.leg(number, 1); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(errorOf([&] { travel.leg(1, number); }), ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(Travel, OverflowsOnTheLegThatIsTooFar) {
    Problem problem = threeTowns();
    problem.stops.add(at(1E+200, 0));
    const Travel travel(problem);
    EXPECT_EQ(errorOf([&] { travel.leg(1, 4); }), ErrorNumber::Overflow);
    EXPECT_EQ(travel.leg(0, 1).distance, 5);
}

TEST(Travel, IsTheSameBothWaysAndNeverShorterThanTheStraightLine) {
    RandomProblems problems(20261121);
    for (int trial = 0; trial < 300; ++trial) {
        Problem problem = problems.next(problems.from(2, 12));
        const Travel travel(problem);
        problem.barriers = {};
        const Travel straight(problem);
        for (int a = 0; a <= problem.stops.count(); ++a) {
            for (int b = 0; b <= problem.stops.count(); ++b) {
                const double distance = travel.leg(a, b).distance;
                ASSERT_NEAR(distance, travel.leg(b, a).distance, 1E-9 * distance);
                ASSERT_EQ(travel.leg(a, b).speed, travel.leg(b, a).speed);
                ASSERT_EQ(travel.leg(a, b).barriersEnded, travel.leg(b, a).barriersEnded);
                ASSERT_GE(distance, straight.leg(a, b).distance * (1 - 1E-12));
            }
        }
    }
}

} // namespace
} // namespace vantore::router::tests
