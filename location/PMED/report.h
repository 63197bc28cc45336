#pragma once

#include <vector>

#include "location/PMED/exchange.h"
#include "shell/base/print_lines.h"

namespace vantore::pmed {

/// A site that serves points.
struct ServingSite {
    int number = 0;
    std::vector<int> points; ///< in their order
    double volume = 0;       ///< of its points
};

/// The sites that serve points, in the order in which they first do.
std::vector<ServingSite> servingSites(const Problem& problem, const Assignment& assignment);

/// The sites with what they serve, and the total cost.
PrintLines reportOn(const Problem& problem, const Assignment& assignment);

/// The problem on a page, with the number of facilities as it is typed.
PrintLines dataPage(const Problem& problem, const std::string& facilities);

} // namespace vantore::pmed
