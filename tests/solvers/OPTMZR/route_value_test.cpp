#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "routing/ROUTER/simulation.h"
#include "solvers/OPTMZR/genetic_search.h"
#include "tests/routing/ROUTER/random_problems.h"
#include "tests/solvers/OPTMZR/enumeration.h"

namespace vantore::optmzr::tests {
namespace {

using router::Problem;
using router::Stop;
using router::Travel;
using router::Vehicle;
using router::tests::RandomProblems;

constexpr double agreement = 1E-08;

double above(double value, double limit) {
    return std::max(0.0, value - limit);
}

/// What the search counts in, taken from the problem anew.
struct Units {
    explicit Units(const Problem& problem) {
        const Travel travel(problem);
        for (int a = 0; a <= problem.stops.count(); ++a)
            for (int b = 0; b <= problem.stops.count(); ++b)
                if (a != b) distance = std::max(distance, travel.leg(a, b).distance);
        for (const Vehicle& vehicle : problem.vehicles.span()) {
            weight = std::max(weight, vehicle.weightCapacity);
            cube = std::max(cube, vehicle.cubeCapacity);
            for (int a = 0; a <= problem.stops.count(); ++a)
                for (int b = 0; b <= problem.stops.count(); ++b)
                    if (a != b)
                        cost =
                            std::max(cost, vehicle.costPerMile * travel.leg(a, b).distance +
                                               vehicle.driverCostPerHour * Travel::hours(travel.leg(a, b)));
        }
    }

    double distance = 0, weight = 0, cube = 0, cost = 0;
};

/// By how many minutes an arrival comes before its time, or after it; of the two the less.
struct Missed {
    double early = 0;
    double late = 0;
};

Missed missed(const Stop& stop, double arrival) {
    double early = 1E+09, late = 1E+09;
    for (const auto& [begin, end] : {std::pair(stop.begin1, stop.end1), {stop.begin2, stop.end2}}) {
        if (arrival <= end) early = std::min(early, above(begin, arrival));
        if (arrival >= begin) late = std::min(late, above(arrival, end));
    }
    return early <= late ? Missed{early, 0} : Missed{0, late};
}

/// A route by the module's simulation, in the search's units.
class PlainValue {
  public:
    PlainValue(Problem problem, int row, const std::vector<int>& stops)
        : problem_(withoutBreaksOfTheNight(std::move(problem))), travel_(problem_), units_(problem_) {
        route_.vehicle = row;
        route_.stops = stops;
    }

    /// At some start, with the largest time missed before a window and the largest after one.
    RouteValue at(double start) {
        route_.start = start;
        const router::SimulatedRoute route = router::simulate(problem_, travel_, route_);
        const Vehicle& vehicle = problem_.vehicles(route_.vehicle);
        RouteValue value;
        value.cost = route.costs.total / units_.cost;
        value.distance = above(route.distance, problem_.maxDistance) / units_.distance;
        double early = 0;
        double late = above(route.returned, problem_.latestReturn);
        double weight = route.deliveredWeight, cube = route.deliveredCube;
        double leftWeight = weight, leftCube = cube, weightAtPickup = 0, cubeAtPickup = 0;
        for (const router::Visit& visit : route.visits) {
            weight = std::max(weight, visit.weightOnBoard);
            cube = std::max(cube, visit.cubeOnBoard);
            if (visit.stop == router::depotNumber) continue;
            const Stop& stop = problem_.stops(visit.stop);
            early = std::max(early, missed(stop, visit.arrival).early);
            late = std::max(late, missed(stop, visit.arrival).late);
            if (stop.type == router::delivery) {
                leftWeight -= stop.weight;
                leftCube -= stop.cube;
            } else {
                weightAtPickup = std::max(weightAtPickup, leftWeight);
                cubeAtPickup = std::max(cubeAtPickup, leftCube);
            }
        }
        value.load = above(weight, vehicle.weightCapacity) / units_.weight +
                     above(cube, vehicle.cubeCapacity) / units_.cube;
        value.minutes = above(60 * route.totalTime(), 60 * problem_.maxTime) + early + late;
        const double share = problem_.pickupPercent / 100;
        if (share < 1)
            value.share = above(weightAtPickup, share * vehicle.weightCapacity) / units_.weight +
                          above(cubeAtPickup, share * vehicle.cubeCapacity) / units_.cube;
        return value;
    }

