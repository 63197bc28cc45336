#pragma once

#include <optional>

#include "location/COG/problem.h"

namespace vantore::cog {

/// The exact centre-of-gravity method: the location that minimises the transport cost to weighted points.
/// Weights are volume times rate, distances (dx^2 + dy^2)^T. Runs over points 1 to `rowCount`.

/// The sum over the points of weight x K x distance. Overflow beyond the double range.
double totalCost(const Problem& problem, Location at);

/// The weighted mean of the points, where the method starts; nothing when all weights are 0.
std::optional<Location> centreOfGravity(const Problem& problem);

/// One cycle: the weighted mean with each weight divided by the point's distance from `current`, a distance
/// of 0 counting as 0.000001. DivisionByZero when all weights are 0.
/// Source: Weiszfeld, "Sur le point pour lequel la somme des distances de n points donnés est minimum"
/// (1937).
Location nextLocation(const Problem& problem, Location current);

} // namespace vantore::cog
