#pragma once

#include <string>
#include <vector>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"

namespace vantore::router::tests {

/// The report of a plan as plain loops over arrays, the yardstick of the module. It shares the records and
/// the number texts with the module, nothing else, and knows no errors: every vehicle has capacities, every
/// leg a speed, every route a stop.
struct PlainReport {
    std::vector<std::string> lines;
    int barrierWarnings = 0;
    int missedWindows = 0;
};

PlainReport plainReport(const Problem& problem, const Plan& plan, const std::string& label,
                        const std::string& date, const std::string& time);

} // namespace vantore::router::tests
