#pragma once

#include "solvers/MIP/model.h"

namespace vantore::mip {

/// Whole-number constraints about integer variables alone, divided by what their factors have in common, and
/// their ends taken to the whole numbers within: 2 X1 + 4 X2 <= 7 becomes X1 + 2 X2 <= 3. An "=" that no
/// whole numbers satisfy is left with an empty range.
Model divided(Model model);

/// True when some lower end is above its upper end.
bool hasEmptyRange(const Box& box);

/// Takes away from boxes what the rows exclude, in whole numbers.
/// Source: Savelsbergh, "Preprocessing and probing techniques for mixed integer programming problems" (1994).
class Propagation {
  public:
    explicit Propagation(const Model& model);

    /// Only solutions that cost no more than this are of interest from now on.
    void limitCost(const Integer& most) { rows_.back().range.upper = most; }

    /// Narrows the box; false when nothing of it is left.
    bool narrow(Box& box) const;

    /// The same when only the range of this column has changed since the box was narrowed last.
    bool narrow(Box& box, std::size_t column) const;

  private:
    bool narrow(Box& box, std::vector<bool> waiting) const;
    bool narrowByRow(Box& box, std::size_t row, std::vector<bool>& waiting) const;

    const std::vector<bool>& whole_;
    std::vector<Row> rows_; // those of the model, and the objective at last
    std::vector<std::vector<std::size_t>> rowsOf_;
};

} // namespace vantore::mip
