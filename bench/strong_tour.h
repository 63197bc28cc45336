#pragma once

#include <vector>

#include "routing/ROUTESEQ/points.h"

namespace vantore::routeseq {

/// Lengths of good closed tours, to measure the sequencing method by.

/// The shortest tour, by dynamic programming over the sets of visited points: for up to 13 points.
/// Source: Held and Karp, "A dynamic programming approach to sequencing problems" (1962).
double shortestTour(const Points& points);

/// The best of many tours that neither turning a part round nor moving up to three neighbours elsewhere makes
/// shorter: 2-opt and Or-opt from random starts with a fixed seed.
double strongTour(const Points& points, int starts);

/// The length of a closed tour through these points.
double tourLength(const Points& points, const std::vector<int>& tour);

} // namespace vantore::routeseq
