#include "tests/solvers/OPTMZR/subsets.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

#include "routing/ROUTER/travel.h"

namespace vantore::optmzr::tests {

namespace {

constexpr double never = std::numeric_limits<double>::infinity();
using Row = std::vector<double>;

class Subsets {
  public:
    explicit Subsets(const router::Problem& problem)
        : problem_(problem), vehicle_(problem.vehicles(1)),
          n_(static_cast<std::size_t>(problem.stops.count())), sets_(std::size_t{1} << n_) {
        const router::Travel travel(problem);
        for (int a = 0; a <= problem.stops.count(); ++a) {
            legs_.emplace_back();
            for (int b = 0; b <= problem.stops.count(); ++b) {
                const router::Leg& leg = travel.leg(a, b);
                legs_.back().push_back(leg.distance * vehicle_.costPerMile +
                                       leg.distance / leg.speed * vehicle_.driverCostPerHour);
            }
        }
    }

    double best() {
        const Row routes = routeCosts();
        Row cost(sets_, never);
        cost[0] = 0;
        double best = never;
        for (int vehicles = 1; vehicles <= static_cast<int>(vehicle_.number); ++vehicles) {
            Row next(sets_, never);
            for (std::size_t set = 1; set < sets_; ++set) {
                const std::size_t lowest = set & (~set + 1);
                for (std::size_t part = set; part > 0; part = (part - 1) & set)
                    if ((part & lowest) != 0)
                        next[set] = std::min(next[set], routes[part] + cost[set & ~part]);
            }
            cost = next;
            best = std::min(best, cost.back());
        }
        return best == never ? -1 : best;
    }

  private:
    /// The cost of the shortest way from the depot through each set and back; never where it is too much for
    /// the vehicle.
    Row routeCosts() const {
        std::vector<Row> ending(sets_, Row(n_, never));
        Row costs(sets_, never);
        for (std::size_t set = 1; set < sets_; ++set) {
            double weight = 0, cube = 0, stay = 0;
            for (std::size_t last = 0; last < n_; ++last) {
                if ((set >> last & 1) == 0) continue;
                const router::Stop& stop = problem_.stops(static_cast<long long>(last) + 1);
                weight += stop.weight;
                cube += stop.cube;
                stay += stop.loadTime > 0 ? stop.loadTime
                                          : problem_.fixedStopTime + stop.weight * problem_.timePerWeight +
                                                stop.cube * problem_.timePerCube;
                const std::size_t others = set & ~(std::size_t{1} << last);
                double& best = ending[set][last];
                if (others == 0) best = legs_[0][last + 1];
                for (std::size_t before = 0; before < n_; ++before)
                    if ((others >> before & 1) != 0)
                        best = std::min(best, ending[others][before] + legs_[before + 1][last + 1]);
            }
            if (weight > vehicle_.weightCapacity || cube > vehicle_.cubeCapacity) continue;
            const double fixed = vehicle_.fixedCost + vehicle_.driverFixedCost;
            for (std::size_t last = 0; last < n_; ++last)
                costs[set] = std::min(costs[set], ending[set][last] + legs_[last + 1][0] + fixed +
                                                      stay / 60 * vehicle_.driverCostPerHour);
        }
        return costs;
    }

    const router::Problem& problem_;
    const router::Vehicle& vehicle_;
    std::size_t n_, sets_;
    std::vector<Row> legs_;
};

} // namespace

double bestCostBySubsets(const router::Problem& problem) {
    return Subsets(problem).best();
}

} // namespace vantore::optmzr::tests
