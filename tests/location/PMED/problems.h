#pragma once

#include <random>

#include "location/PMED/exchange.h"

namespace vantore::pmed::tests {

/// Of what size the figures of a random problem are.
enum class Units { Everyday, Large, Tiny, Mixed, WholeGrid };
constexpr int unitKinds = 5;

/// A random problem with at most so many points and candidates, on a grid or in degrees. On the whole grid
/// many points are equally far and many costs the same; mixed units have fixed costs far above those of
/// transport.
SolverInput randomInput(std::mt19937& random, Units units, int mostPoints, int mostCandidates);

} // namespace vantore::pmed::tests
