#pragma once

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"

namespace vantore::mip {

/// Keeps SIGINT (Ctrl+C) and SIGTERM from ending the program, and a crash of the search too; `supervise`
/// takes them. To be called before any thread is started.
void takeSignals();

/// Solves while it watches the clock and the interrupts. A search that crashes is done again strictly, once.
/// One that crashes then, or doesn't stop when it should for `graceSeconds` after it was told to, is left
/// alone: what it had found counts. The program must then end by std::_Exit, for the search's thread is still
/// there.
Outcome supervise(const miprog::SolverInput& input, const Limits& limits);

constexpr double graceSeconds = 3;

/// Ends the program by SIGALRM after so many seconds, rounded up, at least 1: the last resort where a crash
/// has left locks held that the report needs. The report made beforehand stands then.
void endAfter(double seconds);

} // namespace vantore::mip
