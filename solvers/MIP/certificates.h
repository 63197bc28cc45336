#pragma once

#include <vector>

#include "mathprog/MIPROG/exchange.h"

namespace vantore::mip {

/// What a linear program that has no optimum is explained by. Each is tested before it is told: a multiplier
/// or a ray that proves nothing gives an empty list.

/// The constraints (from 1) with a multiplier other than 0, when the sum of the constraints under these
/// multipliers, or under their negatives, can't be satisfied within the variables' bounds. `multipliers` has
/// constraint i at i - 1.
/// Source: Farkas, "Theorie der einfachen Ungleichungen" (1902).
std::vector<int> provenConflict(const miprog::SolverInput& input, std::vector<double> multipliers);

/// The first constraint that can't be satisfied within the variables' bounds, all others left out; none where
/// each can be.
std::vector<int> conflictInOneRow(const miprog::SolverInput& input);

/// The variables (from 1) with a direction other than 0, when every constraint and bound allows to go on in
/// this direction for ever and the objective improves all the way. `ray` has variable j at j - 1.
std::vector<int> provenRay(const miprog::SolverInput& input, std::vector<double> ray);

} // namespace vantore::mip
