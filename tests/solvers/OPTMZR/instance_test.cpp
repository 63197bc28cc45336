#include <gtest/gtest.h>

#include <cmath>

#include "solvers/OPTMZR/instance.h"
#include "solvers/OPTMZR/plan_builder.h"

namespace vantore::optmzr::tests {
namespace {

using router::Problem;
using router::Stop;
using router::Vehicle;

Problem twoStops() {
    Problem problem;
    problem.vehicles.add(Vehicle{"Van", 0, 2, 200, 20, 30, .5, 10, 12, 18});
    problem.vehicles.add(Vehicle{"Lorry", 0, 1, 400, 40, 60, 1, 20, 15, 20});
    problem.vehicles.add(Vehicle{"Other van", 0, 3, 200, 20, 30, .5, 10, 12, 18});
    for (const double x : {30, 40}) {
        Stop stop;
        stop.type = x == 30 ? router::delivery : router::pickup;
        stop.x = x;
        stop.weight = 100;
        stop.cube = 10;
        stop.loadTime = 7;
        stop.end1 = stop.begin2 = 1000;
        stop.end2 = 9999;
        problem.stops.add(stop);
    }
    return problem;
}

Instance instanceOf(const Problem& problem) {
    return Instance(problem, router::Travel(problem));
}

TEST(Instance, HasNoUnits) {
    const Instance instance = instanceOf(twoStops());
    EXPECT_EQ(instance.distance(0, 1), .75);
    EXPECT_EQ(instance.distance(2, 0), 1);
    EXPECT_EQ(instance.minutes(0, 1), 60);
    EXPECT_EQ(instance.customer(1).delivered.weight, .25);
    EXPECT_EQ(instance.customer(1).pickedUp.weight, 0);
    EXPECT_EQ(instance.customer(2).pickedUp.cube, .25);
    EXPECT_EQ(instance.customer(2).minutes, 7);
    // the dearest leg: 40 miles and 80 minutes of the lorry, 60
    EXPECT_NEAR(instance.fleet(1).costPerDistance, 40 / 60.0, 1E-12);
    EXPECT_NEAR(instance.fleet(0).costPerMinute, .2 / 60, 1E-12);
    EXPECT_NEAR(instance.fleet(0).costPerOvertimeMinute, .3 / 60, 1E-12);
    EXPECT_NEAR(instance.fleet(0).fixedCost, 40 / 60.0, 1E-12);
    EXPECT_EQ(instance.fleet(0).capacity.weight, .5);
}

TEST(Instance, KeepsTheProblemsUnitWhereThereIsNothingToMeasureBy) {
    Problem problem;
    problem.vehicles.add(Vehicle{"Van", 0, 1, 0, 0, 7, 0, 3, 0, 0});
    Stop stop;
    stop.type = router::delivery;
    stop.weight = 5;
    stop.cube = 2;
    problem.stops.add(stop);
    problem.distances.add({0, "", 1, "", 0});
    problem.maxDistance = 9;
    const Instance instance = instanceOf(problem);
    EXPECT_EQ(instance.customer(1).delivered.weight, 5);
    EXPECT_EQ(instance.customer(1).delivered.cube, 2);
    EXPECT_EQ(instance.fleet(0).fixedCost, 10);
    EXPECT_EQ(instance.maxDistance, 9);
    EXPECT_EQ(instance.customer(1).place.x, 0);
    EXPECT_EQ(instance.largestLoad, 5);
}

TEST(Instance, CutsOffWhatIsBeyondAllBounds) {
    Problem problem = twoStops();
    problem.maxDistance = 1E+300;
    problem.maxTime = 1E+300;
    problem.defaultSpeed = 1E-300;
    const Instance instance = instanceOf(problem);
    EXPECT_EQ(instance.maxDistance, 1E+06);
    EXPECT_EQ(instance.maxMinutes, 1E+07);
    EXPECT_EQ(instance.minutes(0, 1), 1E+07);
    problem.defaultSpeed = 0;
    EXPECT_EQ(instanceOf(problem).minutes(1, 2), 1E+07);
}

TEST(Instance, MeasuresPlacesFromTheDepotByTheGridsScale) {
    Problem problem = twoStops();
    problem.depotX = 20;
    problem.depotY = -15;
    problem.horizontalScale = 1;
    problem.verticalScale = 2;
    const Instance instance = instanceOf(problem);
    // stops at 10 and 20 to the right and 30 above; the second is the farther one
    const double farthest = std::sqrt(20 * 20 + 30 * 30);
    EXPECT_NEAR(instance.customer(1).place.x, 10 / farthest, 1E-09);
    EXPECT_NEAR(instance.customer(2).place.x, 20 / farthest, 1E-09);
    EXPECT_NEAR(instance.customer(2).place.y, 30 / farthest, 1E-09);
}

TEST(Instance, PutsRowsTogetherThatDifferInNothing) {
    const Problem problem = twoStops();
    const Instance instance = instanceOf(problem);
    ASSERT_EQ(instance.fleetCount(), 2);
    EXPECT_EQ(instance.fleet(0).rows, (std::vector<int>{1, 3}));
    EXPECT_EQ(instance.fleet(0).available, 4); // no more of each than stops
    EXPECT_EQ(instance.fleet(1).available, 1);
}

TEST(PlanBuilder, HandsOutTheVehiclesOfTheRowsInTheirOrder) {
    Problem problem = twoStops();
    for (int i = 0; i < 4; ++i) problem.stops.add(problem.stops(1));
    const router::Travel travel(problem);
    const Instance instance(problem, travel);
    const router::Plan plan =
        planOf(problem, travel, instance, {{0, {1}}, {1, {2}}, {0, {3}}, {0, {4, 5}}, {0, {6}}});
    ASSERT_EQ(plan.routeCount, 5);
    // all start at once, so that they are in the order of rows and stops
    const int rows[] = {1, 1, 2, 3, 3};
    const std::vector<int> stops[] = {{1}, {3}, {2}, {4, 5}, {6}};
    for (int r = 1; r <= 5; ++r) {
        EXPECT_EQ(plan.routes(r).vehicle, rows[r - 1]);
        EXPECT_EQ(plan.routes(r).stops, stops[r - 1]);
    }
    EXPECT_EQ(plan.routes(4).totalWeight, 200);
    EXPECT_EQ(plan.routes(3).weightCapacity, 400);
}

TEST(Instance, KnowsWhetherTheClockMatters) {
    EXPECT_FALSE(instanceOf(twoStops()).clockMatters);
    Problem late = twoStops();
    Stop stop = late.stops(1);
    stop.begin1 = 1;
    late.stops.add(stop);
    EXPECT_TRUE(instanceOf(late).clockMatters);
    late.earliestStart = 1;
    EXPECT_FALSE(instanceOf(late).clockMatters);
    Problem tired = twoStops();
    tired.breaks(2) = {15, 600};
    EXPECT_TRUE(instanceOf(tired).clockMatters);
    tired.latestReturn = 600;
    EXPECT_FALSE(instanceOf(tired).clockMatters);
    EXPECT_TRUE(instanceOf(twoStops()).loadsMix);
}

TEST(Instance, CostsARouteByDistanceRegularHoursAndOvertime) {
    Problem problem = twoStops();
    problem.overtimeAfter = 2;
    const Instance instance = instanceOf(problem);
    const Fleet& van = instance.fleet(0);
    // in parts of 60: 40 fixed, 80 miles, 167 minutes of which 47 are overtime
    EXPECT_NEAR(60 * instance.routeCost(van, 2, 120), 40 + 40 + 24, 1E-09);
    EXPECT_NEAR(60 * instance.routeCost(van, 2, 167), 40 + 40 + 24 + 47 * .3, 1E-09);
}

} // namespace
} // namespace vantore::optmzr::tests
