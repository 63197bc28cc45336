#pragma once

#include <string>

#include "shell/base/print_lines.h"
#include "simulator/SCSIM/summary.h"

namespace vantore::scsim {

/// What a report or a plot is about.
enum class Subject { Channel, Retailer, Distributor, Warehouse, Factory };

/// "YEAR 1", "YEARS 1 TO 3": the span as titles name it, with " TO " or " THROUGH " as `until`.
std::string yearsText(const Span& span, const std::string& until);

/// The report of a run for a span of years, with the prices and costs of the problem as it stands.
///
/// A leading "*" marks a heading and isn't part of the text. SubscriptOutOfRange for a span beyond the
/// tables, Overflow where a figure has no finite value.
PrintLines reportOf(const Problem& problem, const Days& days, Subject subject, const Span& span);

} // namespace vantore::scsim
