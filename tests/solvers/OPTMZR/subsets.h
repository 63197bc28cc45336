#pragma once

#include "routing/ROUTER/problem.h"

namespace vantore::optmzr::tests {

/// The cost of the best plan of a problem with one type of vehicle, deliveries only and no limit but the
/// capacity and the number of vehicles, by dynamic programming over the sets of stops: the shortest order of
/// each set (Held and Karp, 1962), then the best way of dividing all stops into sets. Meant for up to twelve
/// stops; a negative cost where the vehicles are too few.
double bestCostBySubsets(const router::Problem& problem);

} // namespace vantore::optmzr::tests
