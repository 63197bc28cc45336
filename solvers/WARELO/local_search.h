#pragma once

#include "solvers/WARELO/allocation.h"

namespace vantore::warelo {

/// An allocation that none of these moves makes cheaper, found from another by making them as long as one
/// does:
///
/// - shift: a customer goes to another warehouse;
/// - swap: two customers change their warehouses;
/// - attract: a warehouse takes the customers who gain most by coming, as many as pay;
/// - close: a warehouse gives all its customers to others.
///
/// The inventory's cost is concave, so that attract and close find what no single shift begins. What a move
/// saves is estimated by the prices of the cheapest supply. These never promise too little (the cost of
/// supply is convex), so that only promising moves are computed whole.
Allocation improved(const Network& network, Allocation start);

} // namespace vantore::warelo
