#pragma once

#include <vector>

#include "routing/ROUTESEQ/problem.h"

namespace vantore::routeseq::tests {

/// The sequence of the stops by the same procedure as plain loops over arrays: the yardstick of the method,
/// with which it shares the record alone. Empty where the procedure finds no point to go on with.
std::vector<int> plainSequence(const StopSequencingProblem& problem);

} // namespace vantore::routeseq::tests
