#include "tests/routing/ROUTER/random_problems.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace vantore::router::tests {

Stop RandomProblems::stop() {
    Stop stop;
    stop.type = oneIn(4) ? pickup : delivery;
    stop.weight = from(1, 300);
    stop.cube = from(1, 40);
    stop.x = from(0, 100);
    stop.y = from(0, 100);
    stop.zone = from(0, 3);
    stop.loadTime = oneIn(3) ? from(1, 30) : 0;
    stop.begin1 = oneIn(3) ? from(0, 700) : 0;
    stop.end1 = stop.begin1 + from(60, 600);
    stop.begin2 = stop.end1 + (oneIn(2) ? from(1, 200) : 0);
    stop.end2 = stop.begin2 + from(60, 2000);
    return stop;
}

Vehicle RandomProblems::vehicle() {
    Vehicle vehicle;
    vehicle.number = from(1, 4);
    vehicle.weightCapacity = from(4, 20) * 100;
    vehicle.cubeCapacity = from(4, 20) * 15;
    vehicle.fixedCost = from(0, 80);
    vehicle.costPerMile = from(10, 120) / 100.0;
    vehicle.driverFixedCost = from(0, 60);
    vehicle.driverCostPerHour = from(8, 25);
    vehicle.overtimeCost = vehicle.driverCostPerHour * 1.5;
    return vehicle;
}

Barrier RandomProblems::barrier() {
    const double left = from(5, 75) + .5;
    const double bottom = from(5, 75) + .5;
    const double right = left + from(4, 20);
    const double top = bottom + from(4, 20);
    const double lean = oneIn(2) ? from(-3, 3) : 0;
    return {left + lean, top, right + lean, top + (oneIn(2) ? 2 : 0), left, bottom, right, bottom};
}

void RandomProblems::addLegs(Problem& problem) {
    const auto number = [&] { return static_cast<std::int16_t>(from(0, problem.stops.count())); };
    for (int k = from(0, 6); k > 0; --k)
        problem.distances.add({number(), "", number(), "", static_cast<double>(from(5, 120))});
    for (int k = from(0, 6); k > 0; --k)
        problem.speeds.add({number(), "", number(), "", static_cast<double>(from(10, 80))});
}

void RandomProblems::addZones(Problem& problem) {
    for (int k = 0; k < 3; ++k) problem.zones.add({});
    for (int k = from(1, 4); k > 0; --k)
        problem.zoneSpeeds.add({static_cast<double>(from(0, 3)), static_cast<double>(from(0, 3)),
                                static_cast<double>(from(15, 60))});
}

Problem RandomProblems::next(int stopCount) {
    Problem problem;
    problem.depotX = from(20, 80);
    problem.depotY = from(20, 80);
    problem.earliestStart = oneIn(2) ? from(0, 480) : 0;
    problem.latestReturn = oneIn(2) ? from(900, 2000) : 9999;
    problem.overtimeAfter = oneIn(2) ? from(4, 10) : 9999;
    problem.pickupPercent = from(0, 4) * 25;
    problem.horizontalScale = from(80, 130) / 100.0;
    problem.verticalScale = from(80, 130) / 100.0;
    problem.maxTime = oneIn(2) ? from(8, 16) : 9999;
    problem.maxDistance = oneIn(2) ? from(200, 600) : 9999;
    problem.fixedStopTime = from(0, 20);
    problem.timePerWeight = from(0, 4) / 100.0;
    problem.timePerCube = from(0, 10) / 100.0;
    if (oneIn(2))
        problem.breaks(1) = {static_cast<double>(from(10, 60)), static_cast<double>(from(300, 800))};
    if (oneIn(3))
        problem.breaks(2) = {static_cast<double>(from(10, 60)), static_cast<double>(from(800, 1100))};
    for (int k = 0; k < stopCount; ++k) problem.stops.add(stop());
    for (int k = from(1, 3); k > 0; --k) problem.vehicles.add(vehicle());
    if (oneIn(2)) addLegs(problem);
    if (oneIn(2)) addZones(problem);
    if (oneIn(2))
        for (int k = from(1, 4); k > 0; --k) problem.barriers.add(barrier());
    return problem;
}

std::vector<int> RandomProblems::shuffledStops(const Problem& problem) {
    std::vector<int> stops(static_cast<std::size_t>(problem.stops.count()));
    std::iota(stops.begin(), stops.end(), 1);
    std::shuffle(stops.begin(), stops.end(), random_);
    return stops;
}

PlannedRoute RandomProblems::route(const Problem& problem) {
    std::vector<int> stops = shuffledStops(problem);
    stops.resize(static_cast<std::size_t>(from(1, problem.stops.count())));
    const int vehicle = from(1, problem.vehicles.count());
    return plannedRoute(problem, vehicle, from(0, 900), std::move(stops));
}

Plan RandomProblems::plan(const Problem& problem) {
    const std::vector<int> stops = shuffledStops(problem);
    Plan plan;
    const int longest = oneIn(5) ? mostStops : 1 + from(0, 7);
    for (auto next = stops.begin(); next != stops.end();) {
        const auto end = next + std::min<std::ptrdiff_t>(from(1, longest), stops.end() - next);
        const int vehicle = from(1, problem.vehicles.count());
        plan.routes(++plan.routeCount) = plannedRoute(problem, vehicle, from(-100, 4000) / 2.0, {next, end});
        next = end;
    }
    return plan;
}

} // namespace vantore::router::tests
