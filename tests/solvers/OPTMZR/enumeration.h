#pragma once

#include "routing/ROUTER/problem.h"

namespace vantore::optmzr::tests {

/// What the best of all plans comes to.
struct BestOfAll {
    int violations = 0;
    double excess = 0;
    double cost = 0;
};

/// Tries every way of putting the stops into routes, every order in a route, every vehicle, and every start
/// that can make a difference: all by loops of its own. Meant for up to eight stops.
BestOfAll enumerated(const router::Problem& problem);

} // namespace vantore::optmzr::tests
