#pragma once

#include <vector>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"
#include "routing/ROUTER/travel.h"

namespace vantore::router {

/// The arrival at a stop, or back at the depot, and what follows there. Clocks are in minutes from 00:00 of
/// day 1.
struct Visit {
    int stop = depotNumber;
    Leg leg;                  ///< that leads there
    double driveMinutes = 0;  ///< of the leg
    std::vector<int> breaks;  ///< that the driver takes before the arrival, by number from 1
    double arrival = 0;       ///< after the breaks
    double stopTime = 0;      ///< minutes of loading or unloading
    double departure = 0;     ///< the arrival, at the depot
    bool isInWindow = true;   ///< the arrival lies in one of the stop's time windows, bounds included
    double weightOnBoard = 0; ///< after the visit
    double cubeOnBoard = 0;
};

/// What a route breaks of the limits that the report tests.
struct RouteViolations {
    bool time = false;
    bool earliestStart = false;
    bool latestReturn = false;
    bool distance = false;
    bool weight = false; ///< of what is delivered
    bool cube = false;
    bool timeWindows = false;
};

/// The costs of a route in $.
struct RouteCosts {
    double vehicleFixed = 0;
    double mileage = 0;
    double vehicleTotal = 0;
    double driverFixed = 0;
    double regular = 0;
    double overtime = 0;
    double driverTotal = 0;
    double total = 0;
};

/// A route from its start to its return.
struct SimulatedRoute {
    std::vector<Visit> visits; ///< of its stops in their order, and of the depot at last
    double deliveredWeight = 0;
    double deliveredCube = 0;
    double pickupWeight = 0;
    double pickupCube = 0;
    double runTime = 0;   ///< hours, all driving
    double stemTime = 0;  ///< hours, the first and the last leg
    double stopTime = 0;  ///< hours
    double breakTime = 0; ///< hours
    double distance = 0;
    double start = 0;    ///< minutes from 00:00 of day 1
    double returned = 0; ///< minutes from 00:00 of day 1
    int barriersEnded = 0;
    RouteCosts costs;
    RouteViolations violations;

    double totalTime() const { return runTime + stopTime + breakTime; }
    double hoursOut() const { return (returned - start) / minutesPerHour; }
};

/// Minutes that a vehicle stands at a stop: its own load time where that is above 0, else the formula's.
double stopMinutes(const Problem& problem, const Stop& stop);

/// Follows a route through its day. A vehicle never waits for a time window. A break that is due is taken on
/// the way, before the arrival; on the first leg it is due from its time on, later only past it. A route
/// without stops stays at the depot. SubscriptOutOfRange for a stop or a vehicle that isn't there,
/// DivisionByZero for a leg without speed, Overflow beyond the double range.
SimulatedRoute simulate(const Problem& problem, const Travel& travel, const PlannedRoute& route);

/// What the stop at a position (from 1) adds to the cost of its route, in $: the driver's time and the
/// mileage that would be saved without it, overtime first; of a route of one stop all its cost. Errors as
/// `simulate`.
double incrementalCost(const Problem& problem, const Travel& travel, const PlannedRoute& route,
                       const SimulatedRoute& simulated, int position);

} // namespace vantore::router
