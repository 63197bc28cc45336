#pragma once

#include <random>
#include <vector>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"

namespace vantore::router::tests {

/// Random problems of all kinds: barriers, zones, specified distances and speeds, breaks, time windows,
/// pickups, mixed fleets, overtime. The same seed gives the same problems.
class RandomProblems {
  public:
    explicit RandomProblems(unsigned seed) : random_(seed) {}

    Problem next(int stopCount);

    /// A route of some of the stops in any order.
    PlannedRoute route(const Problem& problem);

    /// Routes that serve each stop once, in any order.
    Plan plan(const Problem& problem);

    int from(int low, int high) {
        return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
    }
    bool oneIn(int chances) { return from(1, chances) == 1; }

  private:
    std::vector<int> shuffledStops(const Problem& problem);
    Stop stop();
    Vehicle vehicle();
    Barrier barrier();
    void addLegs(Problem& problem);
    void addZones(Problem& problem);

    std::mt19937 random_;
};

} // namespace vantore::router::tests
