#pragma once

#include "location/PMED/exchange.h"
#include "location/outline_map.h"
#include "location/point_plot.h"

namespace vantore::pmed {

/// A plot that has been begun: where the points lie on its surface.
struct SitePlot {
    std::vector<PlotPoint> places;       ///< from point 1 on, units of the design
    std::vector<PlotPoint> numberPlaces; ///< where the points' numbers stand
};

/// Draws the heading and, for linear coordinates, the axes.
SitePlot plotOnAxes(PictureSurface& surface, Scale scale, const Problem& problem);

/// Draws the heading and the map under points in degrees.
SitePlot plotOnMap(PictureSurface& surface, Scale scale, const Problem& problem, const OutlineMap& map);

/// Draws the points, the sites that serve them, the lines between them, and lists the sites.
void plotAssignment(PictureSurface& surface, Scale scale, const SitePlot& plot, const Problem& problem,
                    const Assignment& assignment);

} // namespace vantore::pmed
