#pragma once

#include "demand/FORECAST/method.h"
#include "demand/FORECAST/problem.h"
#include "shell/base/print_lines.h"

namespace vantore::forecast {

/// The report of a forecast; headings begin with "*".
PrintLines reportOf(const Problem& problem, const Forecast& forecast);

/// The lines of the print of the input data behind its title.
PrintLines dataLines(const Problem& problem);

} // namespace vantore::forecast
