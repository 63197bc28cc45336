#include "solvers/OPTMZR/split.h"

#include <algorithm>
#include <span>

namespace vantore::optmzr {

namespace {

constexpr double mostOverload = 1.5; // of a capacity, a time or a distance, that a route may be tried with

std::vector<int> cut(const std::vector<int>& tour, std::size_t first, std::size_t last) {
    return {tour.begin() + static_cast<std::ptrdiff_t>(first),
            tour.begin() + static_cast<std::ptrdiff_t>(last)};
}

} // namespace

Solution Split::routes(const std::vector<int>& tour, const Penalties& penalties, Dice& dice) {
    judge_.setPenalties(penalties);
    price(tour);
    Solution solution = withAnyVehicles(tour);
    if (areAtHand(solution)) return solution;
    Solution limited = withVehiclesAtHand(tour, vehiclesAtHand(dice));
    return limited.empty() ? solution : limited;
}

/// A route of one stop is always tried.
bool Split::isTooLong(const RouteSums& sums) const {
    Load largest;
    for (const Fleet& fleet : instance_.fleets) {
        largest.weight = std::max(largest.weight, fleet.capacity.weight);
        largest.cube = std::max(largest.cube, fleet.capacity.cube);
    }
    return std::max(sums.delivered.weight, sums.pickedUp.weight) > mostOverload * largest.weight ||
           std::max(sums.delivered.cube, sums.pickedUp.cube) > mostOverload * largest.cube ||
           sums.minutes > mostOverload * instance_.maxMinutes ||
           sums.distance > mostOverload * instance_.maxDistance;
}

void Split::price(const std::vector<int>& tour) {
    partsUntil_.assign(tour.size() + 1, {});
    for (std::size_t first = 0; first < tour.size(); ++first) {
        for (std::size_t last = first + 1; last <= tour.size(); ++last) {
            const std::span<const int> stops(tour.data() + first, last - first);
            const RouteSums sums = sumsOf(instance_, stops);
            if (last > first + 1 && isTooLong(sums)) break;
            work_ += instance_.stepsAStop * static_cast<long long>(stops.size());
            const RouteOrder order = judge_.order(sums, stops);
            Part part{.first = first, .costs = {}, .cheapest = 0};
            for (int f = 0; f < instance_.fleetCount(); ++f) {
                const Fleet& fleet = instance_.fleet(f);
                part.costs.push_back(judge_.value(fleet, sums, order, stops).penalised +
                                     (fleet.available == 0 ? judge_.penalties().vehicle : 0));
            }
            part.cheapest =
                static_cast<int>(std::min_element(part.costs.begin(), part.costs.end()) - part.costs.begin());
            partsUntil_[last].push_back(std::move(part));
        }
    }
}

Solution Split::withAnyVehicles(const std::vector<int>& tour) const {
    std::vector<double> cost(tour.size() + 1, beyondReach);
    std::vector<const Part*> best(tour.size() + 1);
    cost[0] = 0;
    for (std::size_t last = 1; last <= tour.size(); ++last) {
        for (const Part& part : partsUntil_[last]) {
            const double with = cost[part.first] + part.costs[static_cast<std::size_t>(part.cheapest)];
            if (with >= cost[last]) continue;
            cost[last] = with;
            best[last] = &part;
        }
    }
    Solution solution;
    for (std::size_t last = tour.size(); last > 0; last = best[last]->first)
        solution.push_back({best[last]->cheapest, cut(tour, best[last]->first, last)});
    return solution;
}

bool Split::areAtHand(const Solution& solution) const {
    std::vector<int> used(instance_.fleets.size());
    for (const FleetRoute& route : solution) ++used[static_cast<std::size_t>(route.fleet)];
    for (std::size_t f = 0; f < used.size(); ++f)
        if (used[f] > instance_.fleets[f].available) return false;
    return true;
}

/// The fleets of the vehicles in some order, no more than stops.
std::vector<int> Split::vehiclesAtHand(Dice& dice) const {
    std::vector<int> vehicles;
    for (int f = 0; f < instance_.fleetCount(); ++f)
        vehicles.insert(vehicles.end(), static_cast<std::size_t>(instance_.fleet(f).available), f);
    dice.shuffle(vehicles);
    if (vehicles.size() > static_cast<std::size_t>(instance_.stopCount))
        vehicles.resize(static_cast<std::size_t>(instance_.stopCount));
    return vehicles;
}

/// Empty where the vehicles can't take all stops, however overloaded.
Solution Split::withVehiclesAtHand(const std::vector<int>& tour, const std::vector<int>& vehicles) const {
    std::vector<std::vector<double>> cost(vehicles.size() + 1,
                                          std::vector<double>(tour.size() + 1, beyondReach));
    std::vector<std::vector<const Part*>> best(vehicles.size() + 1,
                                               std::vector<const Part*>(tour.size() + 1));
    cost[0][0] = 0;
    for (std::size_t v = 1; v <= vehicles.size(); ++v) {
        cost[v] = cost[v - 1]; // the vehicle stays in its yard
        for (std::size_t last = 1; last <= tour.size(); ++last) {
            for (const Part& part : partsUntil_[last]) {
                if (cost[v - 1][part.first] == beyondReach) continue;
                const double with =
                    cost[v - 1][part.first] + part.costs[static_cast<std::size_t>(vehicles[v - 1])];
                if (with >= cost[v][last]) continue;
                cost[v][last] = with;
                best[v][last] = &part;
            }
        }
    }
    if (cost.back().back() == beyondReach) return {};
    Solution solution;
    std::size_t last = tour.size();
    for (std::size_t v = vehicles.size(); v > 0; --v) {
        const Part* part = best[v][last];
        if (part == nullptr) continue;
        solution.push_back({vehicles[v - 1], cut(tour, part->first, last)});
        last = part->first;
    }
    return solution;
}

} // namespace vantore::optmzr
