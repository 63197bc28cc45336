#include "demand/FORECAST/smoothing.h"

#include <cmath>

namespace vantore::forecast {

namespace {

/// The mean of y over the last season of the initial periods.
Number lastSeasonMean(const Series& series, const Setting& setting) {
    Number sum;
    for (long long t = setting.initialPeriods - setting.seasonalLength + 1; t <= setting.initialPeriods; ++t)
        sum += series.y(t);
    return sum / setting.seasonalLength;
}

/// The indices of the last season and the period before it: y over the line that ends at `end` in period N
/// and rises by `slope`.
void initialiseSeasons(Series& series, const Setting& setting, Number end, Number slope) {
    const long long n = setting.initialPeriods;
    for (long long t = n - setting.seasonalLength; t <= n; ++t)
        series.seasonal(t) = series.y(t) / (end - slope * (n - t));
}

/// The levels of the last two initial periods from the line through `mean` in mid-range, without season.
void initialiseLevels(Series& series, const Setting& setting, Number mean, Number slope) {
    const long long n = setting.initialPeriods;
    const Number periods = n;
    const Number last = mean + slope * (periods - 1) / 2;
    const Number before = mean + slope * ((periods - 1) / 2 - 1);
    const bool seasonal = smoothsSeasons(setting.model);
    series.level(n) = seasonal ? last / series.seasonal(n) : last;
    series.level(n - 1) = seasonal ? before / series.seasonal(n - 1) : before;
}

/// One period of the recursion. A future period takes its forecast as its data.
class Step {
  public:
    Step(Series& series, const Setting& setting, const Constants& constants)
        : s_(series), model_(setting.model), season_(setting.seasonalLength), alpha_(constants.level),
          beta_(constants.trend), gamma_(constants.seasonal) {}

    void run(long long t, bool future) {
        s_.fitted(t) = forecastOf(t);
        if (future) s_.y(t) = s_.fitted(t);
        if (model_ == Model::Level) return;
        const Number level = levelShare(t) + (1 - alpha_) * expected(t);
        const Number before = s_.level(t - 1);
        s_.level(t) = level;
        if (smoothsSeasons(model_))
            s_.seasonal(t) = gamma_ * s_.y(t) / level + (1 - gamma_) * s_.seasonal(t - season_);
        if (hasTrend(model_)) s_.trend(t) = beta_ * (level - before) + (1 - beta_) * s_.trend(t - 1);
    }

  private:
    /// The level that is expected of period t before its data are known.
    Number expected(long long t) const {
        return hasTrend(model_) ? s_.level(t - 1) + s_.trend(t - 1) : s_.level(t - 1);
    }

    Number forecastOf(long long t) const {
        if (model_ == Model::Level) return alpha_ * s_.y(t - 1) + (1 - alpha_) * s_.fitted(t - 1);
        return smoothsSeasons(model_) ? expected(t) * s_.seasonal(t - season_) : expected(t);
    }

    /// alpha y, without its season.
    Number levelShare(long long t) const {
        const Number share = alpha_ * s_.y(t);
        return smoothsSeasons(model_) ? share / s_.seasonal(t - season_) : share;
    }

    Series& s_;
    Model model_;
    long long season_;
    Number alpha_, beta_, gamma_;
};

void initialise(Series& series, const Setting& setting, const Constants& constants) {
    const PeriodSums sums(series, setting.initialPeriods);
    const Number mean = sums.mean();
    if (setting.model == Model::Level) {
        series.fitted(1) = mean;
        Step step(series, setting, constants);
        for (long long t = 2; t <= setting.initialPeriods; ++t) step.run(t, false);
        return;
    }
    const Number slope = hasTrend(setting.model) ? sums.slope() : Number();
    if (hasTrend(setting.model)) series.trend(setting.initialPeriods) = slope;
    if (smoothsSeasons(setting.model)) {
        const Number half = slope * (setting.seasonalLength - 1) / 2;
        initialiseSeasons(series, setting, lastSeasonMean(series, setting) + half, slope);
    }
    initialiseLevels(series, setting, mean, slope);
}

} // namespace

PeriodSums::PeriodSums(const Series& series, long long periods) : count(periods) {
    for (long long period = 1; period <= periods; ++period) {
        const Number at = period;
        const Number value = series.y(period);
        y += value;
        t += at;
        ty += at * value;
        tt += at * at;
    }
}

Number PeriodSums::mean() const {
    return y / count;
}

Number PeriodSums::meanPeriod() const {
    return t / count;
}

Number PeriodSums::slope() const {
    const Number middle = meanPeriod();
    return (ty - middle * mean() * count) / (tt - middle * middle * count);
}

ErrorSums sumErrors(Series& series, const Setting& setting) {
    ErrorSums sums;
    for (long long t = setting.initialPeriods + 1; t <= setting.dataPeriods; ++t) {
        const Number error = series.y(t) - series.fitted(t);
        series.error(t) = error;
        if (!setting.counts(t)) continue;
        sums.error += error;
        sums.absolute += std::abs(error);
        sums.squared += error * error;
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
