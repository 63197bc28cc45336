#pragma once

#include "demand/FORECAST/method.h"
#include "demand/FORECAST/problem.h"
#include "shell/forms/chart.h"

namespace vantore::forecast {

/// The data alone.
ChartData dataChart(const Problem& problem);

/// The forecasts of periods N + 1 to n + f, with the data of 1 to n where wanted.
ChartData forecastChart(const Forecast& forecast, bool withData);

} // namespace vantore::forecast
