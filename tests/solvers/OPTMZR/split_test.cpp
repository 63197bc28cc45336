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

TEST(Split, CutsATourAtTheLeastCost) {
    RandomProblems problems(2016);
    Dice dice(1);
    int limited = 0;
    for (int trial = 0; trial < 200; ++trial) {
        const router::Problem problem = problems.next(problems.from(1, 7));
        const Instance instance(problem, router::Travel(problem));
        const Penalties penalties = firstPenalties(instance);
        std::vector<int> tour(static_cast<std::size_t>(instance.stopCount));
        std::iota(tour.begin(), tour.end(), 1);
        dice.shuffle(tour);
        const Solution solution = Split(instance).routes(tour, penalties, dice);
        std::vector<int> visited;
        std::vector<int> used(instance.fleets.size());
        bool isAtHand = true;
        for (auto route = solution.rbegin(); route != solution.rend(); ++route) {
            visited.insert(visited.end(), route->stops.begin(), route->stops.end());
            isAtHand = isAtHand && ++used[static_cast<std::size_t>(route->fleet)] <=
                                       instance.fleet(route->fleet).available;
        }
        ASSERT_EQ(visited, tour) << "problem " << trial;
        const double cost = costOf(instance, solution, penalties);
        const double free = Cuts(instance, penalties, tour, false).least();
        ASSERT_GE(cost, free - 1E-08);
        if (cost < free + 1E-08) continue;
        // The vehicles that there are, in an order that chance has set; or, where they can't take all stops
        // without being grossly overloaded, as many as it takes.
        if (!isAtHand) continue;
        ++limited;
        ASSERT_GE(cost, Cuts(instance, penalties, tour, true).least() - 1E-08);
    }
    EXPECT_GT(limited, 0);
    EXPECT_LT(limited, 150);
}

} // namespace
} // namespace vantore::optmzr::tests
