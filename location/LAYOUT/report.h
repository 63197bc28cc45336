#pragma once

#include <string>
#include <vector>

#include "location/LAYOUT/method.h"
#include "shell/base/print_lines.h"

namespace vantore::layout {

/// The ranked products as lines. A label that runs into the first column of figures sends them to a line of
/// their own; under the popularity rule it is cut instead.
PrintLines reportOn(Rule rule, const std::vector<RankedProduct>& ranked);

/// The problem on a page; `rule` is the caption of its rule.
PrintLines dataPage(const Problem& problem, const std::string& rule);

} // namespace vantore::layout
