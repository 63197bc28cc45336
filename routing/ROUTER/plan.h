#pragma once

#include <string>
#include <vector>

#include "routing/ROUTER/problem.h"
#include "shell/base/item_stream.h"
#include "shell/base/table.h"

namespace vantore::router {

/// ROUTE.DAT, the file of a solution: what the solver has found or the user has specified.

constexpr const char* planFile = "ROUTE.DAT";
constexpr const char* solverInputFile = "TEMP.DAT";
constexpr const char* specifiedRemark = "SPECIFIED"; ///< first item of a plan that the user typed

constexpr int mostRoutes = 200;
constexpr int mostStopsPerRoute = 161;

/// A route from the depot through its stops and back.
struct PlannedRoute {
    double totalWeight = 0;
    int vehicle = 0; ///< row of the vehicle table
    double weightCapacity = 0;
    double start = 0;       ///< minutes from 00:00 of day 1
    std::vector<int> stops; ///< rows of the stop table, in the order of the visits

    int stopCount() const { return static_cast<int>(stops.size()); }
};

/// A route of these stops, its weight and its capacity from the problem. SubscriptOutOfRange for a vehicle or
/// a stop that isn't there, Overflow where the weights have no sum.
PlannedRoute plannedRoute(const Problem& problem, int vehicle, double start, std::vector<int> stops);

/// A numbered list of routes.
struct Plan {
    std::string remark; ///< where the plan comes from; nothing reads it
    int routeCount = 0; ///< the number of the last route
    Table<PlannedRoute, 1, mostRoutes> routes;

    bool hasTooManyRoutes() const { return routeCount > mostRoutes; }
};

/// Reads a plan. Routes lie under their numbers: a number that is left out is an empty route, the number of
/// the last one is the count. Of more than 200 routes those beyond are read over. InputPastEnd for a short
/// file, SubscriptOutOfRange for a route number below 1 or a count of stops below 0 or above 161,
/// TypeMismatch for a stop that is no whole number, Overflow for whole numbers beyond 32 bits.
Plan readPlan(ItemReader& reader);

/// Writes a plan's first `routeCount` routes. SubscriptOutOfRange for more than 200.
void writePlan(const Plan& plan, ItemWriter& writer);

/// One block of the file.
void writeRoute(int number, const PlannedRoute& route, ItemWriter& writer);

} // namespace vantore::router
