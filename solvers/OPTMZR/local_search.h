#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/route_value.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

/// A route under improvement, with the sums from the depot to each of its positions. Position 0 and the one
/// behind the last stop are the depot.
class SearchRoute {
  public:
    SearchRoute(const Instance& instance, int fleet) : fleet_(fleet) { take(instance, {}, {}); }

    void take(const Instance& instance, std::vector<int> stops, const RouteValue& value);
    void takeFleet(int fleet, const RouteValue& value) {
        fleet_ = fleet;
        value_ = value;
    }

    int fleet() const { return fleet_; }
    const RouteValue& value() const { return value_; }
    bool empty() const { return stops_.empty(); }
    int size() const { return static_cast<int>(stops_.size()); }
    const std::vector<int>& stops() const { return stops_; }
    int stop(int position) const {
        return position < 1 || position > size() ? 0 : stops_[static_cast<std::size_t>(position - 1)];
    }
    const RouteSums& sums() const { return sums_; }

    /// What the stops from one position to a later one take, without the legs that lead there and away.
    RouteSums between(int from, int to) const;

    long changed = 0; ///< when it was changed last, in counted changes

  private:
    /// From the depot to the arrival at a position; the loads with that of the stop itself.
    struct Until {
        double distance = 0;
        double minutes = 0;
        double stopMinutes = 0; ///< of the stop itself
        Load delivered, pickedUp;
    };

    int fleet_;
    std::vector<int> stops_;
    std::vector<Until> until_;
    RouteSums sums_;
    RouteValue value_;
};

/// A new route put together of runs of stops of present ones, some of them backwards.
class Splice {
  public:
    Splice& forward(const SearchRoute& route, int from, int to) {
        if (from <= to) add({&route, from, to});
        return *this;
    }
    Splice& backward(const SearchRoute& route, int from, int to) {
        if (from >= to) add({&route, from, to});
        return *this;
    }

    bool empty() const { return count_ == 0; }
    RouteSums sums(const Instance& instance) const;
    void stops(std::vector<int>& result) const;

  private:
    struct Run {
        const SearchRoute* route = nullptr;
        int from = 0;
        int to = 0; ///< before `from` where the run is passed backwards
    };
    void add(Run run) { runs_[count_++] = run; }

    std::array<Run, 6> runs_;
    std::size_t count_ = 0;
};

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
    /// The cheapest places of a stop in another route.
    struct Insertion {
        double cost = 0;
        int after = 0;
    };
    using Insertions = std::array<Insertion, 3>;

    void load(const Solution& solution);
    void findNeighbours();
    void keepEmptyRoutes();
    Place placeOf(int stop) const { return places_[static_cast<std::size_t>(stop)]; }
    SearchRoute& route(int index) { return routes_[static_cast<std::size_t>(index)]; }
    const SearchRoute& route(int index) const { return routes_[static_cast<std::size_t>(index)]; }

    bool improveStop(int stop, bool withEmptyRoutes);
    bool improveAt(Place from, Place to);
    bool relocate(Place from, Place to);
    bool relocateWithin(Place from, Place to);
    bool exchange(Place from, Place to);
    bool exchangeBefore(Place from, Place to);
    bool exchangeWithin(Place from, Place to);
    bool exchangeTails(Place from, Place to);
    bool reverse(Place from, Place to);
    bool reverseEnds(Place at);
    bool swapStars();
    bool swapStar(int a, int b);
    std::vector<Insertions> cheapestPlaces(const SearchRoute& from, const SearchRoute& into) const;
    Insertion placeWithout(const SearchRoute& into, int removed, int stop, const Insertions& places) const;
    double marginalLegCost(const SearchRoute& route, int from, int to) const;
    double removalGain(const SearchRoute& route, int position) const;
    bool exchangeVehicles();
    bool changeVehicle(int index);
    bool exchangeVehicles(int a, int b);

    bool accept(int a, const Splice& newA);
    bool accept(int a, const Splice& newA, int b, const Splice& newB);
    RouteValue valueOf(int fleet, const Splice& splice, const RouteSums& sums, std::vector<int>& stops);
    double vehiclePenalty(int fleet, int change) const;
    void put(int index, std::vector<int>& stops, const RouteValue& value);

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
