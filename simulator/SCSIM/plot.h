#pragma once

#include <optional>
#include <string_view>

#include "shell/forms/chart.h"
#include "simulator/SCSIM/report.h"

namespace vantore::scsim {

/// What a point of a plot stands for.
enum class PlotPeriod { Daily = 1, Weekly, Monthly };

/// The period that an answer names by its number.
std::optional<PlotPeriod> periodOf(std::string_view answer);

enum class Measure { All, Sales, Inventory, BackOrders, Orders };

bool isAvailable(Subject subject, Measure measure);

/// A plot of what a run came to over a span of years; a point is the daily average over its period. A year
/// has 52 weeks, each a bit less than seven days. `withDemand` lays the customers' demand over the retailer's
/// sales. An unavailable plot is InvalidProcedureCall; SubscriptOutOfRange for a span beyond the tables.
ChartData performanceChart(const Days& days, Subject subject, Measure measure, PlotPeriod period,
                           const Span& span, bool withDemand);

/// The customers' demand over a run and one point more, a point being the sum of its days; point 0 is 0.
ChartData demandChart(const Problem& problem, const DaySeries& customerDemand, PlotPeriod period);

} // namespace vantore::scsim
