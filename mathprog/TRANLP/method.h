#pragma once

#include <cstdint>

#include "mathprog/TRANLP/labelling.h"
#include "mathprog/TRANLP/problem.h"

namespace vantore::tranlp {

/// The cheapest shipments of a problem, over its real sources and sinks.
struct Plan {
    CellTable<std::int32_t> alloc;
    PlaceTable<double> rowTotal; ///< shipped by a source
    PlaceTable<double> colTotal; ///< shipped to a sink
    double totalAllocated = 0;   ///< the smaller of total supply and total demand
    double totalCost = 0;
};

/// The problem in whole units, halves rounded up, with a source or a sink of no cost where supply and demand
/// differ. Overflow when units or their sums leave 32 bits, SubscriptOutOfRange when the balancing row or
/// column would be the 103rd.
Tableau balanced(const Problem& problem);

/// The plan that the labelling method finds. Errors of `balanced` and `label`; Overflow when the total cost
/// leaves the range.
Plan cheapestPlan(const Problem& problem);

} // namespace vantore::tranlp
