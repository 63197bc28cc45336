#pragma once

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"
#include "routing/ROUTER/simulation.h"
#include "routing/ROUTER/travel.h"

namespace vantore::optmzr {

/// How good a plan is: first how many limits it breaks, then by how much, then what it costs.
struct Judgement {
    int violations = 0;
    double excess = 0; ///< loads, distances and pickups in parts of what is allowed, times in hours
    double cost = 0;   ///< in $, as the report has it

    Judgement& operator+=(const Judgement& other);
};

/// Whether a plan is better than another; differences that only rounding makes are none.
bool isBetter(const Judgement& a, const Judgement& b);

/// One route by the module's simulation: weight and cube on board from the start to the end, pickups while
/// deliveries still take more of the vehicle than they may, time windows, the earliest start, the latest
/// return, the longest time and the longest distance. Errors as `simulate`.
Judgement judged(const router::Problem& problem, const router::Travel& travel,
                 const router::PlannedRoute& route);

/// A plan: its routes, and the vehicles of each type beyond their number.
Judgement judged(const router::Problem& problem, const router::Travel& travel, const router::Plan& plan);

/// The best time to leave the depot, a whole minute where that is as good. Errors as `simulate`.
double bestStart(const router::Problem& problem, const router::Travel& travel, router::PlannedRoute route);

/// Whether a plan visits each stop once, with vehicles that are in the table.
bool isWhole(const router::Problem& problem, const router::Plan& plan);

} // namespace vantore::optmzr
