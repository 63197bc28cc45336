#include "routing/ROUTER/travel.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "shell/base/arithmetic.h"

namespace vantore::router {

namespace {

constexpr double samePlace = .00001;        // units of the grid
constexpr double distanceAtOnePlace = .001; // so that a division by it stays defined

/// The stops by their numbers, the depot first.
std::vector<Stop> allStops(const Problem& problem) {
    std::vector<Stop> stops{depotStop(problem)};
    stops.insert(stops.end(), problem.stops.span().begin(), problem.stops.span().end());
    return stops;
}

Leg measuredLeg(const Problem& problem, Place from, Place to) {
    if (std::abs(from.x - to.x) < samePlace && std::abs(from.y - to.y) < samePlace)
        return {.distance = distanceAtOnePlace};
    const GridScale scale{problem.horizontalScale, problem.verticalScale};
    Leg leg{.distance = straightDistance(from, to, scale)};
    double extra = 0;
    for (const Barrier& barrier : problem.barriers.span()) {
        const BarrierEffect effect = barrierEffect(barrier, from, to, scale);
        extra += effect.detour;
        if (effect.endsInside) ++leg.barriersEnded;
    }
    leg.distance += extra;
    return leg;
}

/// The speed between two zones, either way; the default where none is given.
double zoneSpeed(const Problem& problem, double from, double to) {
    const auto joins = [from, to](const ZoneSpeed& row) {
        return (row.origin == from && row.destination == to) || (row.origin == to && row.destination == from);
    };
    const auto rows = problem.zoneSpeeds.span();
    const auto row = std::find_if(rows.begin(), rows.end(), joins);
    return row == rows.end() ? problem.defaultSpeed : row->speed;
}

} // namespace

Travel::Travel(const Problem& problem) : last_(problem.stops.count()) {
    const auto size = static_cast<std::size_t>(last_) + 1;
    legs_.resize(size * size);
    measure(problem);
    specifyDistances(problem);
    specifySpeeds(problem);
}

const Leg& Travel::leg(int from, int to) const {
    checkIndex(from, 0, last_);
    checkIndex(to, 0, last_);
    const Leg& leg = legs_[static_cast<std::size_t>(from) * static_cast<std::size_t>(last_ + 1) +
                           static_cast<std::size_t>(to)];
    finite(leg.distance);
    return leg;
}

double Travel::hours(const Leg& leg) {
    return divide(leg.distance, leg.speed);
}

Leg& Travel::at(int from, int to) {
    return legs_[static_cast<std::size_t>(from) * static_cast<std::size_t>(last_ + 1) +
                 static_cast<std::size_t>(to)];
}

void Travel::measure(const Problem& problem) {
    const std::vector<Stop> stops = allStops(problem);
    for (int from = 0; from <= last_; ++from) {
        const Stop& origin = stops[static_cast<std::size_t>(from)];
        for (int to = 0; to <= last_; ++to) {
            const Stop& destination = stops[static_cast<std::size_t>(to)];
            at(from, to) = measuredLeg(problem, {origin.x, origin.y}, {destination.x, destination.y});
            at(from, to).speed = zoneSpeed(problem, origin.zone, destination.zone);
        }
    }
}

/// From the last row to the first, so that of two rows for the same stops the first one counts.
void Travel::specifyDistances(const Problem& problem) {
    for (int k = problem.distances.count(); k >= 1; --k) {
        const SpecifiedLeg& row = problem.distances(k);
        if (row.from < 0 || row.from > last_ || row.to < 0 || row.to > last_) continue;
        for (Leg* leg : {&at(row.from, row.to), &at(row.to, row.from)}) {
            leg->distance = row.value;
            leg->barriersEnded = 0;
        }
    }
}

void Travel::specifySpeeds(const Problem& problem) {
    for (int k = problem.speeds.count(); k >= 1; --k) {
        const SpecifiedLeg& row = problem.speeds(k);
        if (row.from < 0 || row.from > last_ || row.to < 0 || row.to > last_) continue;
        at(row.from, row.to).speed = row.value;
        at(row.to, row.from).speed = row.value;
    }
}

} // namespace vantore::router
