#include "simulator/SCSIM/forecast.h"

#include "shell/base/arithmetic.h"

namespace vantore::scsim {

namespace {

constexpr double firstForecast = 1;
constexpr int firstErrorDay = -349;
constexpr int errorTerms = 10;

} // namespace

const DaySeries& demandSeenBy(const Days& days, Level level) {
    switch (level) {
    case Level::Retailer: return days.customerDemand;
    case Level::Distributor: return days.levels(Level::Retailer).orderQuantity;
    case Level::Warehouse: break;
    }
    return days.levels(Level::Distributor).orderQuantity;
}

Forecasts::Forecasts(const Problem& problem, const Answers& answers, Days& days)
    : problem_(problem), answers_(answers), days_(days) {}

void Forecasts::forecast(Level level, int day) {
    const LevelData& data = problem_.levels(level);
    if (data.forecast == ForecastMethod::ExponentialSmoothing)
        smooth(level, day);
    else if (data.forecast == ForecastMethod::MovingAverage)
        average(level, day);
    else if (data.forecastFrequency != 0)
        specify(level, day);
    else
        specifyOnce(level, day);
    if (day >= firstErrorDay) measureError(level, day);
}

void Forecasts::smooth(Level level, int day) {
    DaySeries& forecast = days_.levels(level).salesForecast;
    const double weight = problem_.levels(level).smoothingConstant;
    if (day == firstDay) forecast(day) = firstForecast;
    forecast(day + 1) = finite(weight * demandSeenBy(days_, level)(day) + (1 - weight) * forecast(day));
}

void Forecasts::average(Level level, int day) {
    DaySeries& forecast = days_.levels(level).salesForecast;
    const double count = problem_.levels(level).averagedDays;
    if (day < firstDay + count) {
        forecast(day + 1) = firstForecast;
        return;
    }
    const DaySeries& demand = demandSeenBy(days_, level);
    double total = 0;
    for (int past = toInt16(day - count + 1); past <= day; ++past) total += demand(past);
    forecast(day + 1) = divide(finite(total), count);
}

void Forecasts::specify(Level level, int day) {
    DaySeries& forecast = days_.levels(level).salesForecast;
    if (day == firstDay) {
        forecastsAsked_ = 1;
        return ask({level, ForecastQuestion::Kind::Initial, day});
    }
    if (forecastsAsked_ * problem_.levels(level).forecastFrequency - daysPerYear != day) {
        forecast(day + 1) = forecast(day);
        return;
    }
    if (day == problem_.years * daysPerYear) return;
    ++forecastsAsked_;
    ask({level, ForecastQuestion::Kind::Period, day + 1});
}

void Forecasts::specifyOnce(Level level, int day) {
    DaySeries& forecast = days_.levels(level).salesForecast;
    if (day == firstDay)
        ask({level, ForecastQuestion::Kind::Constant, day});
    else
        forecast(day + 1) = forecast(day);
}

/// The first forecast is for the first day and the next one.
void Forecasts::ask(const ForecastQuestion& question) {
    const std::optional<double> answer = answers_.forecast(question);
    if (!answer) throw RunStopped();
    DaySeries& forecast = days_.levels(question.level).salesForecast;
    forecast(question.day) = *answer;
    if (question.day == firstDay) forecast(question.day + 1) = *answer;
}

/// A root mean square of ten terms that are all today's: calculated policies follow each day's error.
void Forecasts::measureError(Level level, int day) {
    const double error = demandSeenBy(days_, level)(day) - days_.levels(level).salesForecast(day);
    double squares = 0;
    for (int term = 1; term <= errorTerms; ++term) squares += error * error;
    demandDeviation_(level) = squareRoot(finite(squares) / errorTerms);
}

} // namespace vantore::scsim
