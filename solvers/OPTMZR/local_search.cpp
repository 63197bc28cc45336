#include "solvers/OPTMZR/local_search.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

#include "solvers/OPTMZR/moves.h"
#include "solvers/OPTMZR/swap_star.h"

namespace vantore::optmzr {

namespace {

constexpr int nearestStops = 24;

} // namespace

LocalSearch::LocalSearch(const Instance& instance)
    : instance_(instance), judge_(instance, {}), places_(instance.customers.size()),
      used_(instance.fleets.size()), tried_(instance.customers.size()) {
    findNeighbours();
}

/// The nearest stops by what the way there costs the cheapest vehicle, or by distance where ways cost
/// nothing.
void LocalSearch::findNeighbours() {
    neighbours_.resize(instance_.customers.size());
    const auto far = [this](int a, int b) {
        constexpr double amongEqualCosts = 1E-09;
        double least = beyondReach;
        for (const Fleet& fleet : instance_.fleets) least = std::min(least, instance_.legCost(fleet, a, b));
        return instance_.distance(a, b) * amongEqualCosts + least;
    };
    for (int u = 1; u <= instance_.stopCount; ++u) {
        std::vector<int>& near = neighbours_[static_cast<std::size_t>(u)];
        for (int v = 1; v <= instance_.stopCount; ++v)
            if (v != u) near.push_back(v);
        std::stable_sort(near.begin(), near.end(), [&](int a, int b) { return far(u, a) < far(u, b); });
        if (near.size() > nearestStops) near.resize(nearestStops);
    }
}

void LocalSearch::load(const Solution& solution) {
    routes_.clear();
    std::fill(used_.begin(), used_.end(), 0);
    std::fill(tried_.begin(), tried_.end(), -1);
    changes_ = 0;
    for (const FleetRoute& given : solution) {
        if (given.stops.empty()) continue;
        routes_.emplace_back(instance_, given.fleet);
        ++used_[static_cast<std::size_t>(given.fleet)];
        const RouteSums sums = sumsOf(instance_, given.stops);
        put(static_cast<int>(routes_.size()) - 1, given.stops,
            judge_.value(instance_.fleet(given.fleet), sums, given.stops));
    }
    keepEmptyRoutes();
}

/// One empty route of each fleet, to be filled.
void LocalSearch::keepEmptyRoutes() {
    std::vector<bool> hasEmpty(instance_.fleets.size());
    for (const SearchRoute& route : routes_)
        if (route.empty()) hasEmpty[static_cast<std::size_t>(route.fleet())] = true;
    for (int f = 0; f < instance_.fleetCount(); ++f)
        if (!hasEmpty[static_cast<std::size_t>(f)]) routes_.emplace_back(instance_, f);
}

void LocalSearch::improve(Solution& solution, const Penalties& penalties, Dice& dice) {
    judge_.setPenalties(penalties);
    load(solution);
    std::vector<int> order(static_cast<std::size_t>(instance_.stopCount));
    std::iota(order.begin(), order.end(), 1);
    dice.shuffle(order);
    bool withEmptyRoutes = false;
    for (bool improved = true; improved || !withEmptyRoutes;) {
        withEmptyRoutes = !improved || withEmptyRoutes;
        improved = false;
        for (const int stop : order)
            while (improveStop(stop, withEmptyRoutes)) improved = true;
        if (!improved && withEmptyRoutes) improved = swapStars() || exchangeVehicles();
    }
    solution.clear();
    for (const SearchRoute& route : routes_)
        if (!route.empty()) solution.push_back({route.fleet(), route.stops()});
}

bool LocalSearch::isFeasible() const {
    return total().excess() < slack && missingVehicles() == 0;
}

int LocalSearch::missingVehicles() const {
    int missing = 0;
    for (int f = 0; f < instance_.fleetCount(); ++f)
        missing += std::max(0, used_[static_cast<std::size_t>(f)] - instance_.fleet(f).available);
    return missing;
}

RouteValue LocalSearch::total() const {
    RouteValue total;
    for (const SearchRoute& route : routes_) {
        if (route.empty()) continue;
        const RouteValue& value = route.value();
        total.cost += value.cost;
        total.load += value.load;
        total.minutes += value.minutes;
        total.distance += value.distance;
        total.share += value.share;
        total.misses += value.misses;
        total.penalised += value.penalised;
    }
    total.penalised += judge_.penalties().vehicle * missingVehicles();
    return total;
}

int LocalSearch::violations() const {
    int count = missingVehicles();
    for (const SearchRoute& route : routes_) {
        if (route.empty()) continue;
        const RouteValue& value = route.value();
        for (const double excess : {value.load, value.minutes, value.distance, value.share})
            if (excess >= slack) ++count;
    }
    return count;
}

/// What one vehicle more or less of a fleet adds to the penalties.
double LocalSearch::vehiclePenalty(int fleet, int change) const {
    const int available = instance_.fleet(fleet).available;
    const int used = used_[static_cast<std::size_t>(fleet)];
    return judge_.penalties().vehicle *
           (std::max(0, used + change - available) - std::max(0, used - available));
}

/// The same for two changes together.
double LocalSearch::vehiclePenalty(int fleetA, int changeA, int fleetB, int changeB) const {
    if (fleetA == fleetB) return vehiclePenalty(fleetA, changeA + changeB);
    return vehiclePenalty(fleetA, changeA) + vehiclePenalty(fleetB, changeB);
}

void LocalSearch::put(int index, const std::vector<int>& stops, const RouteValue& value) {
    SearchRoute& changed = route(index);
    changed.take(instance_, stops, value);
    changed.changed = ++changes_;
    for (int p = 1; p <= changed.size(); ++p) places_[static_cast<std::size_t>(changed.stop(p))] = {index, p};
}

RouteValue LocalSearch::valueOf(int fleet, const Splice& splice, const RouteSums& sums,
                                std::vector<int>& stops) {
    splice.stops(stops);
    if (stops.empty()) return {};
    work_ += instance_.stepsAStop * static_cast<long long>(stops.size());
    return judge_.value(instance_.fleet(fleet), sums, stops);
}

/// What the sums alone make a route cost at least.
double LocalSearch::bound(int fleet, const Splice& splice, const RouteSums& sums) const {
    return splice.empty() ? 0 : judge_.bound(instance_.fleet(fleet), sums).penalised;
}

double LocalSearch::legBound(int fleet, const Splice& splice, const LegSums& sums) const {
    return splice.empty() ? 0 : judge_.legBound(instance_.fleet(fleet), sums);
}

/// Changes a route if that makes it better.
bool LocalSearch::accept(int a, const Splice& newA) {
    ++work_;
    const int fleet = route(a).fleet();
    const double present = route(a).value().penalised - leastGain;
    const LoadSums& loads = route(a).sums(); // as before: the stops are the same
    const RouteSums sums{newA.legs(instance_), loads};
    if (bound(fleet, newA, sums) >= present) return false;
    const RouteValue value = valueOf(fleet, newA, sums, stopsA_);
    if (value.penalised >= present) return false;
    put(a, stopsA_, value);
    return true;
}

/// Changes two routes if that makes them better together. Most changes are ruled out by their legs, whatever
/// the loads; most others by the sums, whatever the order.
bool LocalSearch::accept(int a, const Splice& newA, int b, const Splice& newB) {
    work_ += 2;
    const int fleetA = route(a).fleet();
    const int fleetB = route(b).fleet();
    const int changeA = (newA.empty() ? 0 : 1) - (route(a).empty() ? 0 : 1);
    const int changeB = (newB.empty() ? 0 : 1) - (route(b).empty() ? 0 : 1);
    const double present =
        presentCost(a) + presentCost(b) - leastGain - vehiclePenalty(fleetA, changeA, fleetB, changeB);
    const LegSums legsA = newA.legs(instance_);
    const LegSums legsB = newB.legs(instance_);
    if (legBound(fleetA, newA, legsA) + legBound(fleetB, newB, legsB) >= present) return false;
    const RouteSums sumsA{legsA, newA.loads()};
    const RouteSums sumsB{legsB, newB.loads()};
    const double boundB = bound(fleetB, newB, sumsB);
    if (bound(fleetA, newA, sumsA) + boundB >= present) return false;
    const RouteValue valueA = valueOf(fleetA, newA, sumsA, stopsA_);
    if (valueA.penalised + boundB >= present) return false;
    const RouteValue valueB = valueOf(fleetB, newB, sumsB, stopsB_);
    if (valueA.penalised + valueB.penalised >= present) return false;
    used_[static_cast<std::size_t>(fleetA)] += changeA;
    used_[static_cast<std::size_t>(fleetB)] += changeB;
    put(a, stopsA_, valueA);
    put(b, stopsB_, valueB);
    keepEmptyRoutes();
    return true;
}

bool LocalSearch::improveStop(int stop, bool withEmptyRoutes) {
    const long before = std::exchange(tried_[static_cast<std::size_t>(stop)], changes_);
    const bool isNew = route(placeOf(stop).route).changed > before;
    for (const int near : neighbours_[static_cast<std::size_t>(stop)]) {
        if (!isNew && route(placeOf(near).route).changed <= before) continue;
        if (improveAt(placeOf(stop), placeOf(near))) return true;
    }
    const Place at = placeOf(stop);
    if (reverseEnds(route(at.route), at.position,
                    [&](const Splice& turned) { return accept(at.route, turned); }))
        return true;
    for (int r = 0; r < static_cast<int>(routes_.size()); ++r) {
        if (route(r).empty() ? !withEmptyRoutes : !isNew && route(r).changed <= before) continue;
        const int last = route(r).size();
        if (improveAt(placeOf(stop), {r, 0})) return true;
        if (last > 0 && improveAt(placeOf(stop), {r, last})) return true;
    }
    return false;
}

/// Tries what brings the stop at one place behind another place.
bool LocalSearch::improveAt(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const SearchRoute& b = route(to.route);
    const int i = from.position;
    const int j = to.position;
    if (from.route == to.route) {
        const auto takeOne = [&](const Splice& newA) { return accept(from.route, newA); };
        return relocateWithin(a, i, j, takeOne) || exchangeWithin(a, i, j, takeOne) ||
               reverse(a, i, j, takeOne);
    }
    const auto takeTwo = [&](const Splice& newA, const Splice& newB) {
        return accept(from.route, newA, to.route, newB);
    };
    return relocate(a, i, b, j, takeTwo) || exchange(a, i, b, j, takeTwo) ||
           exchangeBefore(a, i, b, j, takeTwo) || exchangeTails(a, i, b, j, takeTwo);
}

bool LocalSearch::swapStar(int a, int b) {
    work_ += 2LL * route(a).size() * route(b).size();
    const std::optional<SwapStar> swap = bestSwap(instance_, judge_, route(a), route(b));
    return swap && accept(a, swap->newA(route(a), route(b)), b, swap->newB(route(a), route(b)));
}

bool LocalSearch::swapStars() {
    bool improved = false;
    for (int a = 0; a < static_cast<int>(routes_.size()); ++a)
        for (int b = a + 1; b < static_cast<int>(routes_.size()); ++b)
            if (!route(a).empty() && !route(b).empty() && swapStar(a, b)) improved = true;
    return improved;
}

/// Gives routes other vehicles where that pays.
bool LocalSearch::exchangeVehicles() {
    if (instance_.fleetCount() == 1) return false;
    bool improved = false;
    for (int a = 0; a < static_cast<int>(routes_.size()); ++a) {
        if (route(a).empty()) continue;
        if (changeVehicle(a)) improved = true;
        for (int b = a + 1; b < static_cast<int>(routes_.size()); ++b)
            if (!route(b).empty() && route(a).fleet() != route(b).fleet() && exchangeVehicles(a, b))
                improved = true;
    }
    if (improved) keepEmptyRoutes();
    return improved;
}

bool LocalSearch::changeVehicle(int index) {
    SearchRoute& changed = route(index);
    int best = changed.fleet();
    double least = changed.value().penalised - leastGain;
    RouteValue bestValue;
    const double freed = vehiclePenalty(changed.fleet(), -1);
    const RouteOrder order = judge_.order(changed.sums(), changed.stops());
    for (int f = 0; f < instance_.fleetCount(); ++f) {
        if (f == changed.fleet()) continue;
        work_ += changed.size();
        const RouteValue value = judge_.value(instance_.fleet(f), changed.sums(), order, changed.stops());
        const double cost = value.penalised + vehiclePenalty(f, 1) + freed;
        if (cost >= least) continue;
        least = cost;
        best = f;
        bestValue = value;
    }
    if (best == changed.fleet()) return false;
    --used_[static_cast<std::size_t>(changed.fleet())];
    ++used_[static_cast<std::size_t>(best)];
    changed.takeFleet(best, bestValue);
    changed.changed = ++changes_;
    return true;
}

bool LocalSearch::exchangeVehicles(int indexA, int indexB) {
    SearchRoute& a = route(indexA);
    SearchRoute& b = route(indexB);
    work_ += 1LL * instance_.stepsAStop * (a.size() + b.size());
    const RouteValue valueA = judge_.value(instance_.fleet(b.fleet()), a.sums(), a.stops());
    const RouteValue valueB = judge_.value(instance_.fleet(a.fleet()), b.sums(), b.stops());
    if (valueA.penalised + valueB.penalised >= a.value().penalised + b.value().penalised - leastGain)
        return false;
    const int fleetA = a.fleet();
    a.takeFleet(b.fleet(), valueA);
    b.takeFleet(fleetA, valueB);
    a.changed = b.changed = ++changes_;
    return true;
}

} // namespace vantore::optmzr
