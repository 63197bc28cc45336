#include "demand/FORECAST/plot.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vantore::forecast {

namespace {

void addPoint(ChartSeries& line, long long period, double value) {
    line.points.push_back({static_cast<double>(period), value});
}

/// A chart whose axes run from the smallest to the largest plotted values.
ChartData chartOf(std::string title, std::vector<ChartSeries> series) {
    ChartData chart{.title = std::move(title),
                    .x = {.label = "Time periods"},
                    .y = {.label = "Data values"},
                    .series = std::move(series)};
    bool first = true;
    for (const ChartSeries& line : chart.series)
        for (const ChartPoint& point : line.points) {
            chart.x.low = first ? point.x : std::min(chart.x.low, point.x);
            chart.x.high = first ? point.x : std::max(chart.x.high, point.x);
            chart.y.low = first ? point.y : std::min(chart.y.low, point.y);
            chart.y.high = first ? point.y : std::max(chart.y.high, point.y);
            first = false;
        }
    return chart;
}

ChartSeries emptySeries(const char* name, int colour) {
    return {.name = name, .kind = SeriesKind::Line, .colour = colour, .points = {}};
}

} // namespace

ChartData dataChart(const Problem& problem) {
    ChartSeries data = emptySeries("Data", colour::lightRed);
    for (int t = 1; t <= problem.dataPeriods; ++t) addPoint(data, t, problem.periods(t).value);
    return chartOf("TIME SERIES DATA", {std::move(data)});
}

ChartData forecastChart(const Forecast& forecast, bool withData) {
    const Setting& setting = forecast.setting;
    std::vector<ChartSeries> series;
    if (withData) {
        ChartSeries& data = series.emplace_back(emptySeries("Data", colour::lightRed));
        for (long long t = 1; t <= setting.dataPeriods; ++t) addPoint(data, t, forecast.series.y(t));
    }
    ChartSeries& line = series.emplace_back(emptySeries("Forecast", colour::lightBlue));
    for (long long t = setting.initialPeriods + 1; t <= setting.lastForecast(); ++t)
        addPoint(line, t, forecast.series.fitted(t));
    return chartOf("MODEL TYPE: " + nameOf(setting.model), std::move(series));
}

} // namespace vantore::forecast
