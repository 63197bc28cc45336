#pragma once

#include <cstddef>
#include <vector>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/route_value.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

/// Cuts a tour through all stops into routes, each with a vehicle, at the least cost with penalties: first
/// as if there were as many vehicles of each kind as one likes; where that takes more than there are, anew
/// with the vehicles that there are, in an order that chance sets, each taking the next stops or none.
/// Source: Prins, "A simple and effective evolutionary algorithm for the vehicle routing problem" (2004);
/// with limited fleets Vidal, "Split algorithm in O(n) for the capacitated vehicle routing problem" (2016).
class Split {
  public:
    explicit Split(const Instance& instance) : instance_(instance), judge_(instance, {}) {}

    void beStrict(const StrictPenalties& strict) { judge_.beStrict(strict); }

    Solution routes(const std::vector<int>& tour, const Penalties& penalties, Dice& dice);

    long long work() const { return work_; }

  private:
    /// What the stops from `first` up to before `last` cost as a route, in each fleet.
    struct Part {
        std::size_t first = 0;
        std::vector<double> costs;
        int cheapest = 0;
    };

    void price(const std::vector<int>& tour);
    bool isTooLong(const RouteSums& sums) const;
    Solution withAnyVehicles(const std::vector<int>& tour) const;
    Solution withVehiclesAtHand(const std::vector<int>& tour, const std::vector<int>& vehicles) const;
    std::vector<int> vehiclesAtHand(Dice& dice) const;
    bool areAtHand(const Solution& solution) const;

    const Instance& instance_;
    RouteJudge judge_;
    std::vector<std::vector<Part>> partsUntil_; ///< by `last`
    long long work_ = 0;
};

} // namespace vantore::optmzr
