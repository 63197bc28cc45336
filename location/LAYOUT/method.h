#pragma once

#include <vector>

#include "location/LAYOUT/problem.h"

namespace vantore::layout {

/// A product at its place in the ranking, with what is computed for it.
struct RankedProduct {
    Product product;
    double cubePerOrder = 0; ///< the cube-per-order index, under that rule alone
    double space = 0;        ///< required for its average inventory, cubic feet
};

/// The products in the order in which they are placed, the first nearest the dock: by falling order
/// frequency, by rising size, or by rising cube-per-order index; equal ones in the order of the problem.
/// The index is the space a product requires over its orders a day.
/// DivisionByZero for a product without turns, under the cube-per-order rule without orders too; Overflow.
/// Source of the index: Heskett, "Cube-per-order index: a key to warehouse stock location" (1963).
std::vector<RankedProduct> ranking(const Problem& problem);

} // namespace vantore::layout
