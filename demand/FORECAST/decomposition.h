#pragma once

#include "demand/FORECAST/smoothing.h"

namespace vantore::forecast {

/// The straight line a + b t through the data.
struct TrendLine {
    Number intercept; ///< a
    Number slope;     ///< b
};

/// Classical decomposition, trend times season: the least-squares line over all n periods, each period's
/// index as its data over the line, and forecasts from the line and the index of L periods before.
/// `seasonal`, `trend`, `fitted` and, for n + 1 to n + f, the forecasts are left in the series.
/// DivisionByZero for less than two periods or where the line is 0; Overflow beyond the double range;
/// SubscriptOutOfRange for a period outside 1 to 250.
/// Source: Persons, "Indices of business conditions" (1919).
TrendLine decompose(Series& series, const Setting& setting);

} // namespace vantore::forecast
