#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// How far a solution may miss a bound, an integer or a constraint, as a fraction of the largest term there
/// (at least 1).
constexpr double checkTolerance = 1E-06;

/// From here on a coefficient or a right-hand side is too large to be computed with.
constexpr double largestNumber = 1E+20;

/// What is no more than this fraction of the terms it is the sum of is their rounding.
constexpr double roundingNoise = 1E-11;

/// A sentence that names a coefficient or right-hand side that is too large; nothing when there is none.
std::optional<std::string> oversizedNumber(const miprog::SolverInput& input);

/// A sentence that names an integer variable that has no whole number within its bounds; nothing when each
/// has.
std::optional<std::string> integerWithoutWholeNumber(const miprog::SolverInput& input);

/// A solution that holds, or a sentence that says what doesn't.
struct Checked {
    std::optional<Solution> solution;
    std::string fault;
};

/// Rounds the integer variables to whole numbers, computes objective and left sides anew from the problem,
/// and tests bounds and constraints. What is only rounding is taken off: a left side is then exactly 0 or its
/// right side. `values` has variable j at j - 1.
Checked checked(const miprog::SolverInput& input, std::vector<double> values);

/// The objective value and the largest of its terms, at least 1.
struct ObjectiveValue {
    double value = 0;
    double scale = 1;
};
ObjectiveValue objectiveOf(const miprog::SolverInput& input, const std::vector<double>& values);

/// True when `objective` is better than `other` in the problem's sense.
bool better(const miprog::SolverInput& input, double objective, double other);

} // namespace vantore::mip
