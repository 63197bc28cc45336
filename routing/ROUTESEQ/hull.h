#pragma once

#include <vector>

#include "routing/ROUTESEQ/points.h"

namespace vantore::routeseq {

/// The points of the convex hull in the order of a walk around it, points on its edges included, found by
/// gift wrapping: from the leftmost point on, always the nearest point that has all others on one side of the
/// line to it. Points on one line are all on the hull, from one end to the other; of points at one place each
/// is.
///
/// SubscriptOutOfRange when no point lies left of and below 9999999. O(n^2 h) for h points on the hull.
/// Source: Jarvis, "On the identification of the convex hull of a finite set of points in the plane" (1973).
std::vector<int> convexHull(const Points& points);

} // namespace vantore::routeseq
