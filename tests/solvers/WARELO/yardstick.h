#pragma once

#include <array>
#include <vector>

#include "location/WARELOCA/flows.h"
#include "location/WARELOCA/problem.h"

namespace vantore::tests {

/// The cost of a network written down once more, plainly, with distances from the angle between two places as
/// seen from the middle of the earth and the supply by the GLPK library.

/// $ a year in the order of the report: production, plant-warehouse transport, warehouse-customer transport,
/// local delivery, handling, stock orders, customer orders, storage, capital.
using PlainCosts = std::array<double, 9>;

struct PlainPlan {
    PlainCosts costs{};
    double total = 0;
    double averageMiles = 0; ///< by sales
    double longestMiles = 0;
    double salesWithin = 0; ///< the desired distance, cwt.
    int customersWithin = 0;
};

double plainMiles(wareloca::Place a, wareloca::Place b);

/// What it costs when each customer is served by the warehouse of that row; 0 for a customer without sales.
PlainPlan plainPlan(const wareloca::Case& problem, const std::vector<int>& warehouseOf);

/// The least total cost over all ways to serve the customers; only for tiny cases.
double leastCostByEnumeration(const wareloca::Case& problem);

/// A lower bound on the cost by the linear relaxation in which each warehouse's inventory costs at least what
/// the chords between `points` throughputs say, and who isn't served from a chord's warehouse pays none of
/// its fixed cost.
double linearBound(const wareloca::Case& problem, int points);

} // namespace vantore::tests
