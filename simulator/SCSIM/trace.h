#pragma once

#include <string>

#include "simulator/SCSIM/method.h"

namespace vantore::scsim {

/// The two heading lines of the trace of a run.
std::string traceHeading();

/// One line, ended by CR LF.
std::string traceLine(const TraceRow& row);

} // namespace vantore::scsim
