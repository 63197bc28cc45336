#include <gtest/gtest.h>

#include <algorithm>

#include "solvers/OPTMZR/genetic_search.h"
#include "solvers/OPTMZR/swap_star.h"
#include "tests/routing/ROUTER/random_problems.h"

namespace vantore::optmzr::tests {
namespace {

using router::tests::RandomProblems;
using Stops = std::vector<int>;

/// A route's legs at the rate of the last hour that it had before, and its overload, without regard to the
/// order of loads.
class PlainCost {
  public:
    PlainCost(const Instance& instance, const Penalties& penalties, int fleet, const Stops& before)
        : instance_(instance), penalties_(penalties), fleet_(instance.fleet(fleet)),
          perMinute_(sumsOf(instance, before).minutes > instance.overtimeAfter ? fleet_.costPerOvertimeMinute
                                                                               : fleet_.costPerMinute) {}

    double of(const Stops& stops) const {
        const RouteSums sums = sumsOf(instance_, stops);
        double driving = sums.minutes;
        for (const int stop : stops) driving -= instance_.customer(stop).minutes;
        const auto above = [](double a, double b, double capacity) {
            return std::max(0.0, std::max(a, b) - capacity);
        };
        return fleet_.costPerDistance * sums.distance + perMinute_ * driving +
               penalties_.load * (above(sums.delivered.weight, sums.pickedUp.weight, fleet_.capacity.weight) +
                                  above(sums.delivered.cube, sums.pickedUp.cube, fleet_.capacity.cube));
    }

  private:
    const Instance& instance_;
    const Penalties& penalties_;
    const Fleet& fleet_;
    double perMinute_;
};

Stops without(Stops stops, std::size_t position) {
    stops.erase(stops.begin() + static_cast<std::ptrdiff_t>(position));
    return stops;
}

/// The least that a route costs with a stop put anywhere.
double leastWith(const PlainCost& cost, const Stops& stops, int stop) {
    double least = beyondReach;
    for (std::size_t at = 0; at <= stops.size(); ++at) {
        Stops with = stops;
        with.insert(with.begin() + static_cast<std::ptrdiff_t>(at), stop);
        least = std::min(least, cost.of(with));
    }
    return least;
}

Stops stopsOf(const Splice& splice) {
    Stops stops;
    splice.stops(stops);
    return stops;
}

/// Without a mixture of loads, so that a route's overload is that of its sums.
router::Problem deliveries(router::Problem problem) {
    CountedTable<router::Stop> stops;
    for (router::Stop stop : problem.stops.span()) {
        stop.type = router::delivery;
        stops.add(stop);
    }
    problem.stops = stops;
    return problem;
}

TEST(SwapStar, IsTheBestOfAllSwaps) {
    RandomProblems problems(2022);
    Dice dice(11);
    int swaps = 0;
    for (int trial = 0; trial < 300; ++trial) {
        const int count = problems.from(2, 12);
        const router::Problem problem = deliveries(problems.next(count));
        const Instance instance(problem, router::Travel(problem));
        const RouteJudge judge(instance, firstPenalties(instance));
        Stops stops;
        for (int stop = 1; stop <= count; ++stop) stops.push_back(stop);
        dice.shuffle(stops);
        const auto cut = stops.begin() + problems.from(1, count - 1);
        const Stops a(stops.begin(), cut);
        const Stops b(cut, stops.end());
        SearchRoute routeA(instance, dice.below(instance.fleetCount()));
        SearchRoute routeB(instance, dice.below(instance.fleetCount()));
        routeA.take(instance, a, judge.bound(instance.fleet(routeA.fleet()), sumsOf(instance, a)));
        routeB.take(instance, b, judge.bound(instance.fleet(routeB.fleet()), sumsOf(instance, b)));
        const PlainCost costA(instance, judge.penalties(), routeA.fleet(), a);
        const PlainCost costB(instance, judge.penalties(), routeB.fleet(), b);
        const double present = costA.of(a) + costB.of(b);
        double least = beyondReach;
        for (std::size_t i = 0; i < a.size(); ++i)
            for (std::size_t j = 0; j < b.size(); ++j)
                least = std::min(least, leastWith(costA, without(a, i), b[j]) +
                                            leastWith(costB, without(b, j), a[i]));
        const auto swap = bestSwap(instance, judge, routeA, routeB);
        ASSERT_EQ(swap.has_value(), least < present - leastGain) << "problem " << trial;
        if (!swap) continue;
        ++swaps;
        const Stops newA = stopsOf(swap->newA(routeA, routeB));
        const Stops newB = stopsOf(swap->newB(routeA, routeB));
        EXPECT_EQ(newA.size(), a.size());
        EXPECT_EQ(newB.size(), b.size());
        EXPECT_NEAR(costA.of(newA) + costB.of(newB), least, 1E-10) << "problem " << trial;
    }
    EXPECT_GT(swaps, 100);
    EXPECT_LT(swaps, 290);
}

} // namespace
} // namespace vantore::optmzr::tests
