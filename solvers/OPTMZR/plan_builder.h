#pragma once

#include "routing/ROUTER/plan.h"
#include "solvers/OPTMZR/instance.h"
#include "solvers/OPTMZR/solution.h"

namespace vantore::optmzr {

constexpr const char* computedRemark = "COMPUTED"; ///< first item of a plan that the solver made

/// A solution of the search as a plan: each route with a vehicle of its fleet's rows, the first rows first,
/// and its best start. The routes are in the order of their starts. Errors as `simulate`.
router::Plan planOf(const router::Problem& problem, const router::Travel& travel, const Instance& instance,
                    const Solution& solution);

/// A route for each stop, with the first vehicle of the table: what there is before any search.
router::Plan oneRouteAStop(const router::Problem& problem, const router::Travel& travel);

} // namespace vantore::optmzr
