#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "routing/ROUTER/simulation.h"
#include "tests/routing/ROUTER/random_problems.h"
#include "tests/support/error_of.h"

namespace vantore::router::tests {
namespace {

using vantore::tests::errorOf;

/// A stop on the axis that is open all day.
Stop at(double x, double weight, const char* type = delivery) {
    Stop stop;
    stop.type = type;
    stop.x = x;
    stop.weight = weight;
    stop.cube = weight / 10;
    stop.loadTime = 6;
    stop.end1 = stop.begin2 = 1440;
    stop.end2 = 9999;
    return stop;
}

/// Three stops in a row, 10, 20 and 40 miles from the depot, at a mile in two minutes.
class Row : public testing::Test {
  protected:
    Row() {
        problem_.stops.add(at(10, 100));
        problem_.stops.add(at(20, 50, pickup));
        problem_.stops.add(at(40, 30));
        Vehicle vehicle;
        vehicle.number = 1;
        vehicle.weightCapacity = 130;
        vehicle.cubeCapacity = 13;
        vehicle.fixedCost = 20;
        vehicle.costPerMile = .5;
        vehicle.driverFixedCost = 30;
        vehicle.driverCostPerHour = 12;
        vehicle.overtimeCost = 18;
        problem_.vehicles.add(vehicle);
        route_.vehicle = 1;
        route_.start = 480;
        route_.stops = {1, 2, 3};
    }

    SimulatedRoute simulated() const { return simulate(problem_, Travel(problem_), route_); }

    std::vector<double> incrementalCosts() const {
        const Travel travel(problem_);
        std::vector<double> costs;
        for (int p = 1; p <= route_.stopCount(); ++p)
            costs.push_back(incrementalCost(problem_, travel, route_, simulated(), p));
        return costs;
    }

    /// The stops before whose arrival each break is taken, -1 for a break that isn't.
    std::vector<int> breakStops() const {
        std::vector<int> stops(breakCount, -1);
        for (const Visit& visit : simulated().visits)
            for (const int k : visit.breaks) stops[static_cast<std::size_t>(k - 1)] = visit.stop;
        return stops;
    }

    Problem problem_;
    PlannedRoute route_;
};

TEST_F(Row, FollowsTheClockFromStopToStop) {
    const SimulatedRoute route = simulated();
    ASSERT_EQ(route.visits.size(), 4U);
    const double arrivals[] = {500, 526, 572, 658};
    const double departures[] = {506, 532, 578, 658};
    const double distances[] = {10, 10, 20, 40};
    const int stops[] = {1, 2, 3, depotNumber};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(route.visits[i].stop, stops[i]);
        EXPECT_DOUBLE_EQ(route.visits[i].arrival, arrivals[i]);
        EXPECT_DOUBLE_EQ(route.visits[i].departure, departures[i]);
        EXPECT_DOUBLE_EQ(route.visits[i].leg.distance, distances[i]);
        EXPECT_DOUBLE_EQ(route.visits[i].driveMinutes, 2 * distances[i]);
        EXPECT_TRUE(route.visits[i].isInWindow);
        EXPECT_TRUE(route.visits[i].breaks.empty());
    }
    EXPECT_EQ(route.start, 480);
    EXPECT_DOUBLE_EQ(route.returned, 658);
    EXPECT_DOUBLE_EQ(route.distance, 80);
    EXPECT_DOUBLE_EQ(route.runTime, 160 / 60.0);
    EXPECT_DOUBLE_EQ(route.stemTime, 100 / 60.0);
    EXPECT_DOUBLE_EQ(route.stopTime, .3);
    EXPECT_EQ(route.breakTime, 0);
    EXPECT_NEAR(route.totalTime(), route.hoursOut(), 1E-12);
}

TEST_F(Row, CarriesWhatItDeliversAndWhatItPicksUp) {
    const SimulatedRoute route = simulated();
    EXPECT_EQ(route.deliveredWeight, 130);
    EXPECT_EQ(route.deliveredCube, 13);
    EXPECT_EQ(route.pickupWeight, 50);
    EXPECT_EQ(route.pickupCube, 5);
    const double weights[] = {30, 80, 50, 50};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(route.visits[i].weightOnBoard, weights[i]);
        EXPECT_EQ(route.visits[i].cubeOnBoard, weights[i] / 10);
    }
}

