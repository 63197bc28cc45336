#pragma once

#include <array>

#include "demand/FORECAST/smoothing.h"

namespace vantore::forecast {

/// The search over the smoothing constants: a full grid.

/// Smoothing constants in hundredths: alpha, beta, gamma.
using Hundredths = std::array<int, 3>;

/// The constants in use: hundredths over 100 as 32-bit values, 0 replaced by 0.01.
Constants inUse(const Hundredths& hundredths);

/// The combinations in their order: alpha outermost, then beta, gamma innermost, each from 0 to 100 by the
/// increment. A constant that the model hasn't stays 0. There is no combination for an increment below 1.
class ConstantGrid {
  public:
    ConstantGrid(Model model, int increment);

    int size() const { return counts_[0] * counts_[1] * counts_[2]; }

    /// Combination 0 to size() - 1.
    Hundredths at(int combination) const;

  private:
    Hundredths counts_{};
    int increment_;
};

/// The best of some combinations: its constants and its SSE.
struct Best {
    Hundredths hundredths{};
    double squared = 1E+38; ///< where the comparison starts
    int redone = 0;         ///< combinations that were fitted again alone, for a value that wasn't finite
};

/// The first of the combinations with the least SSE below 1E+38; all constants 0 when none is below.
///
/// The result is, to the last bit, that of `fit` on each combination in turn, and so is the error that it
/// ends in: that of the first combination that has one. Combinations run side by side in the lanes of the
/// machine's vectors, without checks: a combination that leaves the range of doubles or divides by 0 never
/// comes back into it, which is seen at its end, and `fit` then tells the error. No combination is left
/// early, since one that can't win may still have an error to tell.
///
/// `series` is taken as it stands before the first combination and left as `fit` leaves it after the last.
/// Time O(combinations x (n + L)).
Best search(Series& series, const Setting& setting, const ConstantGrid& grid);

} // namespace vantore::forecast
