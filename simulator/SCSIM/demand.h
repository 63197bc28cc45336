#pragma once

#include "simulator/SCSIM/days.h"
#include "simulator/SCSIM/random_numbers.h"

namespace vantore::scsim {

/// Fills the customers' demand in whole units for the year of warming up, the run and one year more.
///
/// Generated demand: a mean with a linear trend, times the month's seasonal index, plus normal noise that
/// neither season nor growth scales. The mean reaches the average on day 0. It takes two uniforms a day.
/// Specified demand: a typical year, day by day, plus a linear trend that starts anew on day 1.
///
/// Overflow where a day's demand has no finite value.
void generateDemand(const Problem& problem, UniformGenerator& uniforms, DaySeries& customerDemand);

} // namespace vantore::scsim
