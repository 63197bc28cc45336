#pragma once

#include <optional>

#include "shell/base/normal_table.h"

namespace vantore::scsim {

/// The standard normal distribution as the calculated policies see it.
using SafetyRow = NormalRow;

constexpr int safetyRows = 108;

/// One row, from 1; else SubscriptOutOfRange.
const SafetyRow& safetyRow(int row);

/// The safety factor for a unit normal loss: that of the row whose loss is nearest, the lower one in a tie.
/// 0 above the loss of row 1; none where no two rows enclose it, which is so for 0 and below.
std::optional<double> safetyFactor(double loss);

} // namespace vantore::scsim