    /// At a start, or next to it where rounding makes a break fall due there: what comes nearest to `value`.
    RouteValue closeTo(double start, const RouteValue& value) {
        constexpr double little = 1E-06;
        const auto far = [&value](const RouteValue& other) {
            return std::abs(other.minutes - value.minutes) + std::abs(other.cost - value.cost);
        };
        RouteValue closest = at(start);
        for (const double next : {start - little, start + little})
            if (const RouteValue nearby = at(next); far(nearby) + little < far(closest)) closest = nearby;
        return closest;
    }

    /// The least of times missed at any minute, and at the bounds of windows.
    double leastMissed(double from, double until) {
        double least = beyondReach;
        for (double start = from; start <= until; start += 1) {
            const RouteValue value = at(start);
            const router::SimulatedRoute route = router::simulate(problem_, travel_, route_);
            least = std::min(least, value.minutes - above(60 * route.totalTime(), 60 * problem_.maxTime));
        }
        return least;
    }

  private:
    /// The search leaves out a break that falls due after the latest return.
    static Problem withoutBreaksOfTheNight(Problem problem) {
        for (int k = 1; k <= router::breakCount; ++k)
            if (problem.breaks(k).beginsAfter >= problem.latestReturn) problem.breaks(k) = {};
        return problem;
    }

