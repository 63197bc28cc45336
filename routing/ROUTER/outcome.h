#pragma once

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"
#include "routing/ROUTER/simulation.h"
#include "routing/ROUTER/travel.h"
#include "shell/base/table.h"

namespace vantore::router {

constexpr int mostReportedRoutes = 61; ///< as many as there can be stops

/// What becomes of a plan: all its routes, simulated. The problem and the plan outlive it.
class Outcome {
  public:
    /// SubscriptOutOfRange for more than 61 routes and for a route without a first stop, and the errors of
    /// `simulate`.
    Outcome(const Problem& problem, const Plan& plan);

    const Problem& problem() const { return problem_; }
    int routeCount() const { return plan_.routeCount; }
    const PlannedRoute& planned(int r) const { return plan_.routes(r); }
    const SimulatedRoute& simulated(int r) const { return routes_(r); }
    const Vehicle& vehicle(int r) const { return problem_.vehicles(planned(r).vehicle); }

    /// `incrementalCost` of the stop at a position of route r.
    double costToServe(int r, int position) const;

    /// Legs of which an end lies within a barrier, once for each barrier.
    int barrierWarnings() const;

    /// Arrivals outside their stops' time windows.
    int missedWindows() const;

  private:
    const Problem& problem_;
    const Plan& plan_;
    Travel travel_;
    Table<SimulatedRoute, 1, mostReportedRoutes> routes_;
};

/// The barrier warnings of a plan whose routes aren't simulated. SubscriptOutOfRange for a stop that isn't
/// there.
int barrierWarnings(const Problem& problem, const Plan& plan);

} // namespace vantore::router
