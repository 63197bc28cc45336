#pragma once

#include <span>

#include "shell/base/print_lines.h"
#include "shell/base/table.h"

namespace vantore::mulreg {

/// A character plot of residuals against estimates. Row 1 is the lowest, column 1 the leftmost.
struct ResidualPlot {
    static constexpr int rows = 21;
    static constexpr int columns = 71;

    Table2<char, 1, rows, 1, columns> cells;
    Table<double, 1, rows> residual;    ///< the value that each row stands for, scaled
    Table<double, 1, columns> estimate; ///< the value that each column stands for, scaled
};

struct FittedPoint {
    double estimate = 0;
    double residual = 0;
};

/// Plots the points. Each axis is scaled down by the power of ten that its largest value calls for.
ResidualPlot plotResiduals(std::span<const FittedPoint> points);

/// Prints the plot with its title and the values of its axes.
void print(const ResidualPlot& plot, PrintLines& page);

} // namespace vantore::mulreg
