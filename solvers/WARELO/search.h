#pragma once

#include <functional>

#include "solvers/WARELO/allocation.h"

namespace vantore::warelo {

/// An allocation, and what no allocation costs less than.
struct Found {
    Allocation allocation;
    double cost = 0;  ///< $ a year
    double bound = 0; ///< $ a year

    /// The share of the cost that another allocation might save at most.
    double gap() const { return cost > 0 && bound < cost ? (cost - bound) / cost : 0; }
};

using Hear = std::function<void(const Found&)>;

/// Looks for the cheapest allocation of a network, and calls `hear` with each better one and with each higher
/// bound; the last call has the best of both.
///
/// A first allocation takes each customer to where he is served most cheaply, once for what the inventories
/// cost by themselves and again for what they cost in the allocation before. `improved` makes it better. Then
/// the bound is raised step by step, and now and then its prices lead to a further start. Where a gap is
/// left, a warehouse's throughput is below some amount or above it: each half has a bound of its own, and the
/// lower one counts. The half that keeps the bound down is halved again, as long as the work allows (branch
/// and bound; Falk and Soland, "An algorithm for separable nonconvex programming problems", Management
/// Science 15 (1969)).
void search(const Network& network, const Hear& hear);

} // namespace vantore::warelo
