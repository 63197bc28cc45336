#include "demand/FORECAST/decomposition.h"

namespace vantore::forecast {

TrendLine decompose(Series& series, const Setting& setting) {
    const PeriodSums sums(series, setting.dataPeriods);
    TrendLine line;
    line.slope = sums.slope();
    line.intercept = sums.mean() - line.slope * sums.meanPeriod();
    const auto onLine = [&line](long long t) { return line.intercept + line.slope * t; };
    for (long long t = 1; t <= setting.dataPeriods; ++t) {
        const Number trend = onLine(t);
        series.trend(t) = trend;
        series.seasonal(t) = series.y(t) / trend;
    }
    for (long long t = setting.initialPeriods + 1; t <= setting.dataPeriods; ++t)
        series.fitted(t) = Number(series.trend(t)) * series.seasonal(t - setting.seasonalLength);
    for (long long t = setting.dataPeriods + 1; t <= setting.lastForecast(); ++t) {
        const Number trend = onLine(t);
        series.trend(t) = trend;
        series.seasonal(t) = series.seasonal(t - setting.seasonalLength);
        series.fitted(t) = trend * series.seasonal(t);
    }
    return line;
}

} // namespace vantore::forecast
