#include "solvers/OPTMZR/route_value.h"

#include <algorithm>

namespace vantore::optmzr {

namespace {

double above(double value, double limit) {
    return std::max(0.0, value - limit);
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
    value.penalised = value.cost + penalties_.load * value.load + penalties_.minutes * value.minutes +
                      penalties_.distance * value.distance + penalties_.share * value.share;
}

RouteValue RouteJudge::bound(const Fleet& fleet, const RouteSums& sums) const {
    RouteValue value;
    value.cost = instance_.routeCost(fleet, sums.distance, sums.minutes);
    const Load most{std::max(sums.delivered.weight, sums.pickedUp.weight),
                    std::max(sums.delivered.cube, sums.pickedUp.cube)};
    value.load = overload(most, fleet.capacity);
    value.minutes = above(sums.minutes, instance_.maxMinutes) +
                    above(instance_.clock.earliestStart + sums.minutes, instance_.clock.latestReturn);
    value.distance = above(sums.distance, instance_.maxDistance);
    penalise(value);
    return value;
}

RouteOrder RouteJudge::order(const RouteSums& sums, std::span<const int> stops) {
    RouteOrder order;
    if (instance_.loadsMix) carry(sums, stops, order);
    if (instance_.clockMatters) order.timing = timed(stops);
    return order;
}

RouteValue RouteJudge::value(const Fleet& fleet, const RouteSums& sums, const RouteOrder& order) const {
    RouteValue value = bound(fleet, sums);
    if (instance_.loadsMix) {
        value.load = overload(order.onBoard, fleet.capacity);
        const Load allowed{fleet.capacity.weight * instance_.pickupShare,
                           fleet.capacity.cube * instance_.pickupShare};
        value.share = instance_.pickupShare >= 1 ? 0 : overload(order.leftAtPickup, allowed);
    }
    if (instance_.clockMatters) {
        const double minutes = sums.minutes + order.timing.breakMinutes;
        value.cost = instance_.routeCost(fleet, sums.distance, minutes);
        value.minutes = above(minutes, instance_.maxMinutes) + order.timing.excess();
    }
    penalise(value);
    return value;
}

RouteValue RouteJudge::value(const Fleet& fleet, const RouteSums& sums, std::span<const int> stops) {
    return orderMatters() ? value(fleet, sums, order(sums, stops)) : bound(fleet, sums);
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

Timing RouteJudge::timed(std::span<const int> stops) {
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
    return bestTiming(instance_.clock, {arrivals_, open_});
}

} // namespace vantore::optmzr
