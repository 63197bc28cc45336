#pragma once

#include "location/WARELOCA/problem.h"
#include "shell/base/print_lines.h"

namespace vantore::wareloca {

/// The case as it is printed: the cost functions, and the tables of plants, warehouses and customers with the
/// marks of the selection.
PrintLines dataPage(const Case& problem);

} // namespace vantore::wareloca
