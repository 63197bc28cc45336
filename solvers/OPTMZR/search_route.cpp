#include "solvers/OPTMZR/search_route.h"

namespace vantore::optmzr {

using router::depotNumber;

void SearchRoute::take(const Instance& instance, const std::vector<int>& stops, const RouteValue& value) {
    stops_ = stops;
    value_ = value;
    until_.assign(stops_.size() + 2, {});
    for (std::size_t p = 1; p < until_.size(); ++p) {
        const Until& before = until_[p - 1];
        Until& here = until_[p];
        here = {p <= stops_.size() ? stops_[p - 1] : depotNumber, 0, before.legs, before.loads};
        here.legs.distance += instance.distance(before.stop, here.stop);
        here.legs.minutes += before.stopMinutes + instance.minutes(before.stop, here.stop);
        const Customer& customer = instance.customer(here.stop);
        here.stopMinutes = customer.minutes;
        here.loads.delivered += customer.delivered;
        here.loads.pickedUp += customer.pickedUp;
    }
}

LegSums SearchRoute::legsBetween(int from, int to) const {
    const Until& first = until(from);
    const Until& last = until(to);
    return {last.legs.distance - first.legs.distance,
            last.legs.minutes - first.legs.minutes + last.stopMinutes};
}

LoadSums SearchRoute::loadsBetween(int from, int to) const {
    const Until& before = until(from - 1);
    const Until& last = until(to);
    return {last.loads.delivered - before.loads.delivered, last.loads.pickedUp - before.loads.pickedUp};
}

LegSums Splice::legs(const Instance& instance) const {
    LegSums total;
    int before = depotNumber;
    for (std::size_t i = 0; i < count_; ++i) {
        const Run& run = runs_[i];
        const LegSums part = run.route->legsBetween(run.first(), run.last());
        const int first = run.route->stop(run.from);
        total.distance += instance.distance(before, first) + part.distance;
        total.minutes += instance.minutes(before, first) + part.minutes;
        before = run.route->stop(run.to);
    }
    total.distance += instance.distance(before, depotNumber);
    total.minutes += instance.minutes(before, depotNumber);
    return total;
}

LoadSums Splice::loads() const {
    LoadSums total;
    for (std::size_t i = 0; i < count_; ++i) {
        const LoadSums part = runs_[i].route->loadsBetween(runs_[i].first(), runs_[i].last());
        total.delivered += part.delivered;
        total.pickedUp += part.pickedUp;
    }
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

} // namespace vantore::optmzr
