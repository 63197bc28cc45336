#pragma once

#include "demand/MULREG/problem.h"
#include "shell/forms/chart.h"

namespace vantore::mulreg {

/// The data of two columns from 1 to 5 against each other, a point for each observation. The axes run from
/// the smallest to the largest value.
ChartData dataPlot(const Problem& problem, int yColumn, int xColumn);

} // namespace vantore::mulreg
