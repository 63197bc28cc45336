#pragma once

#include <vector>

#include "solvers/WARELO/network.h"

namespace vantore::warelo {

/// The cheapest way to supply warehouses with their throughputs from plants of limited capacity.
struct Supply {
    SupplyTable flows; ///< cwt. from plant to warehouse
    double cost = 0;   ///< $ a year: production and transport

    /// What a further cwt. of capacity would save in each plant, $; 0 where capacity is left.
    std::vector<double> capacityPrice;

    /// What a further cwt. would cost in each warehouse, $. The cost is convex in the throughputs, so that no
    /// change of them costs less than these prices say.
    std::vector<double> warehousePrice;
};

/// The optimum of this transportation problem for throughputs by warehouse, whose sum the capacity covers.
///
/// The warehouses are supplied one after the other by successive shortest paths. Between plants a path leads
/// over a warehouse that the one supplies and the other could: a full plant hands some of what it supplies on
/// to another, until one has capacity left. Each step fills a plant, supplies a warehouse or empties a flow,
/// and no path ever costs less than the one before it, so that the last flows are the cheapest ones.
/// Source: Busacker and Gowen, "A procedure for determining a family of minimum-cost network flow patterns",
/// Operations Research Office, Johns Hopkins University (1961).
Supply cheapestSupply(const Network& network, const std::vector<double>& throughput);

} // namespace vantore::warelo
