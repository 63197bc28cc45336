#pragma once

#include "demand/FORECAST/method.h"
#include "demand/FORECAST/problem.h"

namespace vantore::forecast::tests {

/// The smoothing models as plain loops over tables, every operation checked as it is done: the yardstick for
/// results, errors and time. It shares nothing with the method but its records and the checked arithmetic.

struct PlainResult {
    Series series;
    Constants constants;
    ErrorMeasures errors;
    Hundredths best{}; ///< the winner of the first run over the grid
    double bestSquared = 0;
};

/// A whole forecast by smoothing: the grid, the forecasts and, after a search, the run with the best.
PlainResult plainForecast(const Problem& problem);

/// The first run over the grid alone.
Best plainSearch(const Problem& problem);

} // namespace vantore::forecast::tests
