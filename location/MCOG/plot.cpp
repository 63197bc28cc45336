#include "location/MCOG/plot.h"

#include <utility>

#include "shell/base/number_text.h"

namespace vantore::mcog {

namespace {

constexpr double labelTop = 16; // units of the design
constexpr double listTop = 32;

PlotPoint plotPoint(Location location) {
    return {location.x, location.y};
}

/// The facilities as they are listed, those without points without a location.
std::vector<ListedFacility> listOf(const PointPlot& plot, const Plan& plan) {
    std::vector<ListedFacility> listed;
    for (int j = 1; j <= plan.facilityCount; ++j) listed.push_back({j, std::nullopt});
    for (int i = 1; i <= static_cast<int>(plot.points.size()); ++i) {
        const int facility = plan.assignedTo(i);
        listed.at(static_cast<std::size_t>(facility - 1)).location =
            plotPoint(plan.facilities(facility).location);
    }
    return listed;
}

} // namespace

PointPlot plotFrame(PictureSurface& surface, Scale scale, const Problem& problem) {
    std::vector<PlotPoint> points;
    for (const Point& point : problem.pointSpan()) points.push_back({point.x, point.y});
    return drawPlotFrame(surface, scale, {problem.label, "Arial", labelTop}, std::move(points));
}

void plotPlan(PictureSurface& surface, Scale scale, const PointPlot& plot, const Plan& plan) {
    const std::vector<ListedFacility> facilities = listOf(plot, plan);
    for (const PlotPoint& point : plot.points) drawPoint(surface, scale, plot.placeOf(point));
    for (const ListedFacility& facility : facilities)
        if (facility.location) drawFacility(surface, scale, plot.placeOf(*facility.location));
    int i = 0;
    for (const PlotPoint& point : plot.points) {
        const Location serving = plan.facilities(plan.assignedTo(++i)).location;
        drawService(surface, scale, plot.placeOf(point), plot.placeOf(plotPoint(serving)));
    }
    listFacilities(surface, scale, listTop, facilities, format(plan.totalCost, "###,###,###,###.#0"));
}

} // namespace vantore::mcog
