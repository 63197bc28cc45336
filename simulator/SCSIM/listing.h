#pragma once

#include "shell/base/print_lines.h"
#include "simulator/SCSIM/problem.h"

namespace vantore::scsim {

/// The whole input of a problem in blocks under their headings: each value, then what it is. Of demand,
/// forecast and policy the chosen ways alone.
PrintLines listingOf(const Problem& problem);

} // namespace vantore::scsim
