#pragma once

#include <initializer_list>

#include "routing/ROUTESEQ/problem.h"

namespace vantore::routeseq::tests {

struct Spot {
    double x = 0;
    double y = 0;
};

/// A problem with its depot and stops at these places.
StopSequencingProblem stopsAt(Spot depot, std::initializer_list<Spot> stops);

/// How the stops of a random problem lie.
enum class Pattern { Scattered, Grid, Clusters, Street, Far, Hairline };
constexpr unsigned patterns = 6;

StopSequencingProblem randomStops(int stops, Pattern pattern, unsigned seed);

} // namespace vantore::routeseq::tests
