#pragma once

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"
#include "solvers/MIP/progress.h"
#include "solvers/MIP/relaxation.h"

namespace vantore::mip {

/// Solves a mixed integer linear program and leaves all that is to be reported in `progress`. It ends at the
/// latest when it has reached a limit or `progress` has been told to stop, but for the time of a step in
/// between. No exception leaves it: what goes wrong becomes the outcome's reason. `care` is how the search
/// begins; what doesn't stand the check is searched again strictly.
void solve(const miprog::SolverInput& input, const Limits& limits, Progress& progress,
           Care care = Care::Usual);

} // namespace vantore::mip
