#include "solvers/OPTMZR/local_search.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

namespace vantore::optmzr {

using router::depotNumber;

namespace {

constexpr double leastGain = 1E-09; // of the dearest leg: what a better solution is better by
constexpr double slack = 1E-08;     // excess that is none
constexpr int nearestStops = 24;
constexpr int longestRun = 3;
constexpr int longestExchange = 2;
constexpr double beyondReach = std::numeric_limits<double>::max();

} // namespace

void SearchRoute::take(const Instance& instance, std::vector<int> stops, const RouteValue& value) {
    stops_ = std::move(stops);
    value_ = value;
    until_.resize(stops_.size() + 1);
    for (std::size_t p = 1; p <= stops_.size(); ++p) {
        const Until& before = until_[p - 1];
        const int stop = stops_[p - 1];
        const int last = p == 1 ? depotNumber : stops_[p - 2];
        const Customer& customer = instance.customer(stop);
        until_[p] = {before.distance + instance.distance(last, stop),
                     before.minutes + before.stopMinutes + instance.minutes(last, stop), customer.minutes,
                     before.delivered + customer.delivered, before.pickedUp + customer.pickedUp};
    }
    const int last = stops_.empty() ? depotNumber : stops_.back();
    const Until& end = until_.back();
    sums_ = {end.distance + instance.distance(last, depotNumber),
             end.minutes + end.stopMinutes + instance.minutes(last, depotNumber), end.delivered,
             end.pickedUp};
}

RouteSums SearchRoute::between(int from, int to) const {
    const Until& first = until_[static_cast<std::size_t>(from)];
    const Until& last = until_[static_cast<std::size_t>(to)];
    const Until& before = until_[static_cast<std::size_t>(from - 1)];
    return {last.distance - first.distance, last.minutes - first.minutes + last.stopMinutes,
            last.delivered - before.delivered, last.pickedUp - before.pickedUp};
}

RouteSums Splice::sums(const Instance& instance) const {
    RouteSums total;
    int before = depotNumber;
    for (std::size_t i = 0; i < count_; ++i) {
        const Run& run = runs_[i];
        const RouteSums part = run.route->between(std::min(run.from, run.to), std::max(run.from, run.to));
        const int first = run.route->stop(run.from);
        total.distance += instance.distance(before, first) + part.distance;
        total.minutes += instance.minutes(before, first) + part.minutes;
        total.delivered += part.delivered;
        total.pickedUp += part.pickedUp;
        before = run.route->stop(run.to);
    }
    total.distance += instance.distance(before, depotNumber);
    total.minutes += instance.minutes(before, depotNumber);
    return total;
}

void Splice::stops(std::vector<int>& result) const {
    result.clear();
    for (std::size_t i = 0; i < count_; ++i) {
        const Run& run = runs_[i];
        const int step = run.from <= run.to ? 1 : -1;
        for (int p = run.from; p != run.to + step; p += step) result.push_back(run.route->stop(p));
    }
}

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
        double cost = instance_.distance(a, b) * leastGain;
        double least = beyondReach;
        for (const Fleet& fleet : instance_.fleets) least = std::min(least, instance_.legCost(fleet, a, b));
        return cost + least;
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
        std::vector<int> stops = given.stops;
        put(static_cast<int>(routes_.size()) - 1, stops,
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

void LocalSearch::put(int index, std::vector<int>& stops, const RouteValue& value) {
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

/// Changes a route if that makes it better.
bool LocalSearch::accept(int a, const Splice& newA) {
    ++work_;
    const double present = route(a).value().penalised - leastGain;
    const RouteSums sums = newA.sums(instance_);
    if (judge_.bound(instance_.fleet(route(a).fleet()), sums).penalised >= present) return false;
    const RouteValue value = valueOf(route(a).fleet(), newA, sums, stopsA_);
    if (value.penalised >= present) return false;
    put(a, stopsA_, value);
    return true;
}

/// Changes two routes if that makes them better together.
bool LocalSearch::accept(int a, const Splice& newA, int b, const Splice& newB) {
    work_ += 2;
    const int fleetA = route(a).fleet();
    const int fleetB = route(b).fleet();
    const auto costNow = [](const SearchRoute& r) { return r.empty() ? 0 : r.value().penalised; };
    double present = costNow(route(a)) + costNow(route(b)) - leastGain;
    const int changeA = (newA.empty() ? 0 : 1) - (route(a).empty() ? 0 : 1);
    const int changeB = (newB.empty() ? 0 : 1) - (route(b).empty() ? 0 : 1);
    if (fleetA == fleetB) {
        present -= vehiclePenalty(fleetA, changeA + changeB);
    } else {
        present -= vehiclePenalty(fleetA, changeA) + vehiclePenalty(fleetB, changeB);
    }
    const RouteSums sumsA = newA.sums(instance_);
    const RouteSums sumsB = newB.sums(instance_);
    const auto bound = [this](int fleet, const Splice& splice, const RouteSums& sums) {
        return splice.empty() ? 0 : judge_.bound(instance_.fleet(fleet), sums).penalised;
    };
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
    if (reverseEnds(placeOf(stop))) return true;
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
    if (from.route != to.route)
        return relocate(from, to) || exchange(from, to) || exchangeBefore(from, to) ||
               exchangeTails(from, to);
    return relocateWithin(from, to) || exchangeWithin(from, to) || reverse(from, to);
}

bool LocalSearch::relocate(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const SearchRoute& b = route(to.route);
    const int i = from.position;
    const int j = to.position;
    for (int length = 1; length <= longestRun && i + length - 1 <= a.size(); ++length) {
        Splice rest;
        rest.forward(a, 1, i - 1).forward(a, i + length, a.size());
        Splice with;
        with.forward(b, 1, j).forward(a, i, i + length - 1).forward(b, j + 1, b.size());
        if (accept(from.route, rest, to.route, with)) return true;
        if (length == 1) continue;
        Splice reversed;
        reversed.forward(b, 1, j).backward(a, i + length - 1, i).forward(b, j + 1, b.size());
        if (accept(from.route, rest, to.route, reversed)) return true;
    }
    return false;
}

bool LocalSearch::relocateWithin(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const int i = from.position;
    const int j = to.position;
    for (int length = 1; length <= longestRun && i + length - 1 <= a.size(); ++length) {
        const int last = i + length - 1;
        if (j >= i && j <= last) return false;
        for (const bool reversed : {false, true}) {
            if (reversed && length == 1) continue;
            Splice moved;
            if (j < i)
                moved.forward(a, 1, j);
            else
                moved.forward(a, 1, i - 1).forward(a, last + 1, j);
            reversed ? moved.backward(a, last, i) : moved.forward(a, i, last);
            if (j < i)
                moved.forward(a, j + 1, i - 1).forward(a, last + 1, a.size());
            else
                moved.forward(a, j + 1, a.size());
            if (accept(from.route, moved)) return true;
        }
    }
    return false;
}

/// One or two stops from a place on for one or two behind the other place.
bool LocalSearch::exchange(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const SearchRoute& b = route(to.route);
    const int i = from.position;
    const int j = to.position;
    for (int mine = 1; mine <= longestExchange && i + mine - 1 <= a.size(); ++mine) {
        for (int theirs = 1; theirs <= longestExchange && j + theirs <= b.size(); ++theirs) {
            Splice newA;
            newA.forward(a, 1, i - 1).forward(b, j + 1, j + theirs).forward(a, i + mine, a.size());
            Splice newB;
            newB.forward(b, 1, j).forward(a, i, i + mine - 1).forward(b, j + theirs + 1, b.size());
            if (accept(from.route, newA, to.route, newB)) return true;
        }
    }
    return false;
}

/// One or two stops up to a place for one or two before the other place.
bool LocalSearch::exchangeBefore(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const SearchRoute& b = route(to.route);
    const int i = from.position;
    const int j = to.position;
    for (int mine = 1; mine <= longestExchange && i - mine >= 0; ++mine) {
        for (int theirs = 1; theirs <= longestExchange && j - theirs >= 1; ++theirs) {
            Splice newA;
            newA.forward(a, 1, i - mine).forward(b, j - theirs, j - 1).forward(a, i + 1, a.size());
            Splice newB;
            newB.forward(b, 1, j - theirs - 1).forward(a, i - mine + 1, i).forward(b, j, b.size());
            if (accept(from.route, newA, to.route, newB)) return true;
        }
    }
    return false;
}

bool LocalSearch::exchangeWithin(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const int i = std::min(from.position, to.position);
    const int j = std::max(from.position, to.position);
    if (i < 1 || i == j) return false;
    Splice exchanged;
    exchanged.forward(a, 1, i - 1).forward(a, j, j).forward(a, i + 1, j - 1);
    exchanged.forward(a, i, i).forward(a, j + 1, a.size());
    return accept(from.route, exchanged);
}

/// The tail from a place on for the tail behind the other place; or head with head, tail with tail.
bool LocalSearch::exchangeTails(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const SearchRoute& b = route(to.route);
    const int i = from.position;
    const int j = to.position;
    Splice newA;
    newA.forward(a, 1, i - 1).forward(b, j + 1, b.size());
    Splice newB;
    newB.forward(b, 1, j).forward(a, i, a.size());
    if (accept(from.route, newA, to.route, newB)) return true;
    Splice heads;
    heads.forward(a, 1, i).backward(b, j, 1);
    Splice tails;
    tails.backward(a, a.size(), i + 1).forward(b, j + 1, b.size());
    return accept(from.route, heads, to.route, tails);
}

/// Turns the part between two places round so that they become neighbours.
bool LocalSearch::reverse(Place from, Place to) {
    const SearchRoute& a = route(from.route);
    const int i = from.position;
    const int j = to.position;
    if (j < 1) return false;
    Splice turned;
    if (i < j)
        turned.forward(a, 1, i).backward(a, j, i + 1).forward(a, j + 1, a.size());
    else
        turned.forward(a, 1, j - 1).backward(a, i - 1, j).forward(a, i, a.size());
    return accept(from.route, turned);
}

/// Turns the part up to a place, or from it on.
bool LocalSearch::reverseEnds(Place at) {
    const SearchRoute& a = route(at.route);
    Splice head;
    head.backward(a, at.position, 1).forward(a, at.position + 1, a.size());
    if (accept(at.route, head)) return true;
    Splice tail;
    tail.forward(a, 1, at.position - 1).backward(a, a.size(), at.position);
    return accept(at.route, tail);
}

/// What a leg costs a route at its last hour's rate.
double LocalSearch::marginalLegCost(const SearchRoute& route, int from, int to) const {
    const Fleet& fleet = instance_.fleet(route.fleet());
    const bool isOvertime = route.sums().minutes > instance_.overtimeAfter;
    return fleet.costPerDistance * instance_.distance(from, to) +
           (isOvertime ? fleet.costPerOvertimeMinute : fleet.costPerMinute) * instance_.minutes(from, to);
}

double LocalSearch::removalGain(const SearchRoute& r, int position) const {
    const int before = r.stop(position - 1);
    const int after = r.stop(position + 1);
    return marginalLegCost(r, before, r.stop(position)) + marginalLegCost(r, r.stop(position), after) -
           marginalLegCost(r, before, after);
}

std::vector<LocalSearch::Insertions> LocalSearch::cheapestPlaces(const SearchRoute& from,
                                                                 const SearchRoute& into) const {
    std::vector<Insertions> result(static_cast<std::size_t>(from.size()) + 1);
    for (int p = 1; p <= from.size(); ++p) {
        Insertions& best = result[static_cast<std::size_t>(p)];
        best.fill({beyondReach, 0});
        for (int after = 0; after <= into.size(); ++after) {
            const Insertion place{marginalLegCost(into, into.stop(after), from.stop(p)) +
                                      marginalLegCost(into, from.stop(p), into.stop(after + 1)) -
                                      marginalLegCost(into, into.stop(after), into.stop(after + 1)),
                                  after};
            if (place.cost >= best[2].cost) continue;
            best[2] = place;
            if (best[2].cost < best[1].cost) std::swap(best[1], best[2]);
            if (best[1].cost < best[0].cost) std::swap(best[0], best[1]);
        }
    }
    return result;
}

/// The cheapest place of a stop in a route without the stop at position `removed`.
LocalSearch::Insertion LocalSearch::placeWithout(const SearchRoute& into, int removed, int stop,
                                                 const Insertions& places) const {
    const int before = into.stop(removed - 1);
    const int after = into.stop(removed + 1);
    Insertion best{marginalLegCost(into, before, stop) + marginalLegCost(into, stop, after) -
                       marginalLegCost(into, before, after),
                   removed - 1};
    for (const Insertion& place : places) {
        if (place.after == removed || place.after == removed - 1 || place.cost == beyondReach) continue;
        if (place.cost < best.cost) best = place;
        break;
    }
    return best;
}

/// A route with the stop at `removed` taken out and another route's stop put behind position `after`.
Splice exchanged(const SearchRoute& r, int removed, const SearchRoute& other, int position, int after) {
    Splice result;
    if (after < removed) {
        result.forward(r, 1, after).forward(other, position, position).forward(r, after + 1, removed - 1);
        return result.forward(r, removed + 1, r.size());
    }
    result.forward(r, 1, removed - 1).forward(r, removed + 1, after).forward(other, position, position);
    return result.forward(r, after + 1, r.size());
}

bool LocalSearch::swapStar(int indexA, int indexB) {
    const SearchRoute& a = route(indexA);
    const SearchRoute& b = route(indexB);
    const auto intoB = cheapestPlaces(a, b);
    const auto intoA = cheapestPlaces(b, a);
    work_ += 2LL * a.size() * b.size();
    double best = -leastGain;
    int bestI = 0, bestJ = 0, afterA = 0, afterB = 0;
    for (int i = 1; i <= a.size(); ++i) {
        for (int j = 1; j <= b.size(); ++j) {
            const Insertion inB = placeWithout(b, j, a.stop(i), intoB[static_cast<std::size_t>(i)]);
            const Insertion inA = placeWithout(a, i, b.stop(j), intoA[static_cast<std::size_t>(j)]);
            double change = inA.cost + inB.cost - removalGain(a, i) - removalGain(b, j);
            if (change >= best + std::abs(a.value().load + b.value().load) * judge_.penalties().load)
                continue;
            const auto overload = [&](const SearchRoute& r, const Customer& in, const Customer& out) {
                RouteSums sums = r.sums();
                sums.delivered = sums.delivered + in.delivered - out.delivered;
                sums.pickedUp = sums.pickedUp + in.pickedUp - out.pickedUp;
                return judge_.bound(instance_.fleet(r.fleet()), sums).load - r.value().load;
            };
            const Customer& mine = instance_.customer(a.stop(i));
            const Customer& theirs = instance_.customer(b.stop(j));
            change += judge_.penalties().load * (overload(a, theirs, mine) + overload(b, mine, theirs));
            if (change >= best) continue;
            best = change;
            bestI = i, bestJ = j, afterA = inA.after, afterB = inB.after;
        }
    }
    if (bestI == 0) return false;
    return accept(indexA, exchanged(a, bestI, b, bestJ, afterA), indexB,
                  exchanged(b, bestJ, a, bestI, afterB));
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
    work_ += instance_.stepsAStop * (a.size() + b.size());
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
