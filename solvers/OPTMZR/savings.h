#pragma once

#include "solvers/OPTMZR/route_value.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

/// A plan that begins with a route for each stop and joins the ends of two routes as long as that saves most,
/// penalties included. Each route has the vehicle that costs it least; how many there are is left to the
/// local search.
/// Source: Clarke and Wright, "Scheduling of vehicles from a central depot to a number of delivery points"
/// (1964), with the savings of mixed fleets of Golden et al. (1984).
Solution savings(const Instance& instance, const Penalties& penalties);

} // namespace vantore::optmzr
