#include "routing/ROUTER/simulation.h"

#include <array>
#include <cstddef>

#include "shell/base/arithmetic.h"
#include "shell/base/number.h"

namespace vantore::router {

namespace {

bool isDelivery(const Stop& stop) {
    return stop.type == delivery;
}

bool isInWindow(const Stop& stop, double clock) {
    return (clock >= stop.begin1 && clock <= stop.end1) || (clock >= stop.begin2 && clock <= stop.end2);
}

/// A route under way.
class Round {
  public:
    Round(const Problem& problem, const Travel& travel, const PlannedRoute& planned)
        : problem_(problem), travel_(travel), planned_(planned) {
        route_.start = planned.start;
        route_.returned = planned.start;
        clock_ = planned.start;
    }

    SimulatedRoute driven() {
        load();
        for (const int number : planned_.stops) serve(number);
        if (!planned_.stops.empty()) comeHome();
        judge();
        return std::move(route_);
    }

  private:
    void load() {
        Number deliveredWeight, deliveredCube, pickupWeight, pickupCube;
        for (const int number : planned_.stops) {
            const Stop& stop = problem_.stops(number);
            (isDelivery(stop) ? deliveredWeight : pickupWeight) += stop.weight;
            (isDelivery(stop) ? deliveredCube : pickupCube) += stop.cube;
        }
        route_.deliveredWeight = weightOnBoard_ = deliveredWeight;
        route_.deliveredCube = cubeOnBoard_ = deliveredCube;
        route_.pickupWeight = pickupWeight;
        route_.pickupCube = pickupCube;
    }

    void serve(int number) {
        const Stop& stop = problem_.stops(number);
        const bool isFirst = route_.visits.empty();
        Visit visit = arriveAt(number);
        if (isFirst) route_.stemTime = route_.runTime;
        visit.isInWindow = isInWindow(stop, clock_);
        if (!visit.isInWindow) route_.violations.timeWindows = true;
        visit.stopTime = stopMinutes(problem_, stop);
        route_.stopTime = finite(route_.stopTime + visit.stopTime / minutesPerHour);
        clock_ = finite(clock_ + visit.stopTime);
        visit.departure = clock_;
        weightOnBoard_ += isDelivery(stop) ? -stop.weight : stop.weight;
        cubeOnBoard_ += isDelivery(stop) ? -stop.cube : stop.cube;
        visit.weightOnBoard = finite(weightOnBoard_);
        visit.cubeOnBoard = finite(cubeOnBoard_);
        route_.visits.push_back(std::move(visit));
    }

    void comeHome() {
        Visit visit = arriveAt(depotNumber);
        route_.stemTime = finite(route_.stemTime + Travel::hours(visit.leg));
        visit.departure = clock_;
        visit.weightOnBoard = weightOnBoard_;
        visit.cubeOnBoard = cubeOnBoard_;
        route_.visits.push_back(std::move(visit));
        route_.returned = clock_;
    }

    /// Drives a leg and takes the breaks that are due.
    Visit arriveAt(int number) {
        const bool isFirst = route_.visits.empty();
        Visit visit;
        visit.stop = number;
        visit.leg = travel_.leg(isFirst ? depotNumber : route_.visits.back().stop, number);
        visit.driveMinutes = divide(minutesPerHour * visit.leg.distance, visit.leg.speed);
        route_.runTime = finite(route_.runTime + Travel::hours(visit.leg));
        route_.distance = finite(route_.distance + visit.leg.distance);
        route_.barriersEnded += visit.leg.barriersEnded;
        clock_ =
            finite(isFirst ? route_.start + minutesPerHour * route_.runTime : clock_ + visit.driveMinutes);
        takeBreaks(visit, isFirst);
        visit.arrival = clock_;
        return visit;
    }

    void takeBreaks(Visit& visit, bool isFirst) {
        for (int k = 1; k <= breakCount; ++k) {
            bool& isTaken = isTaken_[static_cast<std::size_t>(k - 1)];
            const Break& pause = problem_.breaks(k);
            const bool isDue = isFirst ? clock_ >= pause.beginsAfter : clock_ > pause.beginsAfter;
            if (isTaken || !isDue) continue;
            isTaken = true;
            visit.breaks.push_back(k);
            clock_ = finite(clock_ + pause.duration);
            route_.breakTime = finite(route_.breakTime + pause.duration / minutesPerHour);
        }
    }

