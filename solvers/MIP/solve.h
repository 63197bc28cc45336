#pragma once

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// Solves a mixed integer linear program: the relaxation, a search for the best solution and a proof that it
/// is the best, each in a process of its own that is watched. Whatever becomes of them, the outcome holds
/// the best solution that was found, held against the problem in exact arithmetic.
Outcome solve(const miprog::SolverInput& input, const StageSeconds& limits);

} // namespace vantore::mip
