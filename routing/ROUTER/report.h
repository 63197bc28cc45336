#pragma once

#include <string>

#include "routing/ROUTER/outcome.h"
#include "shell/base/local_time.h"
#include "shell/base/print_lines.h"

namespace vantore::router {

/// What stands at the head of a report.
struct ReportHead {
    std::string label;
    LocalTime printed;
};

/// The report of a plan: the summary of all routes, each route in detail, the violations. DivisionByZero
/// where a vehicle's capacity is 0 or no route is planned, and the errors of `incrementalCost`.
PrintLines reportPage(const Outcome& outcome, const ReportHead& head);

/// What stands in place of the report of more than 200 routes.
PrintLines tooManyRoutesPage();

} // namespace vantore::router
