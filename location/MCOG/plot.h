#pragma once

#include "location/MCOG/method.h"
#include "location/point_plot.h"

namespace vantore::mcog {

/// Draws the heading and the axes.
PointPlot plotFrame(PictureSurface& surface, Scale scale, const Problem& problem);

/// Draws the points, the facilities with points and the lines between them, and lists all facilities.
void plotPlan(PictureSurface& surface, Scale scale, const PointPlot& plot, const Plan& plan);

} // namespace vantore::mcog
