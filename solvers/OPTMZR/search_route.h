#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "solvers/OPTMZR/route_value.h"

namespace vantore::optmzr {

/// A route under improvement, with the sums from the depot to each of its positions. Position 0 and the one
/// behind the last stop are the depot.
class SearchRoute {
  public:
    SearchRoute(const Instance& instance, int fleet) : fleet_(fleet) { take(instance, {}, {}); }

    void take(const Instance& instance, const std::vector<int>& stops, const RouteValue& value);
    void takeFleet(int fleet, const RouteValue& value) {
        fleet_ = fleet;
        value_ = value;
    }

    int fleet() const { return fleet_; }
    const RouteValue& value() const { return value_; }
    bool empty() const { return stops_.empty(); }
    int size() const { return static_cast<int>(stops_.size()); }
    const std::vector<int>& stops() const { return stops_; }
    int stop(int position) const { return until(position).stop; }

    RouteSums sums() const { return {legs(), loads()}; }
    /// What the stops from one position to a later one take, without the legs that lead there and away.
    LegSums legsBetween(int from, int to) const;
    LoadSums loadsBetween(int from, int to) const;

    long changed = 0; ///< when it was changed last, in counted changes

  private:
    /// From the depot to the arrival at a position; the loads with that of the stop itself.
    struct Until {
        int stop = router::depotNumber;
        double stopMinutes = 0; ///< of the stop itself
        LegSums legs;
        LoadSums loads;
    };

    const Until& until(int position) const { return until_[static_cast<std::size_t>(position)]; }
    const LegSums& legs() const { return until_.back().legs; }
    const LoadSums& loads() const { return until_.back().loads; }

    int fleet_;
    std::vector<int> stops_;
    std::vector<Until> until_; ///< by position, the depot at both ends
    RouteValue value_;
};

/// A new route put together of runs of stops of present ones, some of them backwards.
class Splice {
  public:
    /// The stops from one position to a later one; none where `to` lies before `from`.
    Splice& forward(const SearchRoute& route, int from, int to) {
        if (from <= to) add({&route, from, to});
        return *this;
    }
    /// The stops from one position back to an earlier one; none where `to` lies behind `from`.
    Splice& backward(const SearchRoute& route, int from, int to) {
        if (from >= to) add({&route, from, to});
        return *this;
    }

    bool empty() const { return count_ == 0; }
    LegSums legs(const Instance& instance) const;
    LoadSums loads() const;
    void stops(std::vector<int>& result) const;

  private:
    struct Run {
        const SearchRoute* route;
        int from;
        int to; ///< before `from` where the run is passed backwards

        int first() const { return from < to ? from : to; }
        int last() const { return from < to ? to : from; }
    };
    void add(Run run) { runs_.at(count_++) = run; }

    static constexpr std::size_t mostRuns = 5; // that any change takes

    std::array<Run, mostRuns> runs_; ///< those beyond the count aren't set: most splices are soon forgotten
    std::size_t count_ = 0;
};

} // namespace vantore::optmzr
