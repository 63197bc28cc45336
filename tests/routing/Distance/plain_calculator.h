#pragma once

#include <string>

#include "routing/Distance/problem.h"

namespace vantore::distance::tests {

/// The calculator as one plain procedure, from the problem to the texts of its two boxes: the yardstick of
/// the module, with which it shares the record and the number texts alone.
class PlainCalculator {
  public:
    /// Only for places that are neither poles nor nearly opposite each other.
    void calculate(const Problem& problem);

    std::string distanceBox;
    std::string totalBox;

  private:
    double total_ = 0;
};

} // namespace vantore::distance::tests
