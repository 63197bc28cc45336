#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "routing/ROUTESEQ/problem.h"
#include "shell/base/print_lines.h"
#include "shell/forms/report_screen.h"

namespace vantore::routeseq {

/// The length of the route from the depot through the stops of a sequence text and back, in the coordinates
/// as typed, times both factors. SubscriptOutOfRange for a stop that the table hasn't, Overflow beyond the
/// double range.
double routeDistance(const StopSequencingProblem& problem, std::string_view sequence);

/// A sequence and the length of its route.
struct MeasuredSequence {
    std::string text; ///< stop numbers with a blank in front of each
    double distance = 0;
};

/// The report's lines, fonts in points of the screen.
std::vector<ReportLine> reportLines(const MeasuredSequence& sequence, Scale scale);

/// The input data for the printer.
PrintLines dataPage(const StopSequencingProblem& problem);

} // namespace vantore::routeseq