TEST_F(Row, CostsItsMileageItsHoursAndItsFixedCosts) {
    const RouteCosts costs = simulated().costs;
    EXPECT_EQ(costs.vehicleFixed, 20);
    EXPECT_EQ(costs.mileage, 40);
    EXPECT_EQ(costs.vehicleTotal, 60);
    EXPECT_EQ(costs.driverFixed, 30);
    EXPECT_DOUBLE_EQ(costs.regular, 35.6); // 178 minutes
    EXPECT_EQ(costs.overtime, 0);
    EXPECT_DOUBLE_EQ(costs.driverTotal, 65.6);
    EXPECT_DOUBLE_EQ(costs.total, 125.6);
}

TEST_F(Row, PaysOvertimeForWhatIsBeyondTheRegularHours) {
    problem_.overtimeAfter = 2.5;
    const RouteCosts costs = simulated().costs;
    EXPECT_DOUBLE_EQ(costs.regular, 30);
    EXPECT_DOUBLE_EQ(costs.overtime, 8.4); // 28 minutes
    EXPECT_DOUBLE_EQ(costs.total, 60 + 30 + 38.4);
}

TEST_F(Row, TimesAStopByItsLoadUnlessItHasATimeOfItsOwn) {
    problem_.fixedStopTime = 3;
    problem_.timePerWeight = .1;
    problem_.timePerCube = .5;
    EXPECT_EQ(stopMinutes(problem_, problem_.stops(1)), 6);
    problem_.stops(1).loadTime = -4;
    EXPECT_DOUBLE_EQ(stopMinutes(problem_, problem_.stops(1)), 3 + 10 + 5);
    EXPECT_DOUBLE_EQ(simulated().visits[0].departure, 518);
}

TEST_F(Row, TakesABreakBeforeTheArrivalAtWhichItIsDue) {
    problem_.breaks(1) = {15, 550};
    const SimulatedRoute route = simulated();
    EXPECT_EQ(breakStops(), (std::vector<int>{3, -1, -1, -1}));
    EXPECT_DOUBLE_EQ(route.visits[2].arrival, 587);
    EXPECT_DOUBLE_EQ(route.returned, 673);
    EXPECT_DOUBLE_EQ(route.breakTime, .25);
    EXPECT_DOUBLE_EQ(route.costs.regular, 193 / 5.0);
}

TEST_F(Row, TakesABreakAtItsVeryTimeOnTheFirstLegAlone) {
    problem_.breaks(1) = {15, 500};
    EXPECT_EQ(breakStops(), (std::vector<int>{1, -1, -1, -1}));
    problem_.breaks(1) = {15, 526};
    EXPECT_EQ(breakStops(), (std::vector<int>{3, -1, -1, -1}));
    problem_.breaks(1) = {15, 658};
    EXPECT_EQ(breakStops(), (std::vector<int>{-1, -1, -1, -1}));
    problem_.breaks(1) = {15, 657.99};
    EXPECT_EQ(breakStops(), (std::vector<int>{0, -1, -1, -1}));
}

TEST_F(Row, TakesSeveralBreaksAtOnceEachAfterTheOneBefore) {
    problem_.breaks(1) = {20, 510};
    problem_.breaks(2) = {15, 540}; // due as the first one ends at 546
    problem_.breaks(3) = {10, 561}; // the second one ends at its very time, so the next arrival brings it
    problem_.breaks(4) = {5, 0};    // due from the start
    EXPECT_EQ(breakStops(), (std::vector<int>{2, 2, 2, 1}));
    problem_.breaks(4) = {5, 9999};
    EXPECT_EQ(breakStops(), (std::vector<int>{2, 2, 3, -1}));
}

TEST_F(Row, TestsEachArrivalAgainstBothWindows) {
    const auto hours = [this](double begin1, double end1, double begin2, double end2) {
        Stop& stop = problem_.stops(2);
        stop.begin1 = begin1;
        stop.end1 = end1;
        stop.begin2 = begin2;
        stop.end2 = end2;
        const SimulatedRoute route = simulated();
        EXPECT_EQ(route.violations.timeWindows, !route.visits[1].isInWindow);
        EXPECT_TRUE(route.visits[0].isInWindow && route.visits[2].isInWindow && route.visits[3].isInWindow);
        return route.visits[1].isInWindow;
    };
    EXPECT_TRUE(hours(526, 600, 700, 800));
    EXPECT_TRUE(hours(400, 526, 700, 800));
    EXPECT_TRUE(hours(100, 200, 526, 800));
    EXPECT_TRUE(hours(100, 200, 400, 526));
    EXPECT_FALSE(hours(100, 525, 527, 800));
    EXPECT_FALSE(hours(527, 600, 700, 800));
    EXPECT_FALSE(hours(100, 200, 300, 525));
}

