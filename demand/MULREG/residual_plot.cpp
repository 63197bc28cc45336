#include "demand/MULREG/residual_plot.h"

#include <algorithm>
#include <string_view>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::mulreg {

namespace {

constexpr double beyondAll = 1E+36; // where the search for the ends of an axis starts
constexpr double stepAbove = 0.001; // sets a row or column above the values that it takes
constexpr int labelledRows = 4;     // every so many rows, from the first
constexpr int labelledColumns = 10; // every so many columns, from the first
constexpr int lowestFixedRow = 13;  // from here up a value shows its decimal even when it is 0
constexpr int plotColumn = 7;
constexpr int pageWidth = 80;
constexpr std::string_view title = "RESIDUALS PLOTTED AGAINST ESTIMATED Y";

/// The ends of an axis in the unit in which it is labelled.
struct Axis {
    double low = beyondAll;
    double high = -beyondAll;
    double divisor = 1;

    void take(double value) {
        low = std::min(low, value);
        high = std::max(high, value);
    }

    void scale() {
        if (high >= 1E+5 && high < 1E+6) divisor = 10;
        if (high >= 1E+6 && high < 1E+7) divisor = 100;
        if (high >= 1E+7 && high < 1E+8) divisor = 1000;
        if (high >= 1E+8 && high < 1E+9) divisor = 10000;
        low /= divisor;
        high /= divisor;
    }

    /// The value of place `i` of `last`, from 1.
    double at(int i, int last) const { return low + (i - 1) * (high - low) / (last - 1) + stepAbove; }
};

void drawAxes(ResidualPlot& plot) {
    plot.cells.fill(' ');
    for (int i = 1; i <= ResidualPlot::rows; ++i) plot.cells(i, 1) = (i - 1) % labelledRows == 0 ? '+' : '.';
    for (int j = 1; j <= ResidualPlot::columns; ++j)
        plot.cells(1, j) = (j - 1) % labelledColumns == 0 ? '+' : '.';
}

void drawZeroLine(ResidualPlot& plot) {
    for (int i = 1; i <= ResidualPlot::rows; ++i) {
        if (plot.residual(i) <= 0) continue;
        for (int j = 2; j <= ResidualPlot::columns; ++j) plot.cells(i, j) = '-';
        return;
    }
}

/// The first row above the scaled residual; the last where rounding of great values leaves none.
int rowOf(const ResidualPlot& plot, double residual) {
    int i = 1;
    while (i < ResidualPlot::rows && !(plot.residual(i) > residual)) ++i;
    return i;
}

/// The first column at or above the scaled estimate; the last where there is none.
int columnOf(const ResidualPlot& plot, double estimate) {
    int j = 1;
    while (j < ResidualPlot::columns && !(plot.estimate(j) >= estimate)) ++j;
    return j;
}

void printRow(const ResidualPlot& plot, int i, PrintLines& page) {
    if ((i - 1) % labelledRows == 0)
        page.right(plotColumn, format(plot.residual(i), i >= lowestFixedRow ? "#####.0" : "#####.#"));
    page.tab(plotColumn);
    for (const char cell : plot.cells.row(i)) page.text(std::string_view(&cell, 1));
    page.endLine();
}

} // namespace

ResidualPlot plotResiduals(std::span<const FittedPoint> points) {
    Axis residuals;
    Axis estimates;
    for (const FittedPoint& point : points) {
        residuals.take(point.residual);
        estimates.take(point.estimate);
    }
    residuals.scale();
    estimates.scale();
    ResidualPlot plot;
    for (int i = 1; i <= ResidualPlot::rows; ++i) plot.residual(i) = residuals.at(i, ResidualPlot::rows);
    for (int j = 1; j <= ResidualPlot::columns; ++j)
        plot.estimate(j) = estimates.at(j, ResidualPlot::columns);
    drawAxes(plot);
    drawZeroLine(plot);
    for (const FittedPoint& point : points)
        plot.cells(rowOf(plot, point.residual / residuals.divisor),
                   columnOf(plot, point.estimate / estimates.divisor)) = '*';
    return plot;
}

void print(const ResidualPlot& plot, PrintLines& page) {
    page.tab((pageWidth - static_cast<double>(length(title))) / 2).text(title).endLine();
    page.line("Residuals");
    for (int i = ResidualPlot::rows; i >= 1; --i) printRow(plot, i, page);
    page.tab(plotColumn);
    for (int j = 1; j <= ResidualPlot::columns; j += labelledColumns)
        page.text(format(plot.estimate(j), j == 1 ? "#####.#" : "   #####.#"));
    page.endLine();
    page.tab(34).text("Estimated Y").endLine();
}

} // namespace vantore::mulreg
