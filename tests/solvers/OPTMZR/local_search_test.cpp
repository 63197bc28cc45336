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

/// What the routes of a solution exceed and cost, each valued from its stops.
RouteValue totalOf(const Instance& instance, const Solution& solution, const Penalties& penalties) {
    RouteJudge judge(instance, penalties);
    RouteValue total;
    for (const FleetRoute& route : solution) {
        const RouteValue value =
            judge.value(instance.fleet(route.fleet), sumsOf(instance, route.stops), route.stops);
        total.cost += value.cost;
        total.load += value.load;
        total.minutes += value.minutes;
        total.distance += value.distance;
        total.share += value.share;
    }
    return total;
}

/// Vehicles beyond those that there are, and kinds of limits that routes exceed.
struct Counts {
    int missing = 0;
    int violations = 0;
};

Counts countsOf(const Instance& instance, const Solution& solution) {
    RouteJudge judge(instance, {});
    std::vector<int> used(instance.fleets.size());
    Counts counts;
    for (const FleetRoute& route : solution) {
        if (++used[static_cast<std::size_t>(route.fleet)] > instance.fleet(route.fleet).available)
            ++counts.missing;
        const RouteValue value =
            judge.value(instance.fleet(route.fleet), sumsOf(instance, route.stops), route.stops);
        for (const double excess : {value.load, value.minutes, value.distance, value.share})
            if (excess > rounding) ++counts.violations;
    }
    counts.violations += counts.missing;
    return counts;
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
    int feasible = 0;
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
        const RouteValue total = search.total();
        const RouteValue expected = totalOf(instance, solution, penalties);
        ASSERT_NEAR(total.penalised, after, rounding);
        ASSERT_NEAR(total.cost, expected.cost, rounding);
        ASSERT_NEAR(total.load, expected.load, rounding);
        ASSERT_NEAR(total.minutes, expected.minutes, rounding);
        ASSERT_NEAR(total.distance, expected.distance, rounding);
        ASSERT_NEAR(total.share, expected.share, rounding);
        const Counts counts = countsOf(instance, solution);
        ASSERT_EQ(search.missingVehicles(), counts.missing);
        ASSERT_EQ(search.violations(), counts.violations);
        ASSERT_EQ(search.isFeasible(), counts.violations == 0);
        if (search.isFeasible()) ++feasible;
        const double again = after;
        search.improve(solution, penalties, dice);
        ASSERT_LE(penalised(instance, solution, penalties), again + rounding);
    }
    EXPECT_GT(feasible, 20);
    EXPECT_LT(feasible, 130);
}

/// All solutions that one change of the search makes of a solution, by loops of their own. Routes that a
/// change empties are left out.
class Neighbours {
  public:
    Neighbours(const Instance& instance, Solution solution)
        : solution_(std::move(solution)), fleets_(instance.fleetCount()) {
        routes_ = solution_.size();
        for (int fleet = 0; fleet < fleets_; ++fleet) solution_.push_back({fleet, {}});
        for (std::size_t a = 0; a < routes_; ++a) {
            changeOne(a);
            for (std::size_t b = 0; b < solution_.size(); ++b)
                if (a != b) changeTwo(a, b);
        }
    }

    const std::vector<Solution>& all() const { return result_; }

  private:
    using Stops = std::vector<int>;

    static Stops part(const Stops& stops, std::size_t from, std::size_t to) {
        return {stops.begin() + static_cast<std::ptrdiff_t>(from),
                stops.begin() + static_cast<std::ptrdiff_t>(to)};
    }
    static Stops joined(Stops a, const Stops& b, const Stops& c = {}) {
        a.insert(a.end(), b.begin(), b.end());
        a.insert(a.end(), c.begin(), c.end());
        return a;
    }
    static Stops turned(Stops stops) {
        std::reverse(stops.begin(), stops.end());
        return stops;
    }

