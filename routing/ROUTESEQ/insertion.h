#pragma once

#include <vector>

#include "routing/ROUTESEQ/points.h"

namespace vantore::routeseq {

/// A closed tour through all points, grown from a tour through some of them: each pass inserts the point that
/// lengthens the tour least, of equal ones the one with the smallest triangle between it and its neighbours,
/// else the earliest place and point. A point isn't inserted where another lies inside or on that triangle,
/// unless that leaves none. An insertion that shortens the best length so far is followed by any of that same
/// length, whatever its triangle; from then on triangles decide.
///
/// SubscriptOutOfRange when no tour is shorter than 9999999. O(n^3) places, each with up to n points to look
/// at.
std::vector<int> tourThroughAll(const Points& points, std::vector<int> tour);

} // namespace vantore::routeseq
