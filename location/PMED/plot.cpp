#include "location/PMED/plot.h"

#include "location/PMED/report.h"
#include "shell/base/number_text.h"

namespace vantore::pmed {

namespace {

// Units of the design.
constexpr double labelTop = 32;
constexpr double listTop = 64;
constexpr MapArea mapArea = {186, 56, 448, 302}; // beside the list, in the map's proportions
constexpr double numberRight = 4;
constexpr double numberUp = 6;

PlotPoint plotPoint(const Site& site) {
    return {site.x, site.y};
}

std::vector<PlotPoint> plotPoints(const Problem& problem) {
    std::vector<PlotPoint> points;
    for (int i = 1; i <= problem.rowCount; ++i) points.push_back(plotPoint(problem.sites(i)));
    return points;
}

} // namespace

SitePlot plotOnAxes(PictureSurface& surface, Scale scale, const Problem& problem) {
    const PointPlot plot =
        drawPlotFrame(surface, scale, {problem.label, "MS Sans Serif", labelTop}, plotPoints(problem));
    SitePlot sites;
    for (const PlotPoint& point : plot.points) {
        sites.places.push_back(plot.placeOf(point));
        sites.numberPlaces.push_back(plot.numberPlaceOf(point));
    }
    return sites;
}

SitePlot plotOnMap(PictureSurface& surface, Scale scale, const Problem& problem, const OutlineMap& map) {
    printPlotHeading(surface, scale, {problem.label, "MS Sans Serif", labelTop});
    drawMap(surface, scale, map, mapArea);
    SitePlot sites;
    for (const PlotPoint& point : plotPoints(problem)) {
        const PlotPoint place = mapPlace(map, mapArea, {.latitude = point.y, .longitude = point.x});
        sites.places.push_back(place);
        sites.numberPlaces.push_back({place.x + numberRight, place.y - numberUp});
    }
    return sites;
}

void plotAssignment(PictureSurface& surface, Scale scale, const SitePlot& plot, const Problem& problem,
                    const Assignment& assignment) {
    const auto placeOf = [&](int point) { return plot.places.at(static_cast<std::size_t>(point - 1)); };
    for (const PlotPoint& place : plot.places) drawPoint(surface, scale, place);
    std::vector<ListedFacility> listed;
    for (const ServingSite& site : servingSites(problem, assignment)) {
        drawFacility(surface, scale, placeOf(site.number));
        listed.push_back({site.number, plotPoint(problem.sites(site.number))});
    }
    for (int i = 1; i <= problem.rowCount; ++i)
        drawService(surface, scale, placeOf(i), placeOf(assignment.servedBy(i)));
    listFacilities(surface, scale, listTop, listed, format(assignment.totalCost, "$##,###,###,###.#0"));
}

} // namespace vantore::pmed
