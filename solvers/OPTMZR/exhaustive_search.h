#pragma once

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "solvers/OPTMZR/route_value.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

constexpr int mostStopsTriedOut = 8;

/// The best of all solutions of a problem of few stops: every order of every set of stops is valued once for
/// each fleet, then the stops are divided into sets and the sets given vehicles by branch and bound. What a
/// division would cost with any number of vehicles is the bound.
class ExhaustiveSearch {
  public:
    explicit ExhaustiveSearch(const Instance& instance);

    Solution best();

  private:
    /// As plans are judged: limits broken, by how much, cost.
    struct Price {
        Misses misses;
        double cost = 0;

        bool isBelow(const Price& other) const;
        friend Price operator+(Price a, const Price& b) {
            a.misses += b.misses;
            a.cost += b.cost;
            return a;
        }
    };
    struct Route {
        std::optional<Price> price;
        std::vector<int> stops;
    };
    using Set = std::size_t; ///< bit 0 is stop 1

    void priceOrders(Set set);
    void boundSets();
    void divide(Set left, const Price& spent);
    Route& routeOf(Set set, int fleet) {
        return routes_[set * instance_.fleets.size() + static_cast<std::size_t>(fleet)];
    }

    const Instance& instance_;
    RouteJudge judge_;
    Set all_;
    std::vector<Route> routes_;              ///< by set and fleet
    std::vector<Price> bounds_;              ///< by set
    std::vector<int> used_;                  ///< vehicles of each fleet, in the division under way
    std::vector<std::pair<Set, int>> parts_; ///< of the division under way, with their fleets
    std::optional<Price> least_;
    std::vector<std::pair<Set, int>> best_;
};

} // namespace vantore::optmzr
