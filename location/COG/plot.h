#pragma once

#include <optional>

#include "location/COG/method.h"
#include "location/point_plot.h"
#include "shell/forms/picture_surface.h"

namespace vantore::cog {

/// A location and its cost.
struct Facility {
    Location location;
    double totalCost = 0;
};

/// Draws the facility, its lines to the points and its figures, unless location and cost are all 0.
void plotFacility(PictureSurface& surface, Scale scale, const PointPlot& plot, const Facility& facility);

} // namespace vantore::cog
