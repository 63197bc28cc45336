#pragma once

#include "mathprog/TRANLP/method.h"
#include "mathprog/TRANLP/problem.h"
#include "shell/base/print_lines.h"

namespace vantore::tranlp {

/// The report of a plan, every cell of every source, zero shipments included. Overflow when the cost of a
/// cell leaves the range of a 32-bit float.
PrintLines reportLines(const Problem& problem, const Plan& plan);

/// The input data in print, without their title.
PrintLines dataLines(const Problem& problem);

} // namespace vantore::tranlp
