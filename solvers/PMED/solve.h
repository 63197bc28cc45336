#pragma once

#include "location/PMED/exchange.h"

namespace vantore::pmed {

/// The length of the way from one point to another: on a grid the straight line with each axis scaled by its
/// factor, in degrees the great circle in statute miles times the circuity factor. Overflow beyond the double
/// range.
double distance(const Problem& problem, const Site& from, const Site& to);

/// Chooses the sites by which the points are served at least cost: the sum over the points of volume x rate x
/// distance to the nearest chosen site, of equally near ones the lowest number, and the fixed costs of the
/// sites. Of choices that cost the same, that one whose numbers come first.
///
/// Every choice is looked at, at most 6435 (7 or 8 sites of 15), so that no better one is left. The costs are
/// added up with about 32 digits: a small difference between large costs decides as it should.
/// Overflow beyond the double range.
Assignment solve(const SolverInput& input);

} // namespace vantore::pmed
