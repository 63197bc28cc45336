#include <gtest/gtest.h>

#include "solvers/OPTMZR/judgement.h"
#include "solvers/OPTMZR/plan_builder.h"
#include "tests/routing/ROUTER/random_problems.h"
#include "tests/solvers/OPTMZR/enumeration.h"
#include "tests/solvers/OPTMZR/found.h"

namespace vantore::optmzr::tests {
namespace {

using router::PlannedRoute;
using router::Problem;
using router::Stop;

/// Three stops in a row, 10, 20 and 40 miles from the depot, at a mile in two minutes; the second is a
/// pickup.
class ThreeTowns : public testing::Test {
  protected:
    ThreeTowns() {
        add(10, 100, router::delivery);
        add(20, 50, router::pickup);
        add(40, 30, router::delivery);
        router::Vehicle vehicle;
        vehicle.number = 1;
        vehicle.weightCapacity = 130;
        vehicle.cubeCapacity = 13;
        vehicle.costPerMile = 1;
        problem_.pickupPercent = 100;
        problem_.vehicles.add(vehicle);
        vehicle.weightCapacity = 100;
        problem_.vehicles.add(vehicle);
    }

    void add(double x, double weight, const char* type) {
        Stop stop;
        stop.type = type;
        stop.x = x;
        stop.weight = weight;
        stop.cube = weight / 10;
        stop.loadTime = 6;
        stop.begin1 = stop.begin2 = 0;
        stop.end1 = stop.end2 = 9999;
        stops_.push_back(stop);
        problem_.stops.add(stop);
    }

    void edit(int stop, double begin, double end) {
        Stop& edited = stops_.at(static_cast<std::size_t>(stop - 1));
        edited.begin1 = edited.begin2 = begin;
        edited.end1 = edited.end2 = end;
        problem_.stops = {};
        for (const Stop& each : stops_) problem_.stops.add(each);
    }

    Judgement judgement(const std::vector<int>& stops, int vehicle = 1, double start = 480) const {
        PlannedRoute route;
        route.stops = stops;
        route.vehicle = vehicle;
        route.start = start;
        return judged(problem_, router::Travel(problem_), route);
    }

    double start(const std::vector<int>& stops) const {
        PlannedRoute route;
        route.stops = stops;
        route.vehicle = 1;
        return bestStart(problem_, router::Travel(problem_), route);
    }

    void expect(const Judgement& judgement, int violations, double excess) const {
        EXPECT_EQ(judgement.violations, violations);
        EXPECT_NEAR(judgement.excess, excess, 1E-10);
    }

