#pragma once

#include <random>

#include "location/MCOG/problem.h"

namespace vantore::mcog::tests {

/// A random problem: so many points anywhere, on a small grid where many lie together or are equally far, or
/// in clusters; volumes and rates over all their range.
Problem randomProblem(std::mt19937& random, int points);

/// So many points anywhere in a square, with volumes and rates of one order.
Problem spreadProblem(std::mt19937& random, int points);

} // namespace vantore::mcog::tests
