#include "location/COG/plot.h"

#include "shell/base/number_text.h"

namespace vantore::cog {

namespace {

constexpr double margin = 8; // units of the design

void printFacility(PictureSurface& surface, Scale scale, const Facility& facility) {
    surface.moveTo(margin * scale.x, 64 * scale.y);
    surface.print("Facility coordinates are:", colour::lightBlue);
    surface.moveTo(margin * scale.x, 80 * scale.y);
    surface.print("X = ", colour::lightBlue).print(format(facility.location.x, "##,###.#0"), colour::black);
    surface.print(" Y = ", colour::lightBlue).print(format(facility.location.y, "##,###.#0"), colour::black);
    surface.moveTo(margin * scale.x, 96 * scale.y);
    surface.print("Total cost = ", colour::lightBlue);
    surface.print(format(facility.totalCost, "###,###,###,###.#0"), colour::black);
}

} // namespace

void plotFacility(PictureSurface& surface, Scale scale, const PointPlot& plot, const Facility& facility) {
    if (facility.location.x == 0 && facility.location.y == 0 && facility.totalCost == 0) return;
    const PlotPoint place = plot.placeOf({facility.location.x, facility.location.y});
    drawFacility(surface, scale, place);
    for (const PlotPoint& point : plot.points) drawService(surface, scale, plot.placeOf(point), place);
    printFacility(surface, scale, facility);
}

} // namespace vantore::cog
