#pragma once

#include <string>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/print_lines.h"
#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// The report of a run. Its title stands above it already.
PrintLines report(const miprog::SolverInput& input, const Outcome& outcome, const Limits& limits);

/// The report where there is no problem to solve: why not.
PrintLines reportWithoutProblem(const std::string& why);

/// The report until there is another: the solver was ended before it could tell.
PrintLines reportBeforehand();

/// A number for a column of `width` characters: with four, two or no decimals, as there is room; with an
/// exponent where that would not show it. InvalidProcedureCall for a width below 7.
std::string columnText(double value, std::size_t width);

} // namespace vantore::mip
