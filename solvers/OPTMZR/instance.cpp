#include "solvers/OPTMZR/instance.h"

#include <algorithm>
#include <cmath>

#include "routing/ROUTER/simulation.h"

namespace vantore::optmzr {

using router::Problem;
using router::Travel;

namespace {

constexpr double withoutEnd = 1E+07; // minutes: what stands for a leg that can't be driven
constexpr double fraction = 0x1p-34; // to which distances and loads are rounded
constexpr double fractionOfCost = 0x1p-44;
constexpr double fractionOfMinute = 0x1p-24;

double rounded(double value, double step) {
    return std::nearbyint(value / step) * step;
}

double orOne(double unit) {
    return unit > 0 && std::isfinite(unit) ? unit : 1;
}

/// In parts of a unit; what is beyond all bounds is cut off.
double inParts(double value, double unit, double step = fraction) {
    constexpr double most = 1E+06;
    return rounded(std::clamp(value / unit, -most, most), step);
}

double inMinutes(double value) {
    return rounded(std::clamp(value, -withoutEnd, withoutEnd), fractionOfMinute);
}

bool areAlike(const router::Vehicle& a, const router::Vehicle& b) {
    return a.weightCapacity == b.weightCapacity && a.cubeCapacity == b.cubeCapacity &&
           a.fixedCost + a.driverFixedCost == b.fixedCost + b.driverFixedCost &&
           a.costPerMile == b.costPerMile && a.driverCostPerHour == b.driverCostPerHour &&
           a.overtimeCost == b.overtimeCost;
}

} // namespace

Instance::Instance(const Problem& problem, const Travel& travel) : stopCount(problem.stops.count()) {
    measureLegs(travel);
    takeStops(problem);
    takePlaces(problem);
    takeFleets(problem);
    takeLimits(problem);
}

void Instance::measureLegs(const Travel& travel) {
    const auto size = static_cast<std::size_t>(stopCount) + 1;
    legs_.resize(size * size);
    double longest = 0;
    const auto eachPair = [this](const auto& action) {
        for (int a = 0; a <= stopCount; ++a)
            for (int b = a + 1; b <= stopCount; ++b) action(a, b);
    };
    eachPair([&](int a, int b) { longest = std::max(longest, travel.leg(a, b).distance); });
    distanceUnit_ = orOne(longest);
    eachPair([&](int a, int b) {
        const router::Leg& leg = travel.leg(a, b);
        const double minutes = router::minutesPerHour * leg.distance / leg.speed;
        legs_[place(a, b)] = legs_[place(b, a)] = {inParts(leg.distance, distanceUnit_),
                                                   std::isfinite(minutes) ? inMinutes(minutes) : withoutEnd};
    });
}

void Instance::takeStops(const Problem& problem) {
    Load largest;
    for (const router::Vehicle& vehicle : problem.vehicles.span()) {
        largest.weight = std::max(largest.weight, vehicle.weightCapacity);
        largest.cube = std::max(largest.cube, vehicle.cubeCapacity);
    }
    loadUnit_ = {orOne(largest.weight), orOne(largest.cube)};
    customers.resize(static_cast<std::size_t>(stopCount) + 1);
    for (int i = 1; i <= stopCount; ++i) {
        const router::Stop& stop = problem.stops(i);
        Customer& customer = customers[static_cast<std::size_t>(i)];
        const Load load{inParts(stop.weight, loadUnit_.weight), inParts(stop.cube, loadUnit_.cube)};
        customer.isPickup = stop.type != router::delivery;
        (customer.isPickup ? customer.pickedUp : customer.delivered) = load;
        customer.minutes = inMinutes(router::stopMinutes(problem, stop));
        customer.open = OpeningHours(stop);
        largestLoad = std::max({largestLoad, load.weight, load.cube});
    }
    const auto isPickup = [](const Customer& customer) { return customer.isPickup; };
    const auto pickups = std::count_if(customers.begin(), customers.end(), isPickup);
    loadsMix = pickups > 0 && pickups < stopCount;
}

void Instance::takePlaces(const Problem& problem) {
    const router::GridScale scale{problem.horizontalScale, problem.verticalScale};
    double farthest = 0;
    for (const router::Stop& stop : problem.stops.span())
        farthest = std::max(
            farthest, router::straightDistance({stop.x, stop.y}, {problem.depotX, problem.depotY}, scale));
    const double unit = orOne(farthest);
    for (int i = 1; i <= stopCount; ++i) {
        const router::Stop& stop = problem.stops(i);
        customers[static_cast<std::size_t>(i)].place = {
            inParts((stop.x - problem.depotX) * scale.horizontal, unit),
            inParts((stop.y - problem.depotY) * scale.vertical, unit)};
    }
}

void Instance::takeFleets(const Problem& problem) {
    std::vector<const router::Vehicle*> first;
    for (int row = 1; row <= problem.vehicles.count(); ++row) {
        const router::Vehicle& vehicle = problem.vehicles(row);
        const auto alike = std::find_if(first.begin(), first.end(), [&](const router::Vehicle* other) {
            return areAlike(*other, vehicle);
        });
        if (alike == first.end()) fleets.emplace_back();
        Fleet& fleet = fleets[static_cast<std::size_t>(alike - first.begin())];
        if (alike == first.end()) first.push_back(&vehicle);
        fleet.rows.push_back(row);
        fleet.numbers.push_back(static_cast<int>(std::clamp(vehicle.number, 0.0, double(stopCount))));
        fleet.available += fleet.numbers.back();
    }
    double dearest = 0;
    for (const router::Vehicle* vehicle : first)
        for (int a = 0; a <= stopCount; ++a)
            for (int b = a + 1; b <= stopCount; ++b)
                dearest = std::max(dearest,
                                   vehicle->costPerMile * distanceUnit_ * distance(a, b) +
                                       vehicle->driverCostPerHour * minutes(a, b) / router::minutesPerHour);
    const double unit = orOne(dearest);
    for (std::size_t k = 0; k < first.size(); ++k) {
        const router::Vehicle& vehicle = *first[k];
        Fleet& fleet = fleets[k];
        fleet.capacity = {inParts(vehicle.weightCapacity, loadUnit_.weight),
                          inParts(vehicle.cubeCapacity, loadUnit_.cube)};
        fleet.fixedCost = inParts(vehicle.fixedCost + vehicle.driverFixedCost, unit, fractionOfCost);
        fleet.costPerDistance = inParts(vehicle.costPerMile * distanceUnit_, unit, fractionOfCost);
        fleet.costPerMinute =
            inParts(vehicle.driverCostPerHour / router::minutesPerHour, unit, fractionOfCost);
        fleet.costPerOvertimeMinute =
            inParts(vehicle.overtimeCost / router::minutesPerHour, unit, fractionOfCost);
    }
}

void Instance::takeLimits(const Problem& problem) {
    clock.earliestStart = inMinutes(problem.earliestStart);
    clock.latestReturn = inMinutes(problem.latestReturn);
    clockAtNight = clock;
    for (int k = 1; k <= router::breakCount; ++k) {
        const router::Break& pause = problem.breaks(k);
        if (pause.duration == 0) continue;
        clockAtNight.breaks.push_back(pause);
        if (pause.beginsAfter < problem.latestReturn) clock.breaks.push_back(pause);
    }
    maxMinutes = inMinutes(router::minutesPerHour * problem.maxTime);
    maxDistance = inParts(problem.maxDistance, distanceUnit_);
    overtimeAfter = inMinutes(router::minutesPerHour * problem.overtimeAfter);
    pickupShare = problem.pickupPercent / 100;
    const auto isAlwaysOpen = [this](const Customer& customer) {
        return customer.open.neverOpen() ||
               (!customer.open.areSplit() && customer.open.wholeDay().begin <= clock.earliestStart &&
                customer.open.wholeDay().end >= clock.latestReturn);
    };
    clockMatters =
        !clock.breaks.empty() || !std::all_of(customers.begin() + 1, customers.end(), isAlwaysOpen);
    constexpr int withWindows = 2;
    constexpr int withBreaks = 4;
    if (clockMatters) stepsAStop = clock.breaks.empty() ? withWindows : withBreaks;
}

} // namespace vantore::optmzr
