#pragma once

#include <vector>

#include "solvers/WARELO/supply.h"

namespace vantore::warelo {

/// The number of the warehouse that serves each customer of a network.
using Allocation = std::vector<std::size_t>;

/// The throughput of each warehouse, cwt.: exactly 0 where none of the customers is served.
std::vector<double> throughputOf(const Network& network, const Allocation& allocation);

/// $ a year of an allocation with its cheapest supply.
double costOf(const Network& network, const Allocation& allocation);

/// The allocation of each customer to the warehouse that is cheapest for him when a cwt. costs so many $ in
/// each warehouse; a warehouse at an infinite price serves none. Ties go to the lowest number.
Allocation cheapestAllocation(const Network& network, const std::vector<double>& warehousePrice);

} // namespace vantore::warelo
