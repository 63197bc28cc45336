#include "bench/mixed_problems.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <utility>

#include "routing/ROUTER/simulation.h"

namespace vantore::bench {

using router::PlannedRoute;
using router::Problem;
using router::SimulatedRoute;
using router::Stop;
using router::Travel;
using router::Vehicle;

namespace {

constexpr double endOfDays = 9999; // minutes

std::vector<SimulatedRoute> simulated(const Problem& problem, const router::Plan& plan) {
    const Travel travel(problem);
    std::vector<SimulatedRoute> routes;
    for (int r = 1; r <= plan.routeCount; ++r)
        routes.push_back(router::simulate(problem, travel, plan.routes(r)));
    return routes;
}

CountedTable<Stop> tableOf(const std::vector<Stop>& stops) {
    CountedTable<Stop> table;
    for (const Stop& stop : stops) table.add(stop);
    return table;
}

} // namespace

MixedProblem MixedProblems::make(int stopCount) {
    problem_ = {};
    plan_ = {};
    drawFeatures();
    drawGeneral();
    drawStops(stopCount);
    if (has('R')) drawBarriers();
    drawRoutes();
    drawVehicles();
    drawLimits();
    drawWindows();
    return {features_, problem_, plan_};
}

void MixedProblems::drawFeatures() {
    features_.clear();
    for (const char feature : std::string("WTBFPRZO"))
        if (from(0, 1) == 1) features_ += feature;
}

void MixedProblems::drawGeneral() {
    problem_.depotX = from(30, 70);
    problem_.depotY = from(30, 70);
    problem_.defaultSpeed = from(30, 60);
    problem_.horizontalScale = problem_.verticalScale = 1.15;
    problem_.fixedStopTime = from(3, 15);
    problem_.timePerWeight = .01;
    if (has('B')) {
        problem_.breaks(1) = {static_cast<double>(from(15, 30)), static_cast<double>(from(560, 640))};
        problem_.breaks(2) = {static_cast<double>(from(20, 60)), static_cast<double>(from(700, 780))};
    }
    if (!has('Z')) return;
    for (int zone = 1; zone <= 2; ++zone) problem_.zones.add({});
    problem_.zoneSpeeds.add({1, 1, 20});
    problem_.zoneSpeeds.add({1, 2, 35});
    problem_.zoneSpeeds.add({2, 2, 45});
}

void MixedProblems::drawStops(int count) {
    stops_.clear();
    for (int i = 0; i < count; ++i) {
        Stop stop;
        stop.type = has('P') && from(1, 4) == 1 ? router::pickup : router::delivery;
        stop.weight = from(20, 300);
        stop.cube = from(2, 40);
        stop.x = from(0, 100);
        stop.y = from(0, 100);
        if (has('Z')) stop.zone = from(0, 2);
        stop.end1 = stop.begin2 = stop.end2 = endOfDays;
        stops_.push_back(stop);
    }
    problem_.stops = tableOf(stops_);
}

void MixedProblems::drawBarriers() {
    for (int k = from(1, 4); k > 0; --k) {
        const double left = from(0, 80) + .5;
        const double bottom = from(0, 80) + .5;
        const double right = left + from(3, 25);
        const double top = bottom + from(3, 10);
        problem_.barriers.add({left, top, right, top, left, bottom, right, bottom});
    }
}

/// Round the depot, four to nine stops a route.
void MixedProblems::drawRoutes() {
    std::vector<std::pair<double, int>> around;
    for (std::size_t i = 0; i < stops_.size(); ++i)
        around.emplace_back(std::atan2(stops_[i].y - problem_.depotY, stops_[i].x - problem_.depotX),
                            static_cast<int>(i) + 1);
    std::sort(around.begin(), around.end());
    for (std::size_t at = 0; at < around.size();) {
        const std::size_t end = std::min(around.size(), at + static_cast<std::size_t>(from(4, 9)));
        std::vector<int> stops;
        for (; at < end; ++at) stops.push_back(around[at].second);
        PlannedRoute& route = plan_.routes(++plan_.routeCount);
        route.stops = drawRoute(stops);
        route.start = from(400, 540);
        route.vehicle = 1;
    }
}

/// Always on to the nearest stop, deliveries before pickups.
std::vector<int> MixedProblems::drawRoute(std::vector<int> stops) {
    const Travel travel(problem_);
    std::vector<int> route;
    int last = router::depotNumber;
    while (!stops.empty()) {
        const auto far = [&](int stop) {
            const bool isPickup = problem_.stops(stop).type == router::pickup;
            return std::pair(isPickup, travel.leg(last, stop).distance);
        };
        const auto next =
            std::min_element(stops.begin(), stops.end(), [&](int a, int b) { return far(a) < far(b); });
        last = *next;
        route.push_back(last);
        stops.erase(next);
    }
    return route;
}

/// Up to three types, each as large as the routes that it drives need.
void MixedProblems::drawVehicles() {
    const int types = has('F') ? 3 : 1;
    std::vector<Vehicle> vehicles(static_cast<std::size_t>(types));
    for (int r = 1; r <= plan_.routeCount; ++r) plan_.routes(r).vehicle = from(1, types);
    for (Vehicle& vehicle : vehicles) {
        vehicle.number = 1;
        vehicle.weightCapacity = 400;
        vehicle.cubeCapacity = 50;
        vehicle.fixedCost = from(30, 100);
        vehicle.costPerMile = from(30, 90) / 100.0;
        vehicle.driverFixedCost = from(0, 40);
        vehicle.driverCostPerHour = from(10, 20);
        vehicle.overtimeCost = 1.5 * vehicle.driverCostPerHour;
        problem_.vehicles.add(vehicle);
    }
    const auto routes = simulated(problem_, plan_);
    for (int r = 1; r <= plan_.routeCount; ++r) {
        Vehicle& vehicle = vehicles[static_cast<std::size_t>(plan_.routes(r).vehicle - 1)];
        const SimulatedRoute& route = routes[static_cast<std::size_t>(r - 1)];
        vehicle.number += 1;
        vehicle.weightCapacity =
            std::max({vehicle.weightCapacity, route.deliveredWeight, route.pickupWeight});
        vehicle.cubeCapacity = std::max({vehicle.cubeCapacity, route.deliveredCube, route.pickupCube});
    }
    problem_.vehicles = {};
    for (const Vehicle& vehicle : vehicles) problem_.vehicles.add(vehicle);
}

void MixedProblems::drawLimits() {
    const auto routes = simulated(problem_, plan_);
    problem_.earliestStart = endOfDays;
    problem_.latestReturn = problem_.maxTime = problem_.maxDistance = 0;
    for (const SimulatedRoute& route : routes) {
        problem_.earliestStart = std::min(problem_.earliestStart, route.start);
        problem_.latestReturn = std::max(problem_.latestReturn, std::ceil(route.returned));
        problem_.maxTime = std::max(problem_.maxTime, std::ceil(10 * route.totalTime()) / 10);
        problem_.maxDistance = std::max(problem_.maxDistance, std::ceil(route.distance));
    }
    if (has('O')) problem_.overtimeAfter = std::floor(.7 * problem_.maxTime);
}

void MixedProblems::drawWindows() {
    for (const SimulatedRoute& route : simulated(problem_, plan_)) {
        for (const router::Visit& visit : route.visits) {
            if (visit.stop == router::depotNumber) continue;
            Stop& stop = stops_[static_cast<std::size_t>(visit.stop - 1)];
            if (has('W') && from(1, 3) > 1) stop = open(stop, visit.arrival);
        }
    }
    problem_.stops = tableOf(stops_);
}

/// Open around the arrival; a second time before or after it.
Stop MixedProblems::open(Stop stop, double arrival) {
    stop.begin1 = std::floor(arrival - from(10, 90));
    stop.end1 = std::ceil(arrival + from(10, 90));
    stop.begin2 = stop.end1 + from(60, 120);
    stop.end2 = stop.begin2 + from(30, 90);
    if (!has('T')) {
        stop.begin2 = stop.end1;
        stop.end2 = stop.end1 + 1;
    } else if (from(0, 1) == 1) {
        std::swap(stop.begin1, stop.begin2);
        std::swap(stop.end1, stop.end2);
        stop.end1 = stop.begin2 - from(60, 120);
        stop.begin1 = stop.end1 - from(30, 90);
    }
    return stop;
}

} // namespace vantore::bench
