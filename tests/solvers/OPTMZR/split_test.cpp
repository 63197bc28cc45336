#include <gtest/gtest.h>

#include <numeric>

#include "solvers/OPTMZR/genetic_search.h"
#include "solvers/OPTMZR/split.h"
#include "tests/routing/ROUTER/random_problems.h"

namespace vantore::optmzr::tests {
namespace {

using router::tests::RandomProblems;

/// All ways of cutting a tour into routes and giving these vehicles, as many as one likes or as there are.
class Cuts {
  public:
    Cuts(const Instance& instance, const Penalties& penalties, std::vector<int> tour, bool isLimited)
        : instance_(instance), judge_(instance, penalties), tour_(std::move(tour)), isLimited_(isLimited),
          used_(instance.fleets.size()) {}

    double least(std::size_t from = 0) {
        if (from == tour_.size()) return 0;
        double best = 1E+300;
        for (std::size_t to = from + 1; to <= tour_.size(); ++to) {
            const std::span<const int> stops(tour_.data() + from, to - from);
            const RouteSums sums = sumsOf(instance_, stops);
            for (std::size_t f = 0; f < used_.size(); ++f) {
                if (isLimited_ && used_[f] >= instance_.fleets[f].available) continue;
                ++used_[f];
                const double cost = judge_.value(instance_.fleets[f], sums, stops).penalised + least(to);
                --used_[f];
                best = std::min(best, cost);
            }
        }
        return best;
    }

