#include "solvers/OPTMZR/route_value.h"

#include <algorithm>

namespace vantore::optmzr {

namespace {

double above(double value, double limit) {
    return std::max(0.0, value - limit);
}

void miss(Misses& misses, double value, double limit, double unit) {
    if (value <= limit + slack) return;
    ++misses.count;
    misses.excess += (value - limit) / (unit > 0 ? unit : 1);
}

double overload(Load load, Load capacity) {
    return above(load.weight, capacity.weight) + above(load.cube, capacity.cube);
}

} // namespace

Penalties Penalties::times(double factor) const {
    return {load * factor, minutes * factor, distance * factor, share * factor, vehicle * factor};
}

RouteSums sumsOf(const Instance& instance, std::span<const int> stops) {
    RouteSums sums;
    int before = router::depotNumber;
    for (const int stop : stops) {
        const Customer& customer = instance.customer(stop);
        sums.distance += instance.distance(before, stop);
        sums.minutes += instance.minutes(before, stop) + customer.minutes;
        sums.delivered += customer.delivered;
        sums.pickedUp += customer.pickedUp;
        before = stop;
    }
    sums.distance += instance.distance(before, router::depotNumber);
    sums.minutes += instance.minutes(before, router::depotNumber);
    return sums;
}

void RouteJudge::penalise(RouteValue& value) const {
    if (strict_) {
        value.penalised =
            value.cost + strict_->limit * value.misses.count + strict_->excess * value.misses.excess;
        return;
    }
    value.penalised = value.cost + penalties_.load * value.load + penalties_.minutes * value.minutes +
                      penalties_.distance * value.distance + penalties_.share * value.share;
}

/// Without penalties.
RouteValue RouteJudge::valueOfLegs(const Fleet& fleet, const LegSums& sums) const {
    RouteValue value;
    value.cost = instance_.routeCost(fleet, sums.distance, sums.minutes);
    value.minutes = above(sums.minutes, instance_.maxMinutes) +
                    above(instance_.clock.earliestStart + sums.minutes, instance_.clock.latestReturn);
    value.distance = above(sums.distance, instance_.maxDistance);
    if (strict_) {
        miss(value.misses, sums.distance, instance_.maxDistance, instance_.maxDistance);
        miss(value.misses, sums.minutes, instance_.maxMinutes, router::minutesPerHour);
        miss(value.misses, instance_.clock.earliestStart + sums.minutes, instance_.clock.latestReturn,
             router::minutesPerHour);
    }
    return value;
}

double RouteJudge::legBound(const Fleet& fleet, const LegSums& sums) const {
    RouteValue value = valueOfLegs(fleet, sums);
    penalise(value);
    return value.penalised;
}

RouteValue RouteJudge::bound(const Fleet& fleet, const RouteSums& sums) const {
    RouteValue value = valueOfLegs(fleet, sums);
    const Load most{std::max(sums.delivered.weight, sums.pickedUp.weight),
                    std::max(sums.delivered.cube, sums.pickedUp.cube)};
    value.load = overload(most, fleet.capacity);
    if (strict_) {
        miss(value.misses, most.weight, fleet.capacity.weight, fleet.capacity.weight);
        miss(value.misses, most.cube, fleet.capacity.cube, fleet.capacity.cube);
    }
    penalise(value);
    return value;
}

RouteOrder RouteJudge::order(const RouteSums& sums, std::span<const int> stops) {
    RouteOrder order;
    if (instance_.loadsMix) carry(sums, stops, order);
    if (!instance_.clockMatters && !strict_) return order;
    const TimedRoute route = timedRoute(stops);
    order.timing = bestTiming(instance_.clock, route);
    const double minutes = sums.minutes + order.timing.breakMinutes;
    if (strict_ && (order.timing.excess() > 0 || minutes > instance_.maxMinutes))
        order.timing = leastMisses(instance_.clockAtNight, route, instance_.maxMinutes, order.misses);
    return order;
}

RouteValue RouteJudge::value(const Fleet& fleet, const RouteSums& sums, const RouteOrder& order,
                             std::span<const int> stops) const {
    RouteValue value = bound(fleet, sums);
    if (instance_.loadsMix) {
        value.load = overload(order.onBoard, fleet.capacity);
        const Load allowed{fleet.capacity.weight * instance_.pickupShare,
                           fleet.capacity.cube * instance_.pickupShare};
        value.share = instance_.pickupShare >= 1 ? 0 : overload(order.leftAtPickup, allowed);
    }
    if (instance_.clockMatters || strict_) {
        const double minutes = sums.minutes + order.timing.breakMinutes;
        value.cost = instance_.routeCost(fleet, sums.distance, minutes);
        value.minutes = above(minutes, instance_.maxMinutes) + order.timing.excess();
    }
    if (strict_) value.misses = missesOf(fleet, sums, order, stops);
    penalise(value);
    return value;
}

/// The limits that a route breaks, as a plan is judged.
Misses RouteJudge::missesOf(const Fleet& fleet, const RouteSums& sums, const RouteOrder& order,
                            std::span<const int> stops) const {
    Misses misses = order.misses;
    if (misses.count == 0) {
        const double minutes = sums.minutes + order.timing.breakMinutes;
        miss(misses, minutes, instance_.maxMinutes, router::minutesPerHour);
        miss(misses, instance_.clock.earliestStart + minutes, instance_.clock.latestReturn,
             router::minutesPerHour);
    }
    miss(misses, sums.distance, instance_.maxDistance, instance_.maxDistance);
    RouteOrder loads;
    carry(sums, stops, loads);
    miss(misses, loads.onBoard.weight, fleet.capacity.weight, fleet.capacity.weight);
    miss(misses, loads.onBoard.cube, fleet.capacity.cube, fleet.capacity.cube);
    missPickups(fleet, sums, stops, misses);
    for (const int stop : stops)
        if (instance_.customer(stop).open.neverOpen()) {
            ++misses.count;
            ++misses.excess;
        }
    return misses;
}

void RouteJudge::missPickups(const Fleet& fleet, const RouteSums& sums, std::span<const int> stops,
                             Misses& misses) const {
    if (instance_.pickupShare >= 1) return;
    Load left = sums.delivered;
    for (const int stop : stops) {
        const Customer& customer = instance_.customer(stop);
        left = left - customer.delivered;
        if (!customer.isPickup) continue;
        miss(misses, left.weight, instance_.pickupShare * fleet.capacity.weight, fleet.capacity.weight);
        miss(misses, left.cube, instance_.pickupShare * fleet.capacity.cube, fleet.capacity.cube);
    }
}

RouteValue RouteJudge::value(const Fleet& fleet, const RouteSums& sums, std::span<const int> stops) {
    return orderMatters() ? value(fleet, sums, order(sums, stops), stops) : bound(fleet, sums);
}

/// What is on board from the start, and what is left of it at each pickup.
void RouteJudge::carry(const RouteSums& sums, std::span<const int> stops, RouteOrder& order) const {
    Load left = sums.delivered;
    Load onBoard = left;
    order.onBoard = onBoard;
    for (const int stop : stops) {
        const Customer& customer = instance_.customer(stop);
        if (customer.isPickup) {
            order.leftAtPickup.weight = std::max(order.leftAtPickup.weight, left.weight);
            order.leftAtPickup.cube = std::max(order.leftAtPickup.cube, left.cube);
        }
        left = left - customer.delivered;
        onBoard = onBoard - customer.delivered + customer.pickedUp;
        order.onBoard.weight = std::max(order.onBoard.weight, onBoard.weight);
        order.onBoard.cube = std::max(order.onBoard.cube, onBoard.cube);
    }
}

TimedRoute RouteJudge::timedRoute(std::span<const int> stops) {
    arrivals_.clear();
    open_.clear();
    double after = 0;
    int before = router::depotNumber;
    for (const int stop : stops) {
        after += instance_.minutes(before, stop);
        arrivals_.push_back(after);
        open_.push_back(&instance_.customer(stop).open);
        after += instance_.customer(stop).minutes;
        before = stop;
    }
    arrivals_.push_back(after + instance_.minutes(before, router::depotNumber));
    return {arrivals_, open_};
}

} // namespace vantore::optmzr
