#pragma once

#include <cstddef>
#include <vector>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/search_route.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

/// Improves a solution by small changes until none of them helps: moving one to three stops that follow each
/// other, exchanging up to two for up to two, reversing a part (2-opt), exchanging the tails of two routes
/// (2-opt*), exchanging two stops that each take the best place in the other route (SWAP*), and giving routes
/// other vehicles. A change is tried where it brings a stop beside one of its nearest, the depot, or a new
/// route; what its sums already rule out isn't looked at closer.
/// Source: Vidal, "Hybrid genetic search for the CVRP: open-source implementation and SWAP* neighborhood"
/// (2022); Taillard et al. (1997) for the exchanged segments.
class LocalSearch {
  public:
    explicit LocalSearch(const Instance& instance);

    /// From here on limits are counted.
    void beStrict(const StrictPenalties& strict) { judge_.beStrict(strict); }

    /// Improves a solution under these penalties. `dice` sets the order in which stops are tried.
    void improve(Solution& solution, const Penalties& penalties, Dice& dice);

    /// Whether no limit is exceeded, and the cost with and without penalties, of what `improve` has left.
    bool isFeasible() const;
    RouteValue total() const;
    int missingVehicles() const;

    /// Routes that go beyond a limit, each kind of limit counted, and vehicles that there aren't.
    int violations() const;

    long long work() const { return work_; } ///< steps done since the beginning, a measure of time

  private:
    struct Place {
        int route = 0;
        int position = 0;
    };
    void load(const Solution& solution);
    void findNeighbours();
    void keepEmptyRoutes();
    Place placeOf(int stop) const { return places_[static_cast<std::size_t>(stop)]; }
    SearchRoute& route(int index) { return routes_[static_cast<std::size_t>(index)]; }
    const SearchRoute& route(int index) const { return routes_[static_cast<std::size_t>(index)]; }

    bool improveStop(int stop, bool withEmptyRoutes);
    bool improveAt(Place from, Place to);
    bool swapStars();
    bool swapStar(int a, int b);
    bool exchangeVehicles();
    bool changeVehicle(int index);
    bool exchangeVehicles(int a, int b);

    bool accept(int a, const Splice& newA);
    bool accept(int a, const Splice& newA, int b, const Splice& newB);
    RouteValue valueOf(int fleet, const Splice& splice, const RouteSums& sums, std::vector<int>& stops);
    double bound(int fleet, const Splice& splice, const RouteSums& sums) const;
    double legBound(int fleet, const Splice& splice, const LegSums& sums) const;
    double presentCost(int index) const { return route(index).empty() ? 0 : route(index).value().penalised; }
    double vehiclePenalty(int fleet, int change) const;
    double vehiclePenalty(int fleetA, int changeA, int fleetB, int changeB) const;
    void put(int index, const std::vector<int>& stops, const RouteValue& value);

    const Instance& instance_;
    RouteJudge judge_;
    std::vector<std::vector<int>> neighbours_; ///< of each stop, the nearest first
    std::vector<SearchRoute> routes_;
    std::vector<Place> places_;
    std::vector<int> used_; ///< vehicles of each fleet
    std::vector<long> tried_;
    long changes_ = 0;
    long long work_ = 0;
    std::vector<int> stopsA_, stopsB_;
};

} // namespace vantore::optmzr
