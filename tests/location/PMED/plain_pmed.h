#pragma once

#include <string>
#include <vector>

#include "location/PMED/exchange.h"

namespace vantore::pmed::tests {

/// The report on an assignment by plain loops over arrays: the yardstick of the module, with which it shares
/// the records alone.
std::vector<std::string> plainReport(const Problem& problem, const Assignment& assignment);

} // namespace vantore::pmed::tests
