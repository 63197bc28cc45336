#pragma once

#include <string>
#include <vector>

#include "simulator/SCSIM/method.h"

namespace vantore::scsim {

/// The two heading lines of the trace of a run.
std::vector<std::string> traceHeading();

/// One day's line.
std::string traceLine(const TraceRow& row);

} // namespace vantore::scsim