    Problem problem_;
    std::vector<Stop> stops_;
};

TEST_F(ThreeTowns, FindNothingWrongWithAPlanWithinItsLimits) {
    expect(judgement({1, 2, 3}), 0, 0);
    EXPECT_EQ(judgement({1, 2, 3}).cost, 80);
}

TEST_F(ThreeTowns, WeighWhatIsOnBoardOnTheWay) {
    expect(judgement({2, 1, 3}), 2, 2 * 50 / 130.0); // 180 and 18 after the pickup
    expect(judgement({1, 3}, 2), 1, .3);             // 130 from the start
}

TEST_F(ThreeTowns, BearLoadsThatExceedACapacityByRoundingAlone) {
    stops_.clear();
    add(10, 1000.1, router::pickup);
    add(20, 1000.2, router::pickup); // together 2000.3000000000002
    edit(1, 0, 9999);
    router::Vehicle vehicle = problem_.vehicles(1);
    vehicle.weightCapacity = 2000.3;
    vehicle.cubeCapacity = 2001;
    problem_.vehicles = {};
    problem_.vehicles.add(vehicle);
    expect(judgement({1, 2}), 0, 0);
    vehicle.weightCapacity = 2000.3 - 1E-09;
    problem_.vehicles.add(vehicle);
    EXPECT_EQ(judgement({1, 2}, 2).violations, 1);
}

TEST_F(ThreeTowns, AllowPickupsOnlyWhenLittleIsLeftToDeliver) {
    problem_.pickupPercent = 25;
    expect(judgement({1, 2, 3}), 0, 0); // 30 of 130 are left
    problem_.pickupPercent = 20;
    expect(judgement({1, 2, 3}), 2, 2 * (30 / 130.0 - .2));
    expect(judgement({1, 3, 2}), 0, 0);
    problem_.pickupPercent = 0;
    expect(judgement({1, 3, 2}), 0, 0);
    expect(judgement({1, 2, 3}), 2, 2 * 30 / 130.0);
}

TEST_F(ThreeTowns, CountEachMissedWindowAndLimit) {
    edit(1, 400, 490); // reached at 500
    expect(judgement({1, 2, 3}), 1, 10 / 60.0);
    edit(3, 602, 700); // reached at 572
    expect(judgement({1, 2, 3}), 2, 40 / 60.0);
    edit(1, 0, 9999);
    edit(3, 0, 9999);
    problem_.latestReturn = 598; // returns at 658
    expect(judgement({1, 2, 3}), 1, 1);
    problem_.latestReturn = 9999;
    problem_.earliestStart = 510;
    expect(judgement({1, 2, 3}), 1, .5);
    problem_.earliestStart = 0;
    problem_.maxTime = 2; // takes 178 minutes
    expect(judgement({1, 2, 3}), 1, 58 / 60.0);
    problem_.maxTime = 9999;
    problem_.maxDistance = 64; // drives 80
    expect(judgement({1, 2, 3}), 1, .25);
}

TEST_F(ThreeTowns, CountTheVehiclesThatThereAreNot) {
    const Problem& problem = problem_;
    const Judgement judgement =
        judged(problem, router::Travel(problem), oneRouteAStop(problem, router::Travel(problem)));
    expect(judgement, 2, 2);
    EXPECT_EQ(judgement.cost, 140);
}

TEST_F(ThreeTowns, HaveNoVehicleOfATypeWithoutAny) {
    router::Vehicle vehicle = problem_.vehicles(1);
    problem_.vehicles = {};
    for (const double number : {0.0, -3.0}) {
        vehicle.number = number;
        problem_.vehicles.add(vehicle);
    }
    router::Plan plan = oneRouteAStop(problem_, router::Travel(problem_));
    plan.routes(2).vehicle = 2;
    expect(judged(problem_, router::Travel(problem_), plan), 3, 3);
}

TEST_F(ThreeTowns, AreLeftForAtTheFirstWholeMinuteThatKeepsTheWindows) {
    EXPECT_EQ(start({1, 2, 3}), 0);
    edit(2, 600.5, 700);
    EXPECT_EQ(start({1, 2, 3}), 555); // 554.5 after 46 minutes
    edit(2, 600.25, 600.75);
    EXPECT_NEAR(start({1, 2, 3}), 554.25, 1E-08);
    expect(judgement({1, 2, 3}, 1, start({1, 2, 3})), 0, 0);
    edit(2, 600.25, 600.25);
    expect(judgement({1, 2, 3}, 1, start({1, 2, 3})), 0, 0);
}

TEST_F(ThreeTowns, AreLeftForSoThatTheFewestWindowsAreMissed) {
    edit(1, 500, 510); // a start from 480 to 490
    edit(2, 0, 500);   // until 454
    edit(3, 580, 600); // from 488 to 508
    const double best = start({1, 2, 3});
    EXPECT_NEAR(best, 488, 1E-08);
    EXPECT_EQ(judgement({1, 2, 3}, 1, best).violations, 1);
}

TEST(Judgement, PutsFewerViolationsBeforeLessExcessBeforeLessCost) {
    EXPECT_TRUE(isBetter({1, 9, 9}, {2, 1, 1}));
    EXPECT_FALSE(isBetter({2, 1, 1}, {1, 9, 9}));
    EXPECT_TRUE(isBetter({1, 1, 9}, {1, 2, 1}));
    EXPECT_FALSE(isBetter({1, 2, 1}, {1, 1, 9}));
    EXPECT_TRUE(isBetter({1, 1, 1}, {1, 1, 2}));
    EXPECT_FALSE(isBetter({1, 1, 1}, {1, 1, 1}));
    EXPECT_FALSE(isBetter({0, 0, 100}, {0, 0, 100 + 1E-09}));
    EXPECT_TRUE(isBetter({0, 0, 100}, {0, 0, 100 + 1E-07}));
}

TEST_F(ThreeTowns, AreAllVisitedByAWholePlan) {
    router::Plan plan = oneRouteAStop(problem_, router::Travel(problem_));
    EXPECT_TRUE(isWhole(problem_, plan));
    EXPECT_EQ(textOf(plan),
              "COMPUTED\r\n1,1,100,1,130,0\r\n1\r\n2,1,50,1,130,0\r\n2\r\n3,1,30,1,130,0\r\n3\r\n");
    const auto withRoute = [&plan](int number, int vehicle, const std::vector<int>& stops) {
        router::Plan changed = plan;
        changed.routes(number).vehicle = vehicle;
        changed.routes(number).stops = stops;
        return changed;
    };
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 1, {})));
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 1, {2})));
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 1, {1, 2})));
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 1, {1, 4})));
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 1, {1, 0})));
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 0, {1})));
    EXPECT_FALSE(isWhole(problem_, withRoute(1, 3, {1})));
    EXPECT_TRUE(isWhole(problem_, withRoute(1, 2, {1})));
    plan.routeCount = 2;
    EXPECT_FALSE(isWhole(problem_, plan));
}

TEST(BestStart, IsAsGoodAsAnyStartOfARandomRoute) {
    router::tests::RandomProblems problems(4711);
    int kept = 0;
    for (int trial = 0; trial < 1000; ++trial) {
        const Problem problem = problems.next(problems.from(1, 8));
        const router::Travel travel(problem);
        PlannedRoute route = problems.route(problem);
        route.start = bestStart(problem, travel, route);
        const Judgement judgement = judged(problem, travel, route);
        const BestOfAll best = enumeratedRoute(problem, route.vehicle, route.stops);
        ASSERT_EQ(judgement.violations, best.violations) << "problem " << trial;
        ASSERT_NEAR(judgement.excess, best.excess, 1E-07) << "problem " << trial;
        ASSERT_LE(judgement.cost, best.cost * (1 + 1E-07)) << "problem " << trial;
        if (best.violations > 0) continue;
        ++kept;
        ASSERT_NEAR(judgement.cost, best.cost, 1E-07 * best.cost) << "problem " << trial;
    }
    EXPECT_GT(kept, 100);
    EXPECT_LT(kept, 900);
}

} // namespace
} // namespace vantore::optmzr::tests
