#pragma once

#include <span>

namespace vantore::routing {

/// The plot transform that the routing modules share: a map's points in one scale for both axes, north up,
/// centred on the surface, and moved and magnified as the user asks.

/// A point in the problem's own coordinates.
struct MapPoint {
    double x = 0;
    double y = 0;
};

/// The corner of the map in which its coordinates begin. From an eastern one x grows to the west, from a
/// northern one y grows to the south.
struct GridCorner {
    bool east = false;
    bool north = false;
};

/// A point of the surface in units of the 800x600 design, from the top left.
struct SurfacePoint {
    double x = 0;
    double y = 0;
};

constexpr double usualZoom = .9; ///< leaves a margin around the points

/// From where a user looks at the map. Pans are in units of the design.
struct Vantage {
    double zoom = usualZoom;
    double panX = 0;
    double panY = 0;
};

/// The vantage after one step: '+' and '-' change the zoom by 0.2, 'U', 'D', 'L' and 'R' move the map up,
/// down, left and right by 25 units, 'O' restores the usual zoom and takes the pans off. Letters count in
/// either case; any other character changes nothing, nor does a '-' that would leave no picture.
Vantage stepped(Vantage from, char step);

/// Where the points of a map lie on the surface.
class PlotTransform {
  public:
    /// `points` are all that the map shows. The drawing area is 632 units wide and 448 high, its centre at
    /// (320, 232). Where all points lie on one place the scale is 1.
    PlotTransform(std::span<const MapPoint> points, Vantage vantage, GridCorner corner = {});

    /// Overflow beyond the double range.
    SurfacePoint operator()(MapPoint point) const;

  private:
    SurfacePoint unmoved(MapPoint point) const;

    MapPoint reference_; // the point of the surface's top left
    double unitX_;       // units of the design for one of the map's, by the way in which it grows
    double unitY_;
    SurfacePoint shift_; // from the place that the scale gives to the one on the surface
};

} // namespace vantore::routing
