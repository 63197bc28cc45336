#pragma once

#include "routing/ROUTESEQ/report.h"
#include "routing/plot_transform.h"
#include "shell/forms/picture_surface.h"

namespace vantore::routeseq {

/// The map of the depot and the stops.
class StopMap {
  public:
    StopMap(const StopSequencingProblem& problem, routing::Vantage vantage);

    /// Clears the surface and draws the heading, the axes and the points, the depot as a square.
    void draw(PictureSurface& surface, Scale scale) const;

    /// Prints the stops' numbers beside them.
    void drawNumbers(PictureSurface& surface, Scale scale) const;

    /// Draws the route from the depot through the sequence and back, and prints its length.
    /// SubscriptOutOfRange for a stop that the table hasn't.
    void drawRoute(PictureSurface& surface, Scale scale, const MeasuredSequence& sequence) const;

  private:
    std::string label_;
    std::vector<routing::MapPoint> points_; // the depot, then the stops
    routing::PlotTransform place_;
};

} // namespace vantore::routeseq
