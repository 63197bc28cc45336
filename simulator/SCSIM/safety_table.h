#pragma once

#include <optional>

namespace vantore::scsim {

/// The standard normal distribution as the calculated policies see it.
struct SafetyRow {
    double probability; ///< of being in stock
    double z;           ///< normal deviate
    double loss;        ///< unit normal loss
};

constexpr int safetyRows = 108;

/// One row, from 1; else SubscriptOutOfRange.
const SafetyRow& safetyRow(int row);

/// The safety factor for a unit normal loss: that of the row whose loss is nearest, the lower one in a tie.
/// 0 above the loss of row 1; none where no two rows enclose it, which is so for 0 and below.
std::optional<double> safetyFactor(double loss);

} // namespace vantore::scsim
