#pragma once

#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "solvers/OPTMZR/instance.h"

namespace vantore::optmzr {

constexpr double leastGain = 1E-09; ///< of the dearest leg: what a better solution is better by
constexpr double slack = 1E-08;     ///< excess by rounding, which is none
constexpr double beyondReach = std::numeric_limits<double>::max(); ///< a cost that nothing has

/// What a route comes to: its cost, and by how much it goes beyond its limits.
struct RouteValue {
    double cost = 0;
    double load = 0;     ///< on board beyond the capacity, weight and cube together
    double minutes = 0;  ///< beyond windows, latest return and longest time
    double distance = 0; ///< beyond the longest distance
    double share = 0;    ///< still to be delivered at a pickup, beyond what is allowed
    Misses misses{}; ///< limits broken, counted and measured as a plan is judged; in strict searches alone
    double penalised = 0;

    double excess() const { return load + minutes + distance + share; }
};

/// What a unit of each excess costs in the search.
struct Penalties {
    double load = 1;
    double minutes = 1;
    double distance = 1;
    double share = 1;
    double vehicle = 1; ///< that there isn't

    Penalties times(double factor) const;
};

/// Where no plan keeps all limits: the fewest limits broken come first, then by how much, then the cost.
struct StrictPenalties {
    double limit = 0;  ///< each limit that is broken
    double excess = 0; ///< by how much, in the units of a judgement
};

/// Sums over legs and the time at stops.
struct LegSums {
    double distance = 0;
    double minutes = 0; ///< without breaks
};

/// Sums over stops.
struct LoadSums {
    Load delivered;
    Load pickedUp;
};

/// What a route takes, whatever the order of its parts is timed like.
struct RouteSums : LegSums, LoadSums {};

/// What the order of a route's stops makes of them, in any vehicle.
struct RouteOrder {
    Load onBoard;      ///< the most on the way
    Load leftAtPickup; ///< the most that is still to be delivered when something is picked up
    Timing timing;
    Misses misses; ///< of times, in strict searches alone
};

/// The sums of a route through these stops.
RouteSums sumsOf(const Instance& instance, std::span<const int> stops);

/// Puts a value on routes.
class RouteJudge {
  public:
    RouteJudge(const Instance& instance, const Penalties& penalties)
        : instance_(instance), penalties_(penalties) {}

    /// From here on limits are counted.
    void beStrict(const StrictPenalties& strict) { strict_ = strict; }

    /// Whether the order of the stops counts beyond the sums.
    bool orderMatters() const { return instance_.clockMatters || instance_.loadsMix || strict_; }

    /// What no order of stops with these sums can be better than; the value itself where the order doesn't
    /// matter.
    RouteValue bound(const Fleet& fleet, const RouteSums& sums) const;
    /// What no route with these legs, whatever it carries, can cost less than, penalties included.
    double legBound(const Fleet& fleet, const LegSums& sums) const;

    RouteOrder order(const RouteSums& sums, std::span<const int> stops);
    RouteValue value(const Fleet& fleet, const RouteSums& sums, const RouteOrder& order,
                     std::span<const int> stops) const;
    RouteValue value(const Fleet& fleet, const RouteSums& sums, std::span<const int> stops);

    const Penalties& penalties() const { return penalties_; }
    void setPenalties(const Penalties& penalties) { penalties_ = penalties; }

  private:
    void carry(const RouteSums& sums, std::span<const int> stops, RouteOrder& order) const;
    TimedRoute timedRoute(std::span<const int> stops);
    Misses missesOf(const Fleet& fleet, const RouteSums& sums, const RouteOrder& order,
                    std::span<const int> stops) const;
    void missPickups(const Fleet& fleet, const RouteSums& sums, std::span<const int> stops,
                     Misses& misses) const;
    RouteValue valueOfLegs(const Fleet& fleet, const LegSums& sums) const;
    void penalise(RouteValue& value) const;

    const Instance& instance_;
    Penalties penalties_;
    std::optional<StrictPenalties> strict_;
    std::vector<double> arrivals_;
    std::vector<const OpeningHours*> open_;
};

} // namespace vantore::optmzr
