#pragma once

#include "demand/INPOL/sensitivity.h"
#include "shell/forms/chart.h"

namespace vantore::inpol {

enum class PlottedSystem { ReorderPoint = 1, PeriodicReview };

enum class PlottedCurve {
    CostByService = 1,
    CostByInventory,
    InventoryByOrderPoint, ///< reorder point, or max level
    InventoryByService
};

/// One curve of a product through the service levels 2 to 100 (the end stop would dwarf the others).
///
/// The horizontal axis starts at 0: the least value, cut to two decimals, is taken off all values and told in
/// the axis label. SubscriptOutOfRange for a product outside 1 to 50.
ChartData curveOf(const Sensitivity& sensitivity, PlottedSystem system, int product, PlottedCurve curve);

} // namespace vantore::inpol
