#include "solvers/OPTMZR/plan_builder.h"

#include <algorithm>
#include <cstddef>
#include <tuple>
#include <utility>
#include <vector>

#include "solvers/OPTMZR/judgement.h"

namespace vantore::optmzr {

using router::Plan;
using router::PlannedRoute;
using router::Problem;
using router::Travel;

namespace {

PlannedRoute planned(const Problem& problem, const Travel& travel, int vehicle, std::vector<int> stops) {
    PlannedRoute route;
    route.vehicle = vehicle;
    route.weightCapacity = problem.vehicles(vehicle).weightCapacity;
    for (const int stop : stops) route.totalWeight += problem.stops(stop).weight;
    route.stops = std::move(stops);
    route.start = bestStart(problem, travel, route);
    return route;
}

Plan planOf(std::vector<PlannedRoute> routes) {
    std::stable_sort(routes.begin(), routes.end(), [](const PlannedRoute& a, const PlannedRoute& b) {
        return std::tie(a.start, a.vehicle, a.stops) < std::tie(b.start, b.vehicle, b.stops);
    });
    Plan plan;
    plan.remark = computedRemark;
    for (PlannedRoute& route : routes) plan.routes(++plan.routeCount) = std::move(route);
    return plan;
}

/// The vehicles of a fleet, handed out row by row; when there are no more, those of the first row.
class Yard {
  public:
    explicit Yard(const Fleet& fleet) : rows_(fleet.rows), left_(fleet.numbers) {}

    int nextRow() {
        for (std::size_t i = 0; i < rows_.size(); ++i)
            if (left_[i] > 0) {
                --left_[i];
                return rows_[i];
            }
        return rows_.front();
    }

  private:
    std::vector<int> rows_;
    std::vector<int> left_;
};

} // namespace

Plan planOf(const Problem& problem, const Travel& travel, const Instance& instance,
            const Solution& solution) {
    std::vector<Yard> yards(instance.fleets.begin(), instance.fleets.end());
    std::vector<PlannedRoute> routes;
    for (const FleetRoute& route : solution) {
        const int row = yards[static_cast<std::size_t>(route.fleet)].nextRow();
        routes.push_back(planned(problem, travel, row, route.stops));
    }
    return planOf(std::move(routes));
}

Plan oneRouteAStop(const Problem& problem, const Travel& travel) {
    std::vector<PlannedRoute> routes;
    for (int stop = 1; stop <= problem.stops.count(); ++stop)
        routes.push_back(planned(problem, travel, 1, {stop}));
    return planOf(std::move(routes));
}

} // namespace vantore::optmzr
