#pragma once

#include <optional>

#include "demand/FORECAST/decomposition.h"
#include "demand/FORECAST/problem.h"
#include "demand/FORECAST/search.h"
#include "demand/FORECAST/smoothing.h"

namespace vantore::forecast {

/// Forecasts a problem's series with its model.

/// Errors of the model over the last E data periods.
struct ErrorMeasures {
    double mad = 0;  ///< mean absolute deviation
    double bias = 0; ///< mean error
    double rmse = 0; ///< root of the mean squared error
};

struct Forecast {
    Setting setting;
    Series series;
    Constants constants; ///< in use; 0 in the decomposition
    TrendLine line;      ///< of the decomposition
    ErrorMeasures errors;
};

/// True where a smoothing model with seasons has fewer than L + 2 initial periods, too few to start from.
bool seasonIsTooLong(const Problem& problem);

/// Fits the model, after a search for its constants where the problem asks for one, and forecasts.
/// DivisionByZero, Overflow and SubscriptOutOfRange as `fit` and `decompose` tell; DivisionByZero for an E of
/// 0, InvalidProcedureCall where E is negative and squared errors aren't 0.
Forecast forecast(const Problem& problem);

} // namespace vantore::forecast
