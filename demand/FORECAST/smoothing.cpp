#include "demand/FORECAST/smoothing.h"

#include <cmath>

#include "shell/base/arithmetic.h"

namespace vantore::forecast {

namespace {

/// The mean of y over the last season of the initial periods.
double lastSeasonMean(const Series& series, const Setting& setting) {
    double sum = 0;
    for (long long t = setting.initialPeriods - setting.seasonalLength + 1; t <= setting.initialPeriods; ++t)
        sum = finite(sum + series.y(t));
    return divide(sum, static_cast<double>(setting.seasonalLength));
}

/// The indices of the last season and the period before it: y over the line that ends at `end` in period N
/// and rises by `slope`.
void initialiseSeasons(Series& series, const Setting& setting, double end, double slope) {
    const long long n = setting.initialPeriods;
    for (long long t = n - setting.seasonalLength; t <= n; ++t)
        series.seasonal(t) = divide(series.y(t), finite(end - slope * static_cast<double>(n - t)));
}

/// The levels of the last two initial periods from the line through `mean` in mid-range, without season.
void initialiseLevels(Series& series, const Setting& setting, double mean, double slope) {
    const long long n = setting.initialPeriods;
    const auto periods = static_cast<double>(n);
    const double last = finite(mean + slope * (periods - 1) / 2);
    const double before = finite(mean + slope * ((periods - 1) / 2 - 1));
    const bool seasonal = smoothsSeasons(setting.model);
    series.level(n) = seasonal ? divide(last, series.seasonal(n)) : last;
    series.level(n - 1) = seasonal ? divide(before, series.seasonal(n - 1)) : before;
}

/// One period of the recursion. A future period takes its forecast as its data.
class Step {
  public:
    Step(Series& series, const Setting& setting, const Constants& constants)
        : s_(series), model_(setting.model), season_(setting.seasonalLength), c_(constants) {}

    void run(long long t, bool future) {
        s_.fitted(t) = finite(forecastOf(t));
        if (future) s_.y(t) = s_.fitted(t);
        if (model_ == Model::Level) return;
        const double level = finite(levelShare(t) + (1 - c_.level) * expected(t));
        const double before = s_.level(t - 1);
        s_.level(t) = level;
        if (smoothsSeasons(model_))
            s_.seasonal(t) = finite(divide(finite(c_.seasonal * s_.y(t)), level) +
                                    (1 - c_.seasonal) * s_.seasonal(t - season_));
        if (hasTrend(model_))
            s_.trend(t) = finite(c_.trend * (level - before) + (1 - c_.trend) * s_.trend(t - 1));
    }

  private:
    /// The level that is expected of period t before its data are known.
    double expected(long long t) const {
        return hasTrend(model_) ? s_.level(t - 1) + s_.trend(t - 1) : s_.level(t - 1);
    }

    double forecastOf(long long t) const {
        if (model_ == Model::Level) return c_.level * s_.y(t - 1) + (1 - c_.level) * s_.fitted(t - 1);
        return smoothsSeasons(model_) ? expected(t) * s_.seasonal(t - season_) : expected(t);
    }

    /// alpha y, without its season.
    double levelShare(long long t) const {
        const double share = finite(c_.level * s_.y(t));
        return smoothsSeasons(model_) ? divide(share, s_.seasonal(t - season_)) : share;
    }

    Series& s_;
    Model model_;
    long long season_;
    Constants c_;
};

void initialise(Series& series, const Setting& setting, const Constants& constants) {
    const PeriodSums sums(series, setting.initialPeriods);
    const double mean = sums.mean();
    if (setting.model == Model::Level) {
        series.fitted(1) = mean;
        Step step(series, setting, constants);
        for (long long t = 2; t <= setting.initialPeriods; ++t) step.run(t, false);
        return;
    }
    const double slope = hasTrend(setting.model) ? sums.slope() : 0;
    if (hasTrend(setting.model)) series.trend(setting.initialPeriods) = slope;
    if (smoothsSeasons(setting.model)) {
        const double half = slope * static_cast<double>(setting.seasonalLength - 1) / 2;
        initialiseSeasons(series, setting, finite(lastSeasonMean(series, setting) + half), slope);
    }
    initialiseLevels(series, setting, mean, slope);
}

} // namespace

PeriodSums::PeriodSums(const Series& series, long long periods) : count(static_cast<double>(periods)) {
    for (long long period = 1; period <= periods; ++period) {
        const auto at = static_cast<double>(period);
        const double value = series.y(period);
        y = finite(y + value);
        t += at;
        ty = finite(ty + at * value);
        tt += at * at;
    }
}

double PeriodSums::mean() const {
    return divide(y, count);
}

double PeriodSums::meanPeriod() const {
    return divide(t, count);
}

double PeriodSums::slope() const {
    const double middle = meanPeriod();
    return divide(finite(ty - middle * mean() * count), tt - middle * middle * count);
}

ErrorSums sumErrors(Series& series, const Setting& setting) {
    ErrorSums sums;
    for (long long t = setting.initialPeriods + 1; t <= setting.dataPeriods; ++t) {
        const double error = finite(series.y(t) - series.fitted(t));
        series.error(t) = error;
        if (!setting.counts(t)) continue;
        sums.error = finite(sums.error + error);
        sums.absolute = finite(sums.absolute + std::abs(error));
        sums.squared = finite(sums.squared + error * error);
    }
    return sums;
}

ErrorSums fit(Series& series, const Setting& setting, const Constants& constants) {
    initialise(series, setting, constants);
    Step step(series, setting, constants);
    for (long long t = setting.initialPeriods + 1; t <= setting.dataPeriods; ++t) step.run(t, false);
    return sumErrors(series, setting);
}

void forecastAhead(Series& series, const Setting& setting, const Constants& constants) {
    Step step(series, setting, constants);
    for (long long t = setting.dataPeriods + 1; t <= setting.lastForecast(); ++t) step.run(t, true);
}

} // namespace vantore::forecast
