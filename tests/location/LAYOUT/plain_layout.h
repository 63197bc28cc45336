#pragma once

#include <string>
#include <vector>

#include "location/LAYOUT/problem.h"

namespace vantore::layout::tests {

/// The report on a problem by plain loops over arrays: the yardstick of the module, with which it shares the
/// record alone.
std::vector<std::string> plainReport(const Problem& problem);

} // namespace vantore::layout::tests
