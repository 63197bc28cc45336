#pragma once

#include "shell/base/normal_table.h"

namespace vantore::inpol {

/// The normal distribution as the policies see it: a table of service levels by half per cents, ending in a
/// stop at certainty.

using ServiceLevel = NormalRow;

constexpr int serviceLevels = 101;

/// One level; `row` from 1 (probability .5) to 101 (the end stop), else SubscriptOutOfRange.
const ServiceLevel& serviceLevel(int row);

/// The first row whose probability is at least `value` - .001; 102 when there is none.
int serviceRow(double value);

struct NormalDeviate {
    double z = 0;
    double loss = 0;
};

/// z and loss of a wanted probability. One below one half is mirrored by adding .5, not by taking its
/// complement. SubscriptOutOfRange beyond the end of the table.
NormalDeviate deviateFor(double probability);

/// The same with `lookupValue` as the value that is looked up; `probability` tells whether to mirror.
NormalDeviate deviateFor(double probability, double lookupValue);

} // namespace vantore::inpol
