#pragma once

#include <string>

#include "shell/base/print_lines.h"
#include "solvers/WARELO/plan.h"

namespace vantore::warelo {

/// How far the search has come.
struct Proof {
    double bound = 0; ///< no allocation costs less, $ a year
    std::string halt; ///< why the search stopped before its end; empty where it came to its end
};

/// The report of a plan: what the network costs by kind, how well it serves its customers, tables of the
/// plants and the warehouses, and the customers served from beyond the desired distance.
PrintLines report(const Case& problem, const Plan& plan, const Proof& proof);

/// The report when there is no plan, with the reason.
PrintLines reportWithoutPlan(const std::string& reason);

} // namespace vantore::warelo
