#pragma once

#include <array>
#include <cstdint>

#include "mathprog/LNPROG/method.h"

namespace vantore::lnprog::tests {

/// The simplex method in plain loops over plain arrays, element by element, without a shortcut: what the
/// product's method must equal to the last bit, and the yardstick of its speed. It watches for no overflow.
struct PlainSimplex {
    std::array<std::array<double, lastTableauColumn + 1>, lastTableauRow + 1> tableau{};
    std::array<std::array<std::int32_t, lastTableauColumn + 1>, lastTableauRow + 1> artificialMark{};
    std::array<std::int32_t, lastTableauRow + 1> basis{};
    int constraints = 0;
    int lastColumn = 0;
    int iterations = 0;

    Outcome solve(const Problem& problem);

  private:
    void build(const Problem& problem);
    void add(int row, int variable, double coefficient, int mark);
    void setPhaseOneRow();
    int phaseOneColumn() const;
    int phaseTwoColumn() const;
    int leavingRow(int column) const;
    void pivot(int pivotRow, int pivotColumn, int lastRow);
};

} // namespace vantore::lnprog::tests
