#include "routing/ROUTER/travel.h"

#include <cmath>
#include <map>
#include <utility>

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

/// Speeds by the numbers of two zones.
using ZoneSpeeds = std::map<std::pair<double, double>, double>;

/// The speeds between zones, either way. Of several rows for the same zones the first one counts.
ZoneSpeeds zoneSpeeds(const Problem& problem) {
    ZoneSpeeds speeds;
    for (const ZoneSpeed& row : problem.zoneSpeeds.span()) {
        speeds.emplace(std::pair(row.origin, row.destination), row.speed);
        speeds.emplace(std::pair(row.destination, row.origin), row.speed);
    }
    return speeds;
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
    const Leg& leg = legs_[place(from, to)];
    finite(leg.distance);
    return leg;
}

double Travel::hours(const Leg& leg) {
    return divide(leg.distance, leg.speed);
}

std::size_t Travel::place(int from, int to) const {
    checkIndex(from, depotNumber, last_);
    checkIndex(to, depotNumber, last_);
    return static_cast<std::size_t>(from) * static_cast<std::size_t>(last_ + 1) +
           static_cast<std::size_t>(to);
}

void Travel::measure(const Problem& problem) {
    const std::vector<Stop> stops = allStops(problem);
    const ZoneSpeeds speeds = zoneSpeeds(problem);
    for (int from = depotNumber; from <= last_; ++from) {
        const Stop& origin = stops[static_cast<std::size_t>(from)];
        for (int to = depotNumber; to <= last_; ++to) {
            const Stop& destination = stops[static_cast<std::size_t>(to)];
            Leg& leg = at(from, to);
            leg = measuredLeg(problem, {origin.x, origin.y}, {destination.x, destination.y});
            const auto speed = speeds.find({origin.zone, destination.zone});
            leg.speed = speed == speeds.end() ? problem.defaultSpeed : speed->second;
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
