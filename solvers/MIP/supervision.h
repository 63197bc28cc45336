#pragma once

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// Keeps SIGINT (Ctrl+C) and SIGTERM from ending the program; `supervise` takes them. To be called before any
/// thread is started.
void takeInterrupts();

/// Solves while it watches the clock and the interrupts. A search that doesn't stop when it should, for
/// `graceSeconds` after it was told to, is left alone: what it had found counts. The program must then end by
/// std::_Exit, for that search still runs.
Outcome supervise(const miprog::SolverInput& input, const Limits& limits);

constexpr double graceSeconds = 3;

} // namespace vantore::mip
