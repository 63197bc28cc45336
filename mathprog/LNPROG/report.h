#pragma once

#include <string>

#include "mathprog/LNPROG/method.h"
#include "shell/base/print_lines.h"

namespace vantore::lnprog {

/// What a solve has ended with: the summary of the optimum, or why there is none with the last tableau.
PrintLines solveReport(const std::string& label, const Simplex& simplex, const Outcome& outcome);

/// The initial tableau, as a check of what was typed.
PrintLines setupReport(const std::string& label, const Simplex& simplex);

} // namespace vantore::lnprog
