#pragma once

#include <vector>

namespace vantore::optmzr {

/// A route of the search: which fleet its vehicle is of, and its stops in order.
struct FleetRoute {
    int fleet = 0;
    std::vector<int> stops;
};

/// A whole plan of the search, routes without stops left out.
using Solution = std::vector<FleetRoute>;

} // namespace vantore::optmzr