  private:
    const Instance& instance_;
    RouteJudge judge_;
    std::vector<int> tour_;
    bool isLimited_;
    std::vector<int> used_;
};

double costOf(const Instance& instance, const Solution& solution, const Penalties& penalties) {
    RouteJudge judge(instance, penalties);
    double cost = 0;
    for (const FleetRoute& route : solution)
        cost +=
            judge.value(instance.fleet(route.fleet), sumsOf(instance, route.stops), route.stops).penalised;
    return cost;
}

std::vector<int> shuffledStops(const Instance& instance, Dice& dice) {
    std::vector<int> tour(static_cast<std::size_t>(instance.stopCount));
    std::iota(tour.begin(), tour.end(), 1);
    dice.shuffle(tour);
    return tour;
}

/// The stops of a solution one route behind the other, the last route first or the first.
std::vector<int> visited(const Solution& solution, bool isBackwards) {
    std::vector<int> stops;
    for (std::size_t r = 0; r < solution.size(); ++r) {
        const FleetRoute& route = solution[isBackwards ? solution.size() - 1 - r : r];
        stops.insert(stops.end(), route.stops.begin(), route.stops.end());
    }
    return stops;
}

bool isAtHand(const Instance& instance, const Solution& solution) {
    std::vector<int> used(instance.fleets.size());
    for (const FleetRoute& route : solution)
        if (++used[static_cast<std::size_t>(route.fleet)] > instance.fleet(route.fleet).available)
            return false;
    return true;
}

/// The least cost of cutting a tour for vehicles that come in this order, each to take the next stops or
/// none.
double leastInOrder(const Instance& instance, RouteJudge& judge, const std::vector<int>& tour,
                    const std::vector<int>& vehicles, std::size_t vehicle = 0, std::size_t from = 0) {
    if (from == tour.size()) return 0;
    if (vehicle == vehicles.size()) return 1E+300;
    double best = leastInOrder(instance, judge, tour, vehicles, vehicle + 1, from);
    for (std::size_t to = from + 1; to <= tour.size(); ++to) {
        const std::span<const int> stops(tour.data() + from, to - from);
        const Fleet& fleet = instance.fleet(vehicles[vehicle]);
        best = std::min(best, judge.value(fleet, sumsOf(instance, stops), stops).penalised +
                                  leastInOrder(instance, judge, tour, vehicles, vehicle + 1, to));
    }
    return best;
}

/// Penalties at which nothing pays to exceed a limit by so much that the route isn't tried.
constexpr Penalties high{1E+04, 1E+03, 1E+04, 1E+04, 1E+04};

TEST(Split, CutsATourAtTheLeastCost) {
    RandomProblems problems(2016);
    Dice dice(1);
    int limited = 0;
    int cheapest = 0;
    for (int trial = 0; trial < 200; ++trial) {
        const router::Problem problem = problems.next(problems.from(1, 7));
        const Instance instance(problem, router::Travel(problem));
        const Penalties penalties = trial % 2 == 0 ? firstPenalties(instance) : high;
        const std::vector<int> tour = shuffledStops(instance, dice);
        const Solution solution = Split(instance).routes(tour, penalties, dice);
        ASSERT_EQ(visited(solution, true), tour) << "problem " << trial;
        const double cost = costOf(instance, solution, penalties);
        const double free = Cuts(instance, penalties, tour, false).least();
        ASSERT_GE(cost, free - 1E-08);
        if (cost < free + 1E-08) {
            ++cheapest;
            continue;
        }
        // The vehicles that there are, in an order that chance has set; or, where they can't take all stops
        // without being grossly overloaded, as many as it takes.
        if (!isAtHand(instance, solution)) continue;
        ++limited;
        ASSERT_GE(cost, Cuts(instance, penalties, tour, true).least() - 1E-08);
    }
    EXPECT_GT(limited, 0);
    EXPECT_GT(cheapest, 50);
}

TEST(Split, WantsNoBetterCutWhereItHasTheVehicles) {
    RandomProblems problems(2017);
    Dice dice(2);
    for (int trial = 0; trial < 200; ++trial) {
        router::Problem problem = problems.next(problems.from(1, 7));
        CountedTable<router::Vehicle> vehicles;
        for (router::Vehicle vehicle : problem.vehicles.span()) {
            vehicle.number = problem.stops.count();
            vehicles.add(vehicle);
        }
        problem.vehicles = vehicles;
        const Instance instance(problem, router::Travel(problem));
        const std::vector<int> tour = shuffledStops(instance, dice);
        const Solution solution = Split(instance).routes(tour, high, dice);
        ASSERT_TRUE(isAtHand(instance, solution));
        ASSERT_NEAR(costOf(instance, solution, high), Cuts(instance, high, tour, false).least(), 1E-06)
            << "problem " << trial;
    }
}

TEST(Split, GivesVehiclesThatAreFewTheNextStopsInTheOrderThatChanceSets) {
    RandomProblems problems(2018);
    Dice dice(3);
    int limited = 0;
    for (int trial = 0; trial < 300; ++trial) {
        const router::Problem problem = problems.next(problems.from(1, 7));
        const Instance instance(problem, router::Travel(problem));
        const std::vector<int> tour = shuffledStops(instance, dice);
        Dice same = dice;
        const Solution solution = Split(instance).routes(tour, high, dice);
        std::vector<int> vehicles;
        for (int fleet = 0; fleet < instance.fleetCount(); ++fleet)
            vehicles.insert(vehicles.end(), std::size_t(instance.fleet(fleet).available), fleet);
        same.shuffle(vehicles);
        if (same.below(1000) != Dice(dice).below(1000)) continue; // enough vehicles for the best cut
        vehicles.resize(std::min(vehicles.size(), tour.size()));
        RouteJudge judge(instance, high);
        const double least = leastInOrder(instance, judge, tour, vehicles);
        if (least == 1E+300 || !isAtHand(instance, solution)) continue;
        ++limited;
        ASSERT_NEAR(costOf(instance, solution, high), least, 1E-06) << "problem " << trial;
    }
    EXPECT_GT(limited, 20);
}

TEST(Split, TriesNoRouteThatIsGrosslyOverloaded) {
    router::Problem problem;
    for (const double weight : {100.0, 49.0, 2.0}) {
        router::Stop stop;
        stop.type = router::delivery;
        stop.x = weight;
        stop.weight = weight;
        stop.end1 = stop.begin2 = stop.end2 = 9999;
        problem.stops.add(stop);
    }
    router::Vehicle vehicle;
    vehicle.number = 3;
    vehicle.weightCapacity = 100;
    vehicle.cubeCapacity = 1;
    vehicle.fixedCost = 1000;
    problem.vehicles.add(vehicle);
    const Instance instance(problem, router::Travel(problem));
    Dice dice(1);
    Split split(instance);
    // a route more is dear, an overload cheap; 149 of 100 may be tried, 151 may not
    const Solution solution = split.routes({1, 2, 3}, {0, 0, 0, 0, 0}, dice);
    EXPECT_EQ(solution.size(), 2U);
    EXPECT_EQ(split.work(), 3 + 2 + 2); // three routes of one stop, two of two stops
}

} // namespace
} // namespace vantore::optmzr::tests