    Problem problem_;
    Travel travel_;
    Units units_;
    router::PlannedRoute route_;
};

/// Some stops of a problem in a random order.
std::vector<int> randomStops(int count, Dice& dice) {
    std::vector<int> stops;
    for (int stop = 1; stop <= count; ++stop) stops.push_back(stop);
    dice.shuffle(stops);
    stops.resize(static_cast<std::size_t>(1 + dice.below(count)));
    return stops;
}

TEST(RouteJudge, ValuesARouteAsTheSimulationDoes) {
    RandomProblems problems(515);
    Dice dice(8);
    int overloaded = 0, late = 0, tooFar = 0, mixed = 0;
    for (int trial = 0; trial < 1000; ++trial) {
        const Problem problem = problems.next(problems.from(1, 9));
        const Instance instance(problem, Travel(problem));
        const Penalties penalties{2, .125, 3, 5, 7};
        RouteJudge judge(instance, penalties);
        const std::vector<int> stops = randomStops(instance.stopCount, dice);
        const Fleet& fleet = instance.fleet(dice.below(instance.fleetCount()));
        const RouteSums sums = sumsOf(instance, stops);
        const RouteOrder order = judge.order(sums, stops);
        const RouteValue value = judge.value(fleet, sums, stops);
        const double start = instance.clockMatters ? order.timing.start : problem.earliestStart;
        const RouteValue plain = PlainValue(problem, fleet.rows.front(), stops).closeTo(start, value);
        ASSERT_NEAR(value.cost, plain.cost, agreement * (1 + plain.cost)) << "problem " << trial;
        ASSERT_NEAR(value.load, plain.load, agreement) << "problem " << trial;
        ASSERT_NEAR(value.minutes, plain.minutes, 1E-04) << "problem " << trial;
        ASSERT_NEAR(value.distance, plain.distance, agreement) << "problem " << trial;
        ASSERT_NEAR(value.share, plain.share, agreement) << "problem " << trial;
        ASSERT_NEAR(value.penalised,
                    value.cost + 2 * value.load + .125 * value.minutes + 3 * value.distance + 5 * value.share,
                    agreement);
        ASSERT_NEAR(value.excess(), value.load + value.minutes + value.distance + value.share, agreement);
        if (value.load > 0) ++overloaded;
        if (value.minutes > 0) ++late;
        if (value.distance > 0) ++tooFar;
        if (value.share > 0) ++mixed;
    }
    for (const int count : {overloaded, late, tooFar, mixed}) EXPECT_GT(count, 50);
}

TEST(RouteJudge, MissesTimesByTheLeastThatAnyStartMisses) {
    RandomProblems problems(516);
    Dice dice(9);
    for (int trial = 0; trial < 60; ++trial) {
        const Problem problem = problems.next(problems.from(1, 6));
        const Instance instance(problem, Travel(problem));
        RouteJudge judge(instance, firstPenalties(instance));
        const std::vector<int> stops = randomStops(instance.stopCount, dice);
        const RouteOrder order = judge.order(sumsOf(instance, stops), stops);
        PlainValue plain(problem, 1, stops);
        const double least = plain.leastMissed(problem.earliestStart, 1500);
        ASSERT_LE(order.timing.excess(), least + 1E-05) << "problem " << trial;
    }
}

TEST(RouteJudge, CountsInStrictSearchesWhatAPlanIsJudgedBy) {
    RandomProblems problems(517);
    Dice dice(10);
    int broken = 0;
    for (int trial = 0; trial < 1000; ++trial) {
        const Problem problem = problems.next(problems.from(1, 8));
        const Instance instance(problem, Travel(problem));
        const Units units(problem);
        RouteJudge judge(instance, firstPenalties(instance));
        constexpr StrictPenalties strict{1000, 10};
        judge.beStrict(strict);
        ASSERT_TRUE(judge.orderMatters());
        const std::vector<int> stops = randomStops(instance.stopCount, dice);
        const Fleet& fleet = instance.fleet(dice.below(instance.fleetCount()));
        const RouteSums sums = sumsOf(instance, stops);
        const RouteValue value = judge.value(fleet, sums, stops);
        const BestOfAll best = enumeratedRoute(problem, fleet.rows.front(), stops);
        ASSERT_EQ(value.misses.count, best.violations) << "problem " << trial;
        ASSERT_NEAR(value.misses.excess, best.excess, 1E-06) << "problem " << trial;
        if (best.violations == 0) {
            ASSERT_NEAR(value.cost * units.cost, best.cost, 1E-06 * best.cost) << "problem " << trial;
        }
        ASSERT_NEAR(value.penalised, value.cost + 1000 * value.misses.count + 10 * value.misses.excess,
                    agreement);
        ASSERT_LE(judge.bound(fleet, sums).penalised, value.penalised + agreement);
        if (best.violations > 0) ++broken;
    }
    EXPECT_GT(broken, 300);
    EXPECT_LT(broken, 900);
}

/// Plain deliveries at any hour, so that the sums tell all.
Problem timeless(Problem problem) {
    problem.breaks = Problem().breaks;
    CountedTable<Stop> stops;
    for (Stop stop : problem.stops.span()) {
        stop.type = router::delivery;
        stop.begin1 = 0;
        stop.end1 = stop.begin2 = stop.end2 = 9999;
        stops.add(stop);
    }
    problem.stops = stops;
    return problem;
}

TEST(RouteJudge, IsNeverBelowItsBounds) {
    RandomProblems problems(33);
    Dice dice(7);
    for (int trial = 0; trial < 1000; ++trial) {
        Problem problem = problems.next(problems.from(1, 10));
        if (trial % 2 == 0) problem = timeless(problem);
        const Instance instance(problem, Travel(problem));
        RouteJudge judge(instance, firstPenalties(instance));
        if (trial % 4 > 1) judge.beStrict({1000, 10});
        const std::vector<int> stops = randomStops(instance.stopCount, dice);
        const RouteSums sums = sumsOf(instance, stops);
        for (const Fleet& fleet : instance.fleets) {
            const RouteValue bound = judge.bound(fleet, sums);
            const double value = judge.value(fleet, sums, stops).penalised;
            ASSERT_LE(bound.penalised, value + agreement);
            ASSERT_LE(judge.legBound(fleet, sums), bound.penalised);
            // without loads, clock and order they are what the route comes to
            if (trial % 4 > 0) continue;
            ASSERT_NEAR(bound.penalised, value, agreement);
            RouteSums empty = sums;
            empty.delivered = {};
            ASSERT_NEAR(judge.legBound(fleet, sums), judge.bound(fleet, empty).penalised, agreement);
        }
    }
}

TEST(Penalties, AllGrowTogether) {
    const Penalties penalties = Penalties{1, 2, 3, 4, 5}.times(10);
    EXPECT_EQ(penalties.load, 10);
    EXPECT_EQ(penalties.minutes, 20);
    EXPECT_EQ(penalties.distance, 30);
    EXPECT_EQ(penalties.share, 40);
    EXPECT_EQ(penalties.vehicle, 50);
}

} // namespace
} // namespace vantore::optmzr::tests
