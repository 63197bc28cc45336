#pragma once

#include "location/MCOG/method.h"
#include "shell/base/print_lines.h"

namespace vantore::mcog {

/// The facilities with what they serve and cost, and which points are allocated to each.
PrintLines reportOn(const Problem& problem, const Plan& plan);

/// The problem on a page.
PrintLines dataPage(const Problem& problem);

} // namespace vantore::mcog
