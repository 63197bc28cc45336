#pragma once

#include "demand/FORECAST/problem.h"
#include "shell/base/number.h"
#include "shell/base/table.h"

namespace vantore::forecast {

/// Exponential smoothing of one combination of constants: initialisation, recursion, errors, forecast.
/// Sources: Holt, "Forecasting seasonals and trends by exponentially weighted moving averages" (1957);
/// Winters, "Forecasting sales by exponentially weighted moving averages" (1960).

constexpr int lastPeriod = mostPeriods + mostForecasts;

/// The series by period, from 1; a component that a model hasn't stays 0.
struct Series {
    using Values = Table<double, 1, lastPeriod>;
    Values y; ///< data; future periods are filled with their forecasts
    Values level, trend, seasonal;
    Values fitted; ///< the forecast of each period
    Values error;  ///< y - fitted
};

/// What a model is fitted to the series with. Whole numbers as wide as sums of any two of them need.
struct Setting {
    Model model = Model::Level;
    long long dataPeriods = 0;     ///< n
    long long initialPeriods = 0;  ///< N
    long long seasonalLength = 0;  ///< L
    long long forecastPeriods = 0; ///< f
    double errorPeriods = 0;       ///< E

    long long lastForecast() const { return dataPeriods + forecastPeriods; }

    /// True of the periods whose errors count: the last E of the data.
    bool counts(long long period) const {
        return static_cast<double>(period) > static_cast<double>(dataPeriods) - errorPeriods;
    }
};

/// Constants as they are used: 32-bit values, held in 64 bits.
struct Constants {
    double level = 0;    ///< alpha
    double trend = 0;    ///< beta
    double seasonal = 0; ///< gamma
};

struct ErrorSums {
    Number error;
    Number absolute;
    Number squared; ///< SSE, by which combinations are ranked
};

/// Initialises the model from periods 1 to N, runs it over N + 1 to n and gives the sums of its errors.
/// DivisionByZero where a seasonal index, a level or a sum that it divides by is 0; Overflow beyond the
/// double range; SubscriptOutOfRange for periods outside 1 to 250.
ErrorSums fit(Series& series, const Setting& setting, const Constants& constants);

/// Runs a fitted model over n + 1 to n + f; each period's forecast is taken as its data. Errors as for `fit`.
void forecastAhead(Series& series, const Setting& setting, const Constants& constants);

/// Takes `error` of periods N + 1 to n and sums those that count.
ErrorSums sumErrors(Series& series, const Setting& setting);

/// Sums over periods 1 to `count` for the least-squares line of y. Overflow where one is beyond the double
/// range, SubscriptOutOfRange for a count above 250.
struct PeriodSums {
    Number count;
    Number y, t, ty, tt;

    PeriodSums(const Series& series, long long periods);

    /// The means of y and t. DivisionByZero for a count of 0.
    Number mean() const;
    Number meanPeriod() const;

    /// The slope b of the line. DivisionByZero for a count of 0 or 1.
    Number slope() const;
};

} // namespace vantore::forecast
