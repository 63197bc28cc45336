#pragma once

#include <span>

#include "location/MCOG/problem.h"

namespace vantore::mcog {

/// Several facilities among weighted points: by turns each point is allocated to its nearest facility, and
/// each facility is put where it serves its points at least cost, until the total cost no longer falls.
/// Weights are volume times rate, distances straight lines.
/// Source of the alternation: Cooper, "Heuristic methods for location-allocation problems" (1964).

struct Facility {
    Location location;
    double cost = 0; ///< the sum of weight x distance, without the map factor
};

/// Facilities, which of them serves each point, and what that costs.
struct Plan {
    int facilityCount = 0; ///< M
    Table<Facility, 1, mostFacilities> facilities;
    Table<int, 1, mostPoints> assignedTo; ///< from 1
    double totalCost = 0;                 ///< with the map factor
};

/// The plan that the method ends with. Its allocation is one step younger than its locations and costs.
/// DivisionByZero where a facility's points have no weight, Overflow beyond the double range.
Plan located(const Problem& problem, int facilityCount);

/// The costs of facilities where a user has put them, with his allocation.
void price(const Problem& problem, Plan& plan);

// The steps of the method.

/// The points dealt out to the facilities in turn.
Plan seeded(const Problem& problem, int facilityCount);

/// Relocates and reallocates by turns until the total cost no longer falls.
Plan improved(const Problem& problem, Plan plan);

/// Puts each facility that has points where they call for it, with its cost, and gives the total cost. A
/// facility without points stays where it was and costs nothing.
double relocate(const Problem& problem, Plan& plan);

/// Allocates each point to its nearest facility, of equally near ones to the lowest number.
void reallocate(const Problem& problem, Plan& plan);

/// The place at which one facility serves these points at least cost, which is at hand when a pass improves
/// the cost by no more than a millionth, after 100 passes at the latest: steps down the gradient, as long as
/// the second derivatives tell, halved where the cost has risen. The cost of a single point is 0, that of
/// points that lie together 0.0000001.
Facility singleFacility(std::span<const Point> points);

} // namespace vantore::mcog
