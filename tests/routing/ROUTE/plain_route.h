#pragma once

#include <string>
#include <vector>

#include "routing/ROUTE/problem.h"

namespace vantore::route::tests {

/// A whole Solve as plain loops over arrays, the yardstick of the module: the boxes that it shows, the lines
/// of its report and those of the paths' file. It shares the record and the number texts with the module,
/// nothing else.
struct PlainRun {
    std::vector<std::string> boxes;
    std::vector<std::string> report;
    std::vector<std::string> paths;
    bool solved = false; ///< the run came to its report
};

PlainRun plainSolve(const RouteNetwork& network);

} // namespace vantore::route::tests
