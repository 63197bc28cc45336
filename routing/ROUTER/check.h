#pragma once

#include <string>
#include <vector>

#include "routing/ROUTER/problem.h"

namespace vantore::router {

/// What the data check has found.
struct Findings {
    std::vector<std::string> lines;
    int violations = 0; ///< the lines that tell of one
};

/// Looks a problem through for what a solution will stumble over, in a fixed order; nothing is left out
/// because of what was found before. `depotRowZone` is the zone of the stop table's row 0, which the last
/// report or plot has left there. Overflow where a total is beyond the range.
Findings check(const Problem& problem, double depotRowZone);

} // namespace vantore::router
