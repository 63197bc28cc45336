#pragma once

#include <string>
#include <vector>

#include "routing/ROUTESEQ/problem.h"
#include "shell/base/print_lines.h"
#include "shell/forms/report_screen.h"

namespace vantore::routeseq {

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
