#pragma once

#include <random>

#include "simulator/SCSIM/problem.h"

namespace vantore::tests {

/// A channel of any kind within the limits of the window: all forecasts and policies, lengths up to
/// `mostYears`, lot sizes and indices with fractions, costs of 0, times that hardly vary and times that vary
/// wildly.
scsim::Problem randomProblem(std::mt19937& random, int mostYears);

/// The same with lead times that never vary, so that nothing overtakes anything.
scsim::Problem steadyProblem(std::mt19937& random, int mostYears);

} // namespace vantore::tests
