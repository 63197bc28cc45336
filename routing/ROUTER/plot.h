#pragma once

#include <vector>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"
#include "routing/plot_transform.h"
#include "shell/forms/picture_surface.h"

namespace vantore::router {

constexpr const char* pointInBarrierWarning = "*** A POINT LIES WITHIN A BARRIER. CORRECT THIS. ***";

/// What of a map is drawn besides the points, the routes and the barriers.
struct MapLayers {
    bool numbers = false; ///< of the stops
    bool zones = false;
    bool warning = false; ///< that a stop lies within a barrier
};

/// The depot, the stops and the routes between them, with barriers and speed zones.
class PlanMap {
  public:
    /// Corners other than NW, SW, SE and NE, in either case of letters, count as SW. SubscriptOutOfRange for
    /// a route with a stop that isn't there.
    PlanMap(const Problem& problem, const Plan& plan);

    void clearRoutes() { routes_.clear(); }

    /// Clears the surface and draws: the zones under all else; the depot as a blue square, each stop as a red
    /// circle; each route as a closed line, each barrier by its four sides; the warning and the numbers.
    void draw(PictureSurface& surface, Scale scale, routing::Vantage vantage, MapLayers layers) const;

  private:
    using Points = std::vector<routing::MapPoint>;

    Points allPoints() const;

    routing::GridCorner corner_;
    Points stops_; // the depot first
    std::vector<Zone> zones_;
    std::vector<Points> barriers_; // the corners of each, one after the other
    std::vector<Points> routes_;   // from the depot through the stops
};

} // namespace vantore::router