TEST_F(Row, FlagsALimitOnlyWhereItIsExceeded) {
    const auto flags = [this] {
        const RouteViolations v = simulated().violations;
        return std::string{v.time ? '1' : '-',     v.earliestStart ? '2' : '-', v.latestReturn ? '3' : '-',
                           v.distance ? '4' : '-', v.weight ? '5' : '-',        v.cube ? '6' : '-'};
    };
    problem_.earliestStart = 480;
    problem_.latestReturn = 658;
    problem_.maxTime = simulated().totalTime();
    problem_.maxDistance = 80;
    EXPECT_EQ(flags(), "------");
    problem_.maxTime = 2.96;
    EXPECT_EQ(flags(), "1-----");
    problem_.maxTime = 3;
    problem_.earliestStart = 481;
    EXPECT_EQ(flags(), "-2----");
    problem_.earliestStart = 0;
    problem_.latestReturn = 657;
    EXPECT_EQ(flags(), "--3---");
    problem_.latestReturn = 9999;
    problem_.maxDistance = 79;
    EXPECT_EQ(flags(), "---4--");
    problem_.maxDistance = 9999;
    problem_.stops(3).weight = 31;
    EXPECT_EQ(flags(), "----5-");
    problem_.stops(3).weight = 30;
    problem_.stops(3).cube = 4;
    EXPECT_EQ(flags(), "-----6");
    problem_.stops(2).weight = 500; // what is picked up isn't flagged
    EXPECT_EQ(flags(), "-----6");
}

TEST_F(Row, PricesAStopByWhatItsRouteWouldSave) {
    // without the first stop: no mile, six minutes; without the last: 40 miles and 80 + 6 minutes
    const std::vector<double> costs = incrementalCosts();
    EXPECT_NEAR(costs[0], 1.2, 1E-12);
    EXPECT_NEAR(costs[1], 1.2, 1E-12);
    EXPECT_NEAR(costs[2], 20 + 86 / 5.0, 1E-12);
}

TEST_F(Row, PricesTheSavedTimeAsOvertimeFirst) {
    problem_.overtimeAfter = 2.5; // 28 minutes of overtime
    EXPECT_NEAR(incrementalCosts()[0], 1.8, 1E-12);
    EXPECT_NEAR(incrementalCosts()[2], 20 + 28 * .3 + 58 * .2, 1E-12);
    problem_.overtimeAfter = 178 / 60.0;
    EXPECT_NEAR(incrementalCosts()[0], 1.2, 1E-12);
    problem_.overtimeAfter = 92 / 60.0; // where the saving ends
    EXPECT_NEAR(incrementalCosts()[2], 20 + 86 * .3, 1E-9);
}

TEST_F(Row, PricesTheOnlyStopAtTheWholeRoute) {
    route_.stops = {2};
    EXPECT_EQ(incrementalCosts(), std::vector<double>{simulated().costs.total});
}

TEST_F(Row, StaysAtTheDepotWithoutStops) {
    route_.stops = {};
    const SimulatedRoute route = simulated();
    EXPECT_TRUE(route.visits.empty());
    EXPECT_EQ(route.distance, 0);
    EXPECT_EQ(route.returned, 480);
    EXPECT_EQ(route.costs.total, 50);
}

TEST_F(Row, KnowsNoStopAndNoVehicleBeyondTheTables) {
    for (const int stop : {0, 4, -1}) {
        route_.stops = {1, stop};
        EXPECT_EQ(errorOf([this] { simulated(); }), ErrorNumber::SubscriptOutOfRange);
    }
    route_.stops = {1};
    for (const int vehicle : {0, 2}) {
        route_.vehicle = vehicle;
        EXPECT_EQ(errorOf([this] { simulated(); }), ErrorNumber::SubscriptOutOfRange);
    }
}

