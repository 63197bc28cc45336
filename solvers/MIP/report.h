#pragma once

#include <string>

#include "mathprog/MIPROG/exchange.h"
#include "shell/base/print_lines.h"
#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// The report of a run. Its title stands above it already.
PrintLines report(const miprog::SolverInput& input, const Outcome& outcome, const StageSeconds& limits);

/// The report where there is no problem to solve: why not.
PrintLines reportWithoutProblem(const std::string& why);

/// The report until there is another: the solver was ended before it could tell.
PrintLines reportBeforehand();

} // namespace vantore::mip
