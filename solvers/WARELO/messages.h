#pragma once

#include <string>

#include "solvers/WARELO/search.h"

namespace vantore::warelo {

/// What the process that searches tells the one that reports, and back. Both are the same program.
std::string toText(const Found& found);
Found foundFrom(const std::string& text);

} // namespace vantore::warelo
