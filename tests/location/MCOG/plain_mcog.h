#pragma once

#include <string>
#include <vector>

#include "location/MCOG/problem.h"

namespace vantore::mcog::tests {

/// The report on the locations computed for a problem, by plain loops over arrays: the yardstick of the
/// module, with which it shares the record alone.
std::vector<std::string> plainReport(const Problem& problem, int facilities);

} // namespace vantore::mcog::tests