    void offer(Solution changed) {
        std::erase_if(changed, [](const FleetRoute& route) { return route.stops.empty(); });
        result_.push_back(std::move(changed));
    }
    void offer(std::size_t a, const Stops& newA) { offer(a, newA, a, newA); }
    void offer(std::size_t a, const Stops& newA, std::size_t b, const Stops& newB) {
        Solution changed = solution_;
        changed[a].stops = newA;
        changed[b].stops = newB;
        offer(changed);
    }

    /// Runs moved, parts turned, stops exchanged, another vehicle.
    void changeOne(std::size_t a) {
        const Stops& stops = solution_[a].stops;
        for (std::size_t i = 0; i < stops.size(); ++i) {
            for (std::size_t end = i + 1; end <= stops.size(); ++end) {
                const Stops run = part(stops, i, end);
                offer(a, joined(part(stops, 0, i), turned(run), part(stops, end, stops.size())));
                Stops exchanged = stops;
                std::swap(exchanged[i], exchanged[end - 1]);
                offer(a, exchanged);
                if (run.size() > 3) continue;
                const Stops rest = joined(part(stops, 0, i), part(stops, end, stops.size()));
                for (std::size_t at = 0; at <= rest.size(); ++at)
                    for (const Stops& moved : {run, turned(run)})
                        offer(a, joined(part(rest, 0, at), moved, part(rest, at, rest.size())));
            }
        }
        for (int fleet = 0; fleet < fleets_; ++fleet) {
            Solution changed = solution_;
            changed[a].fleet = fleet;
            offer(changed);
        }
    }

    /// Runs moved or exchanged, tails exchanged, heads joined, vehicles exchanged.
    void changeTwo(std::size_t a, std::size_t b) {
        const Stops& one = solution_[a].stops;
        const Stops& other = solution_[b].stops;
        for (std::size_t i = 0; i <= one.size(); ++i) {
            for (std::size_t j = 0; j <= other.size(); ++j) {
                const Stops headA = part(one, 0, i), tailA = part(one, i, one.size());
                const Stops headB = part(other, 0, j), tailB = part(other, j, other.size());
                offer(a, joined(headA, tailB), b, joined(headB, tailA));
                offer(a, joined(headA, turned(headB)), b, joined(turned(tailA), tailB));
                for (std::size_t mine = 1; mine <= std::min<std::size_t>(3, tailA.size()); ++mine) {
                    const Stops run = part(tailA, 0, mine);
                    const Stops restA = joined(headA, part(tailA, mine, tailA.size()));
                    offer(a, restA, b, joined(headB, run, tailB));
                    offer(a, restA, b, joined(headB, turned(run), tailB));
                    for (std::size_t theirs = 1; mine < 3 && theirs <= std::min<std::size_t>(2, tailB.size());
                         ++theirs)
                        offer(a, joined(headA, part(tailB, 0, theirs), part(tailA, mine, tailA.size())), b,
                              joined(headB, run, part(tailB, theirs, tailB.size())));
                }
            }
        }
        Solution changed = solution_;
        std::swap(changed[a].fleet, changed[b].fleet);
        offer(changed);
    }

    Solution solution_;
    std::size_t routes_ = 0; ///< with stops
    int fleets_;
    std::vector<Solution> result_;
};

TEST(LocalSearch, LeavesNoChangeThatWouldHelp) {
    RandomProblems problems(1964);
    Dice dice(6);
    for (int trial = 0; trial < 100; ++trial) {
        router::Problem problem = problems.next(problems.from(1, 10));
        if (trial % 2 == 0) problem = plain(problem);
        const Instance instance(problem, router::Travel(problem));
        const Penalties penalties = firstPenalties(instance);
        Solution solution = randomSolution(instance, dice);
        LocalSearch(instance).improve(solution, penalties, dice);
        const double cost = penalised(instance, solution, penalties);
        const Neighbours neighbours(instance, solution);
        for (const Solution& neighbour : neighbours.all())
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
