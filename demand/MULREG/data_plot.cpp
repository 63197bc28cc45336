#include "demand/MULREG/data_plot.h"

#include <algorithm>

namespace vantore::mulreg {

namespace {

ChartAxis axisOf(const Problem& problem, int column) {
    ChartAxis axis{.label = variableName(problem, column)};
    for (int i = 1; i <= problem.observationCount; ++i) {
        const double value = problem.data(i, column);
        axis.low = i == 1 ? value : std::min(axis.low, value);
        axis.high = i == 1 ? value : std::max(axis.high, value);
    }
    return axis;
}

} // namespace

ChartData dataPlot(const Problem& problem, int yColumn, int xColumn) {
    const std::string yName = variableName(problem, yColumn);
    const std::string xName = variableName(problem, xColumn);
    ChartData chart;
    chart.title = "Plotting " + yName + " against " + xName;
    chart.x = axisOf(problem, xColumn);
    chart.y = axisOf(problem, yColumn);
    ChartSeries points{.name = yName, .kind = SeriesKind::Points, .points = {}};
    for (int i = 1; i <= problem.observationCount; ++i)
        points.points.push_back({problem.data(i, xColumn), problem.data(i, yColumn)});
    chart.series.push_back(std::move(points));
    return chart;
}

} // namespace vantore::mulreg
