#pragma once

#include <span>

#include "shell/forms/picture_surface.h"

namespace vantore {

/// The plot of weighted points that the location modules share: a square of 320 units, both axes from 0.

struct PlotPoint {
    double x = 0;
    double y = 0;
};

/// The largest X and Y over the points, 0 where all are below it.
PlotPoint largestCoordinates(std::span<const PlotPoint> points);

/// Draws the axes with their grid, tick labels and captions. The tick labels are in the power of ten that the
/// largest coordinate calls for.
void drawAxes(PictureSurface& surface, Scale scale, PlotPoint largest);

/// Where a point of the problem lies on the surface, in whole design units from the top left.
/// DivisionByZero when a coordinate of `largest` is 0, Overflow beyond the double range.
PlotPoint plotPlace(PlotPoint point, PlotPoint largest);

} // namespace vantore
