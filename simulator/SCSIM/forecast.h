#pragma once

#include "simulator/SCSIM/days.h"
#include "simulator/SCSIM/questions.h"

namespace vantore::scsim {

/// Thrown where an answer ends the run.
struct RunStopped {};

/// The demand that a level forecasts: the customers' at the retailer, else the orders of the level below.
const DaySeries& demandSeenBy(const Days& days, Level level);

/// The levels' forecasts of one run, day by day from -359 on: exponential smoothing from a first forecast of
/// 1 unit, the moving average of the last days, or a forecast that the user specifies every so many days.
/// Source of the methods: Brown, "Smoothing, Forecasting and Prediction" (1963).
class Forecasts {
  public:
    /// All three live at least as long.
    Forecasts(const Problem& problem, const Answers& answers, Days& days);

    /// Forecasts the day after `day`, whose demand is known, and from day -349 on measures the error of
    /// today's forecast. RunStopped where no forecast is given, Overflow beyond the range.
    void forecast(Level level, int day);

    /// The latest error: what stands for the standard deviation of a day's demand.
    double demandDeviation(Level level) const { return demandDeviation_(level); }

  private:
    void smooth(Level level, int day);
    void average(Level level, int day);
    void specify(Level level, int day);
    void specifyOnce(Level level, int day);
    void ask(const ForecastQuestion& question);
    void measureError(Level level, int day);

    const Problem& problem_;
    const Answers& answers_;
    Days& days_;
    PerLevel<double> demandDeviation_;
    int forecastsAsked_ = 0; ///< counted over all levels together, so that each shifts the others' days
};

} // namespace vantore::scsim
