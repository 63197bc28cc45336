#pragma once

#include <random>
#include <string>
#include <vector>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"

namespace vantore::bench {

/// A routing problem and a plan that keeps all its limits: the limits were drawn around it.
struct MixedProblem {
    std::string features; ///< a letter each: Windows, Two windows, Breaks, Fleet, Pickups, barriers (R),
                          ///< Zones, Overtime
    router::Problem problem;
    router::Plan plan;
};

/// Makes problems of 8 to 61 stops that mix time windows, pairs of them, breaks, mixed fleets, pickups,
/// barriers, speed zones and overtime. The same seed gives the same problem.
class MixedProblems {
  public:
    explicit MixedProblems(unsigned seed) : random_(seed) {}

    MixedProblem make(int stopCount);

  private:
    int from(int low, int high) {
        return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
    }
    bool has(char feature) const { return features_.find(feature) != std::string::npos; }

    void drawFeatures();
    void drawGeneral();
    void drawStops(int count);
    void drawBarriers();
    void drawRoutes();
    std::vector<int> drawRoute(std::vector<int> stops);
    void drawVehicles();
    void drawLimits();
    void drawWindows();
    router::Stop open(router::Stop stop, double arrival);

    std::mt19937 random_;
    std::string features_;
    router::Problem problem_;
    std::vector<router::Stop> stops_;
    router::Plan plan_;
};

} // namespace vantore::bench
