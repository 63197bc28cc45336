#include "demand/FORECAST/decomposition.h"

#include "shell/base/arithmetic.h"

namespace vantore::forecast {

TrendLine decompose(Series& series, const Setting& setting) {
    const PeriodSums sums(series, setting.dataPeriods);
    TrendLine line;
    line.slope = sums.slope();
    line.intercept = finite(sums.mean() - line.slope * sums.meanPeriod());
    const auto onLine = [&line](long long t) {
        return finite(line.intercept + line.slope * static_cast<double>(t));
    };
    for (long long t = 1; t <= setting.dataPeriods; ++t) {
        series.trend(t) = onLine(t);
        series.seasonal(t) = divide(series.y(t), series.trend(t));
    }
    for (long long t = setting.initialPeriods + 1; t <= setting.dataPeriods; ++t)
        series.fitted(t) = finite(series.trend(t) * series.seasonal(t - setting.seasonalLength));
    for (long long t = setting.dataPeriods + 1; t <= setting.lastForecast(); ++t) {
        series.trend(t) = onLine(t);
        series.seasonal(t) = series.seasonal(t - setting.seasonalLength);
        series.fitted(t) = finite(series.trend(t) * series.seasonal(t));
    }
    return line;
}

} // namespace vantore::forecast
