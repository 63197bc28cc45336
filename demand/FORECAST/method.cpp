#include "demand/FORECAST/method.h"

#include "shell/base/arithmetic.h"

namespace vantore::forecast {

namespace {

constexpr double hundred = 100;
constexpr double usualIncrement = .1;
constexpr double leastConstant = .01;

Setting settingOf(const Problem& problem) {
    Setting setting;
    setting.model = problem.model == Model::None ? Model::Level : problem.model;
    setting.dataPeriods = problem.dataPeriods;
    setting.initialPeriods = toInt32(problem.initialPeriods);
    setting.seasonalLength = toInt32(problem.seasonalLength);
    setting.forecastPeriods = problem.forecastPeriods == 0 ? 1 : toInt32(problem.forecastPeriods);
    setting.errorPeriods = problem.errorPeriods;
    return setting;
}

Series seriesOf(const Problem& problem) {
    Series series;
    for (int t = 1; t <= problem.dataPeriods; ++t) series.y(t) = problem.periods(t).value;
    return series;
}

int hundredthsOf(double constant) {
    return toInt32(hundred * (constant == 0 ? leastConstant : constant));
}

ErrorMeasures measure(const ErrorSums& sums, Number errorPeriods) {
    return {.mad = sums.absolute / errorPeriods,
            .bias = sums.error / errorPeriods,
            .rmse = squareRoot(sums.squared / errorPeriods)};
}

/// The constants of a search. It leaves the series as its last combination and the forecasts from that made
/// it: the run with the best constants starts from there.
Hundredths searchedConstants(Series& series, const Setting& setting, double increment) {
    const ConstantGrid grid(setting.model, toInt32(hundred * (increment == 0 ? usualIncrement : increment)));
    const Best best = search(series, setting, grid);
    forecastAhead(series, setting, grid.size() > 0 ? inUse(grid.at(grid.size() - 1)) : Constants{});
    return best.hundredths;
}

void smooth(const Problem& problem, Forecast& result) {
    const Hundredths hundredths =
        problem.searches()
            ? searchedConstants(result.series, result.setting, problem.searchIncrement)
            : Hundredths{hundredthsOf(problem.levelConstant), hundredthsOf(problem.trendConstant),
                         hundredthsOf(problem.seasonalConstant)};
    result.constants = inUse(hundredths);
    const ErrorSums sums = fit(result.series, result.setting, result.constants);
    forecastAhead(result.series, result.setting, result.constants);
    result.errors = measure(sums, result.setting.errorPeriods);
}

} // namespace

bool seasonIsTooLong(const Problem& problem) {
    return smoothsSeasons(problem.model) && problem.seasonalLength + 2 > problem.initialPeriods;
}

Forecast forecast(const Problem& problem) {
    Forecast result;
    result.setting = settingOf(problem);
    result.series = seriesOf(problem);
    if (result.setting.model == Model::Decomposition) {
        result.line = decompose(result.series, result.setting);
        result.errors = measure(sumErrors(result.series, result.setting), result.setting.errorPeriods);
    } else {
        smooth(problem, result);
    }
    return result;
}

} // namespace vantore::forecast
