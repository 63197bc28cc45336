#pragma once

#include <vector>

#include "location/PMED/exchange.h"

namespace vantore::pmed::tests {

/// The transport and the fixed cost of a choice of sites, in more than double precision.
struct PlainCost {
    long double transport = 0;
    long double fixed = 0;

    long double total() const { return transport + fixed; }
};

/// The distance by the formula that suits it least to rounding: the angle between two directions in space.
long double plainDistance(const Problem& problem, int from, int to);

/// What a choice of sites costs, each point served by the nearest.
PlainCost plainCost(const Problem& problem, const std::vector<int>& sites);

/// The least total cost over all choices, each taken as a pattern of bits.
PlainCost leastCost(const SolverInput& input);

} // namespace vantore::pmed::tests
