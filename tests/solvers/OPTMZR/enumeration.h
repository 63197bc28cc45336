#pragma once

#include <vector>

#include "routing/ROUTER/problem.h"

namespace vantore::optmzr::tests {

/// What the best of all plans, or of all starts of a route, comes to.
struct BestOfAll {
    int violations = 0;
    double excess = 0;
    double cost = 0;
};

/// Tries every way of putting the stops into routes, every order in a route, every vehicle, and every start
/// that can make a difference: all by loops of its own. Meant for up to eight stops.
BestOfAll enumerated(const router::Problem& problem);

/// The same of one route: a vehicle row and stops in their order, at every start that can make a difference.
BestOfAll enumeratedRoute(const router::Problem& problem, int row, const std::vector<int>& stops);

} // namespace vantore::optmzr::tests
