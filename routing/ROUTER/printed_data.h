#pragma once

#include "routing/ROUTER/problem.h"
#include "shell/base/print_lines.h"

namespace vantore::router {

/// The problem as it is printed: the parameters, then each table.
PrintLines dataPage(const Problem& problem);

} // namespace vantore::router
