#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "shell/forms/picture_surface.h"

namespace vantore {

/// The plot of weighted points that the location modules share: a square of 320 units, both axes from 0.

struct PlotPoint {
    double x = 0;
    double y = 0;
};

/// Where a point of the problem lies on the surface, in whole design units from the top left.
/// DivisionByZero when a coordinate of `largest` is 0, Overflow beyond the double range.
PlotPoint plotPlace(PlotPoint point, PlotPoint largest);

/// What stands above a plot.
struct PlotHeading {
    std::string label;      ///< of the problem
    std::string fontFamily; ///< of the title
    double labelTop = 0;    ///< units of the design
};

/// Points with the largest of their coordinates, at least 0.000001, by which the plot is scaled.
struct PointPlot {
    std::vector<PlotPoint> points;
    PlotPoint largest;

    PlotPoint placeOf(PlotPoint point) const { return plotPlace(point, largest); }
    PlotPoint numberPlaceOf(PlotPoint point) const;
    std::vector<PlotPoint> numberPlaces() const;
};

/// Clears the surface and prints the title and the problem's label.
void printPlotHeading(PictureSurface& surface, Scale scale, const PlotHeading& heading);

/// Clears the surface and draws the title, the axes with their grid, tick labels and captions, and the
/// problem's label. The tick labels are in the power of ten that the largest coordinate calls for.
PointPlot drawPlotFrame(PictureSurface& surface, Scale scale, const PlotHeading& heading,
                        std::vector<PlotPoint> points);

/// Prints the points' numbers, from 1, at these places.
void printNumbers(PictureSurface& surface, Scale scale, std::span<const PlotPoint> places);

// What lies at places of the surface, in design units.

void drawPoint(PictureSurface& surface, Scale scale, PlotPoint place);
void drawFacility(PictureSurface& surface, Scale scale, PlotPoint place);

/// The line from a point to the facility that serves it.
void drawService(PictureSurface& surface, Scale scale, PlotPoint point, PlotPoint facility);

/// A facility as it is listed beside a plot; one without a location serves no point.
struct ListedFacility {
    int number = 0;
    std::optional<PlotPoint> location;
};

/// Lists the facilities' coordinates at the left of a plot, from a line of the design on, and the total cost
/// under them.
void listFacilities(PictureSurface& surface, Scale scale, double top,
                    std::span<const ListedFacility> facilities, const std::string& totalCost);

} // namespace vantore