TEST_F(Row, FailsWhereASpeedIsZeroOrAFigureHasNoBounds) {
    problem_.speeds.add({1, "", 2, "", 0});
    EXPECT_EQ(errorOf([this] { simulated(); }), ErrorNumber::DivisionByZero);
    route_.stops = {2, 3};
    EXPECT_EQ(errorOf([this] { simulated(); }), ErrorNumber{});
    problem_.stops(3).weight = 1E+308;
    problem_.stops(2).weight = 1E+308;
    problem_.stops(2).type = delivery;
    EXPECT_EQ(errorOf([this] { simulated(); }), ErrorNumber::Overflow);
}

TEST_F(Row, CountsTheBarriersThatItsLegsEndIn) {
    problem_.barriers.add({18, 2, 22, 2, 18, -2, 22, -2});
    EXPECT_EQ(simulated().barriersEnded, 2);
    route_.stops = {1, 3};
    EXPECT_EQ(simulated().barriersEnded, 0);
}

/// What holds for every route of every problem.
class AnyRoute : public testing::Test {
  protected:
    void eachRoute(const std::function<void(const Problem&, const PlannedRoute&)>& check) {
        RandomProblems problems(1121);
        for (int trial = 0; trial < 500; ++trial) {
            const Problem problem = problems.next(problems.from(1, 12));
            check(problem, problems.route(problem));
        }
    }
};

TEST_F(AnyRoute, IsTheSumOfItsLegsAndStops) {
    eachRoute([](const Problem& problem, const PlannedRoute& planned) {
        const SimulatedRoute route = simulate(problem, Travel(problem), planned);
        double distance = 0, drive = 0, stops = 0, breaks = 0;
        for (const Visit& visit : route.visits) {
            distance += visit.leg.distance;
            drive += visit.driveMinutes;
            stops += visit.stopTime;
            for (const int k : visit.breaks) breaks += problem.breaks(k).duration;
        }
        ASSERT_NEAR(route.distance, distance, 1E-9);
        ASSERT_NEAR(route.runTime * 60, drive, 1E-9);
        ASSERT_NEAR(route.stopTime * 60, stops, 1E-9);
        ASSERT_NEAR(route.breakTime * 60, breaks, 1E-9);
        ASSERT_NEAR(route.hoursOut(), route.totalTime(), 1E-9);
        ASSERT_NEAR(route.visits.back().weightOnBoard, route.pickupWeight, 1E-9);
        ASSERT_NEAR(route.visits.back().cubeOnBoard, route.pickupCube, 1E-9);
        const RouteCosts& costs = route.costs;
        ASSERT_NEAR(costs.total,
                    costs.vehicleFixed + costs.mileage + costs.driverFixed + costs.regular + costs.overtime,
                    1E-9);
    });
}

TEST_F(AnyRoute, IsNeverShortenedByABreak) {
    eachRoute([](const Problem& problem, const PlannedRoute& planned) {
        const double before = simulate(problem, Travel(problem), planned).returned;
        for (const double due : {0.0, 400.0, 600.0, 800.0, 1200.0}) {
            Problem tired = problem;
            tired.breaks(3) = {20, due};
            const SimulatedRoute route = simulate(tired, Travel(tired), planned);
            ASSERT_GE(route.returned, before);
            ASSERT_GE(route.totalTime(), (before - planned.start) / 60 - 1E-9);
        }
    });
}

TEST_F(AnyRoute, OfOneStopCostsWhatTheStopAdds) {
    eachRoute([](const Problem& problem, PlannedRoute planned) {
        planned.stops.resize(1);
        const Travel travel(problem);
        const SimulatedRoute route = simulate(problem, travel, planned);
        ASSERT_EQ(incrementalCost(problem, travel, planned, route, 1), route.costs.total);
    });
}

TEST_F(AnyRoute, SavesWhatAStopAddsWhereNoBreakMoves) {
    eachRoute([](Problem problem, PlannedRoute planned) {
        problem.breaks = {};
        if (planned.stopCount() < 2) return;
        const Travel travel(problem);
        const SimulatedRoute route = simulate(problem, travel, planned);
        for (int p = 1; p <= planned.stopCount(); ++p) {
            PlannedRoute without = planned;
            without.stops.erase(without.stops.begin() + p - 1);
            const double saved = route.costs.total - simulate(problem, travel, without).costs.total;
            const double added = incrementalCost(problem, travel, planned, route, p);
            // Where a stop saves time by being there, the rate is that of the hours with it.
            if (simulate(problem, travel, without).returned <= route.returned) {
                ASSERT_NEAR(added, saved, 1E-9);
            }
        }
    });
}

} // namespace
} // namespace vantore::router::tests
