#include "solvers/OPTMZR/savings.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vantore::optmzr {

namespace {

/// A route with the vehicle that costs it least.
struct CheapestRoute {
    FleetRoute route;
    double cost = 0;
};

class Savings {
  public:
    Savings(const Instance& instance, const Penalties& penalties)
        : instance_(instance), judge_(instance, penalties) {
        const auto count = static_cast<std::size_t>(instance.stopCount);
        for (int stop = 1; stop <= instance.stopCount; ++stop) routes_.push_back(cheapest({stop}));
        joints_.assign(count, std::vector<Joint>(count));
        for (std::size_t a = 0; a < count; ++a) findJoints(a);
    }

    Solution joined() {
        while (joinBestPair()) {
        }
        Solution solution;
        for (CheapestRoute& route : routes_)
            if (!route.route.stops.empty()) solution.push_back(std::move(route.route));
        return solution;
    }

  private:
    /// The best way of joining two routes: one behind the other, either of them turned round or not.
    struct Joint {
        double saving = 0;
        int way = 0;
    };

    CheapestRoute cheapest(std::vector<int> stops) {
        const RouteSums sums = sumsOf(instance_, stops);
        const RouteOrder order = judge_.order(sums, stops);
        CheapestRoute best;
        for (int f = 0; f < instance_.fleetCount(); ++f) {
            const double cost = judge_.value(instance_.fleet(f), sums, order, stops).penalised;
            if (f > 0 && cost >= best.cost) continue;
            best.cost = cost;
            best.route.fleet = f;
        }
        best.route.stops = std::move(stops);
        return best;
    }

    std::vector<int> joinedStops(std::size_t a, std::size_t b, int way) const {
        std::vector<int> head = routes_[a].route.stops;
        std::vector<int> tail = routes_[b].route.stops;
        if (way == 1) std::reverse(head.begin(), head.end());
        if (way == 2) std::reverse(tail.begin(), tail.end());
        if (way == 3) std::swap(head, tail);
        head.insert(head.end(), tail.begin(), tail.end());
        return head;
    }

    /// Of a route with each other one, under the first of the two.
    void findJoints(std::size_t route) {
        for (std::size_t other = 0; other < routes_.size(); ++other) {
            const auto [a, b] = std::minmax(route, other);
            Joint& best = joints_[a][b];
            best = {};
            if (a == b || isGone(a) || isGone(b)) continue;
            for (int way = 0; way < 4; ++way) {
                const double saving =
                    routes_[a].cost + routes_[b].cost - cheapest(joinedStops(a, b, way)).cost;
                if (saving > best.saving) best = {saving, way};
            }
        }
    }

    bool isGone(std::size_t route) const { return routes_[route].route.stops.empty(); }

    bool joinBestPair() {
        Joint best;
        std::size_t first = 0, second = 0;
        for (std::size_t a = 0; a < routes_.size(); ++a) {
            for (std::size_t b = a + 1; b < routes_.size(); ++b) {
                if (joints_[a][b].saving <= best.saving) continue;
                best = joints_[a][b];
                first = a;
                second = b;
            }
        }
        if (best.saving <= 0) return false;
        routes_[first] = cheapest(joinedStops(first, second, best.way));
        routes_[second].route.stops.clear();
        findJoints(first);
        findJoints(second);
        return true;
    }

    const Instance& instance_;
    RouteJudge judge_;
    std::vector<CheapestRoute> routes_; ///< those that were joined to others have no stops
    std::vector<std::vector<Joint>> joints_;
};

} // namespace

Solution savings(const Instance& instance, const Penalties& penalties) {
    return Savings(instance, penalties).joined();
}

} // namespace vantore::optmzr
