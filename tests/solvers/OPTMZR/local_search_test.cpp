#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

#include "solvers/OPTMZR/genetic_search.h"
#include "solvers/OPTMZR/local_search.h"
#include "solvers/OPTMZR/savings.h"
#include "tests/routing/ROUTER/random_problems.h"

namespace vantore::optmzr::tests {
namespace {

using router::tests::RandomProblems;

constexpr double rounding = 1E-08;

/// The cost of a solution with penalties, each route valued from its stops.
double penalised(const Instance& instance, const Solution& solution, const Penalties& penalties) {
    RouteJudge judge(instance, penalties);
    std::vector<int> used(instance.fleets.size());
    double cost = 0;
    for (const FleetRoute& route : solution) {
        cost +=
            judge.value(instance.fleet(route.fleet), sumsOf(instance, route.stops), route.stops).penalised;
        if (++used[static_cast<std::size_t>(route.fleet)] > instance.fleet(route.fleet).available)
            cost += penalties.vehicle;
    }
    return cost;
}

std::vector<int> allStops(const Solution& solution) {
    std::vector<int> stops;
    for (const FleetRoute& route : solution)
        stops.insert(stops.end(), route.stops.begin(), route.stops.end());
    std::sort(stops.begin(), stops.end());
    return stops;
}

std::vector<int> upTo(int count) {
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 1);
    return numbers;
}

/// Every stop in a random route of a random fleet.
Solution randomSolution(const Instance& instance, Dice& dice) {
    std::vector<int> stops = upTo(instance.stopCount);
    dice.shuffle(stops);
    Solution solution;
    for (const int stop : stops) {
        if (solution.empty() || dice.below(4) == 0)
            solution.push_back({dice.below(instance.fleetCount()), {}});
        solution.back().stops.push_back(stop);
    }
    return solution;
}

/// A problem without windows, breaks or a mixture of pickups and deliveries.
router::Problem plain(router::Problem problem) {
    problem.breaks = router::Problem().breaks;
    CountedTable<router::Stop> stops;
    for (router::Stop stop : problem.stops.span()) {
        stop.type = router::delivery;
        stop.begin1 = 0;
        stop.end1 = stop.begin2 = stop.end2 = 9999;
        stops.add(stop);
    }
    problem.stops = stops;
    return problem;
}

TEST(LocalSearch, KeepsEveryStopAndKnowsWhatItsRoutesCost) {
    RandomProblems problems(2022);
    Dice dice(5);
    for (int trial = 0; trial < 150; ++trial) {
        router::Problem problem = problems.next(problems.from(1, 25));
        if (trial % 2 == 0) problem = plain(problem);
        const Instance instance(problem, router::Travel(problem));
        const Penalties penalties = firstPenalties(instance);
        LocalSearch search(instance);
        Solution solution = randomSolution(instance, dice);
        const double before = penalised(instance, solution, penalties);
        search.improve(solution, penalties, dice);
        ASSERT_EQ(allStops(solution), upTo(instance.stopCount));
        const double after = penalised(instance, solution, penalties);
        ASSERT_LE(after, before + rounding);
        ASSERT_NEAR(search.total().penalised, after, rounding);
        const double again = after;
        search.improve(solution, penalties, dice);
        ASSERT_LE(penalised(instance, solution, penalties), again + rounding);
    }
}

/// All solutions that differ from a solution by one stop moved, two exchanged, or two tails exchanged.
std::vector<Solution> neighbours(const Solution& solution) {
    std::vector<Solution> result;
    for (std::size_t a = 0; a < solution.size(); ++a) {
        for (std::size_t b = 0; b < solution.size(); ++b) {
            for (std::size_t i = 0; i < solution[a].stops.size(); ++i) {
                for (std::size_t j = 0; j <= solution[b].stops.size(); ++j) {
                    Solution moved = solution;
                    const int stop = moved[a].stops[i];
                    moved[a].stops.erase(moved[a].stops.begin() + static_cast<std::ptrdiff_t>(i));
                    if (j <= moved[b].stops.size()) {
                        moved[b].stops.insert(moved[b].stops.begin() + static_cast<std::ptrdiff_t>(j), stop);
                        result.push_back(moved);
                    }
                    if (a == b) continue;
                    Solution tails = solution;
                    std::vector<int>& one = tails[a].stops;
                    std::vector<int>& other = tails[b].stops;
                    const std::vector<int> tail(one.begin() + static_cast<std::ptrdiff_t>(i), one.end());
                    one.resize(i);
                    one.insert(one.end(), other.begin() + static_cast<std::ptrdiff_t>(j), other.end());
                    other.resize(j);
                    other.insert(other.end(), tail.begin(), tail.end());
                    result.push_back(tails);
                    if (j == solution[b].stops.size()) continue;
                    Solution exchanged = solution;
                    std::swap(exchanged[a].stops[i], exchanged[b].stops[j]);
                    result.push_back(exchanged);
                }
            }
        }
    }
    for (Solution& each : result)
        std::erase_if(each, [](const FleetRoute& route) { return route.stops.empty(); });
    return result;
}

TEST(LocalSearch, LeavesNoSimpleChangeThatWouldHelp) {
    RandomProblems problems(1964);
    Dice dice(6);
    for (int trial = 0; trial < 60; ++trial) {
        router::Problem problem = problems.next(problems.from(2, 12));
        if (trial % 2 == 0) problem = plain(problem);
        const Instance instance(problem, router::Travel(problem));
        const Penalties penalties = firstPenalties(instance);
        Solution solution = randomSolution(instance, dice);
        LocalSearch(instance).improve(solution, penalties, dice);
        const double cost = penalised(instance, solution, penalties);
        for (const Solution& neighbour : neighbours(solution))
            ASSERT_GE(penalised(instance, neighbour, penalties), cost - rounding) << "problem " << trial;
    }
}

TEST(LocalSearch, ExchangesTwoStopsThatEachGoToTheirBestPlace) {
    // Two routes out and back along two lines; two stops of the same load are in the wrong one, each to be
    // put elsewhere than where the other was, and neither vehicle has room for both.
    router::Problem problem;
    const double places[][2] = {{10, 0}, {20, 0}, {30, 0}, {30, 50}, {10, 50}, {20, 50}, {40, 50}, {40, 0}};
    for (const auto& place : places) {
        router::Stop stop;
        stop.type = router::delivery;
        stop.x = place[0];
        stop.y = place[1];
        stop.weight = 1;
        stop.end1 = stop.begin2 = stop.end2 = 9999;
        problem.stops.add(stop);
    }
    problem.depotY = 25;
    router::Vehicle vehicle;
    vehicle.number = 2;
    vehicle.weightCapacity = 4;
    vehicle.cubeCapacity = 1;
    vehicle.costPerMile = 1;
    problem.vehicles.add(vehicle);
    const Instance instance(problem, router::Travel(problem));
    const Penalties high{1000, 1000, 1000, 1000, 1000};
    Solution solution{{0, {4, 1, 2, 3}}, {0, {8, 5, 6, 7}}};
    Dice dice(1);
    LocalSearch(instance).improve(solution, high, dice);
    ASSERT_EQ(solution.size(), 2U);
    for (FleetRoute& route : solution) std::sort(route.stops.begin(), route.stops.end());
    EXPECT_EQ(std::min(solution[0].stops, solution[1].stops), (std::vector<int>{1, 2, 3, 8}));
}

TEST(LocalSearch, GivesEachRouteTheVehicleThatFits) {
    router::Problem problem;
    for (int i = 0; i < 4; ++i) {
        router::Stop stop;
        stop.type = router::delivery;
        stop.x = i < 3 ? 10 : -10;
        stop.y = i;
        stop.weight = i < 3 ? 30 : 40;
        stop.end1 = stop.begin2 = stop.end2 = 9999;
        problem.stops.add(stop);
    }
    for (const double capacity : {40.0, 90.0}) {
        router::Vehicle vehicle;
        vehicle.number = 1;
        vehicle.weightCapacity = capacity;
        vehicle.cubeCapacity = 1;
        vehicle.costPerMile = capacity;
        problem.vehicles.add(vehicle);
    }
    const Instance instance(problem, router::Travel(problem));
    const Penalties high{1000, 1000, 1000, 1000, 1000};
    Solution solution{{0, {1, 2, 3}}, {1, {4}}};
    Dice dice(1);
    LocalSearch search(instance);
    search.improve(solution, high, dice);
    EXPECT_TRUE(search.isFeasible());
    ASSERT_EQ(solution.size(), 2U);
    for (const FleetRoute& route : solution) EXPECT_EQ(route.stops.size(), route.fleet == 0 ? 1U : 3U);
}

TEST(Savings, JoinsRoutesWhereThatPays) {
    RandomProblems problems(44);
    for (int trial = 0; trial < 50; ++trial) {
        const router::Problem problem = problems.next(problems.from(1, 20));
        const Instance instance(problem, router::Travel(problem));
        const Penalties penalties = firstPenalties(instance);
        const Solution solution = savings(instance, penalties);
        ASSERT_EQ(allStops(solution), upTo(instance.stopCount));
        RouteJudge judge(instance, penalties);
        const auto least = [&](const std::vector<int>& stops) {
            double cost = 1E+300;
            for (const Fleet& fleet : instance.fleets)
                cost = std::min(cost, judge.value(fleet, sumsOf(instance, stops), stops).penalised);
            return cost;
        };
        for (const FleetRoute& a : solution) {
            for (const FleetRoute& b : solution) {
                if (&a == &b) continue;
                std::vector<int> joint = a.stops;
                joint.insert(joint.end(), b.stops.begin(), b.stops.end());
                ASSERT_GE(least(joint), least(a.stops) + least(b.stops) - rounding);
            }
        }
    }
}

} // namespace
} // namespace vantore::optmzr::tests