    void judge() {
        const Vehicle& vehicle = problem_.vehicles(planned_.vehicle);
        pay(vehicle);
        RouteViolations& violations = route_.violations;
        violations.time = route_.totalTime() > problem_.maxTime;
        violations.earliestStart = route_.start < problem_.earliestStart;
        violations.latestReturn = route_.returned > problem_.latestReturn;
        violations.distance = route_.distance > problem_.maxDistance;
        violations.weight = route_.deliveredWeight > vehicle.weightCapacity;
        violations.cube = route_.deliveredCube > vehicle.cubeCapacity;
    }

    void pay(const Vehicle& vehicle) {
        const Number out = route_.returned - route_.start;
        const Number untilOvertime = Number(minutesPerHour) * problem_.overtimeAfter;
        const Number overtime = out < untilOvertime ? Number(0) : out - untilOvertime;
        const Number regular = out - overtime;
        RouteCosts& costs = route_.costs;
        costs.vehicleFixed = vehicle.fixedCost;
        costs.mileage = Number(route_.distance) * vehicle.costPerMile;
        costs.vehicleTotal = Number(vehicle.fixedCost) + costs.mileage;
        costs.driverFixed = vehicle.driverFixedCost;
        costs.regular = regular / minutesPerHour * vehicle.driverCostPerHour;
        costs.overtime = overtime / minutesPerHour * vehicle.overtimeCost;
        costs.driverTotal = Number(costs.regular) + costs.overtime + costs.driverFixed;
        costs.total = Number(costs.vehicleTotal) + costs.driverTotal;
    }

    const Problem& problem_;
    const Travel& travel_;
    const PlannedRoute& planned_;
    SimulatedRoute route_;
    double clock_ = 0;
    double weightOnBoard_ = 0;
    double cubeOnBoard_ = 0;
    std::array<bool, breakCount> isTaken_{};
};

/// What an hour less would save, the driver being paid overtime for the last ones.
Number savedRate(const Problem& problem, const Vehicle& vehicle, Number hours, Number savedHours) {
    const Number overtimeAfter = problem.overtimeAfter;
    if (hours <= overtimeAfter) return vehicle.driverCostPerHour;
    const Number hoursWithout = hours - savedHours;
    if (hoursWithout >= overtimeAfter) return vehicle.overtimeCost;
    return (overtimeAfter - hoursWithout) / savedHours * vehicle.driverCostPerHour +
           (hours - overtimeAfter) / savedHours * vehicle.overtimeCost;
}

} // namespace

double stopMinutes(const Problem& problem, const Stop& stop) {
    if (stop.loadTime > 0) return stop.loadTime;
    return Number(problem.fixedStopTime) + Number(stop.weight) * problem.timePerWeight +
           Number(stop.cube) * problem.timePerCube;
}

SimulatedRoute simulate(const Problem& problem, const Travel& travel, const PlannedRoute& route) {
    return Round(problem, travel, route).driven();
}

double incrementalCost(const Problem& problem, const Travel& travel, const PlannedRoute& route,
                       const SimulatedRoute& simulated, int position) {
    checkIndex(position, 1, route.stopCount());
    if (route.stopCount() == 1) return simulated.costs.total;
    const Visit& visit = simulated.visits.at(static_cast<std::size_t>(position - 1));
    const Visit& next = simulated.visits.at(static_cast<std::size_t>(position));
    const int before = position == 1 ? depotNumber : route.stops[static_cast<std::size_t>(position - 2)];
    const Leg& direct = travel.leg(before, next.stop);
    const Number savedDistance = Number(visit.leg.distance) + next.leg.distance - direct.distance;
    const Number savedHours = Number(Travel::hours(visit.leg)) + Travel::hours(next.leg) -
                              Travel::hours(direct) + visit.stopTime / minutesPerHour;
    const Vehicle& vehicle = problem.vehicles(route.vehicle);
    return savedRate(problem, vehicle, simulated.hoursOut(), savedHours) * savedHours +
           Number(vehicle.costPerMile) * savedDistance;
}

} // namespace vantore::router
