#pragma once

#include <array>
#include <functional>

#include "simulator/SCSIM/days.h"
#include "simulator/SCSIM/questions.h"
#include "simulator/SCSIM/random_numbers.h"
#include "simulator/SCSIM/replenishment.h"

namespace vantore::scsim {

constexpr std::size_t traceColumns = 26;

/// The figures of one measured day in the order of the trace.
using TraceRow = std::array<double, traceColumns>;

/// Who looks on while a run goes on; each may be empty.
struct Watchers {
    std::function<void(const TraceRow&)> trace; ///< each measured day, when it has ended
    std::function<void(int day)> dayStarts;     ///< each day from -359 on
};

/// The figures of a run. They are filled as it goes on and hold what was reached, however it ends.
struct RunFigures {
    Days days;
    PerLevel<ControlParameters> calculated;
};

enum class Ending { Complete, Stopped };

/// The last day of a run: the last whole one within its years.
int lastDayOf(const Problem& problem);

/// Simulates the channel day by day, a year of warming up and the years of the problem, within its limits as
/// `withinLimits` sets them. All stocks start at 0. The generator starts anew from the problem's seed, so
/// that the run is determined by the problem and the answers.
///
/// Each day, level by level from the customers upwards: the forecast, the orders that the level below has
/// placed on their way to it, receipts and filling, ordering; last the factory. A day draws eight times,
/// sixteen uniforms, whatever the policies.
///
/// The days of `run` up to the end are cleared first; a table that serves many runs spares its making.
/// Stopped where an answer ends the run. SubscriptOutOfRange for a lead time that leads beyond day 9000;
/// InvalidProcedureCall, DivisionByZero and Overflow where a figure has no finite value.
Ending simulate(const Problem& problem, UniformGenerator& uniforms, const Answers& answers,
                const Watchers& watchers, RunFigures& run);

} // namespace vantore::scsim
