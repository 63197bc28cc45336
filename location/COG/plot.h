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

/// Draws the title, the axes and the problem's label, and gives the largest coordinates, at least 0.000001.
PlotPoint plotFrame(PictureSurface& surface, Scale scale, const Problem& problem);

/// Prints the points' numbers.
void plotNumbers(PictureSurface& surface, Scale scale, const Problem& problem, PlotPoint largest);

/// Draws the points and, unless location and cost are all 0, the facility, its lines to the points and its
/// figures.
void plotPoints(PictureSurface& surface, Scale scale, const Problem& problem, PlotPoint largest,
                const Facility& facility);

} // namespace vantore::cog
