#include "routing/ROUTER/plot.h"

#include <algorithm>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::router {

using routing::GridCorner;
using routing::MapPoint;
using routing::PlotTransform;
using routing::SurfacePoint;

namespace {

// Units of the design.
constexpr double halfDepot = 16 / 2.4;
constexpr double stopRadius = 3;
constexpr double textGap = 2; // from a point to the text beside it
constexpr double numberUp = 10;

constexpr double warningMargin = 2;

constexpr double numberSize = 8; // points
constexpr double warningSize = 10;

GridCorner cornerFor(const std::string& text) {
    const std::string corner = upperCase(text);
    return {.east = corner == "SE" || corner == "NE", .north = corner == "NW" || corner == "NE"};
}

std::vector<MapPoint> cornersOf(const Barrier& barrier) {
    return {{barrier.northwestX, barrier.northwestY},
            {barrier.northeastX, barrier.northeastY},
            {barrier.southeastX, barrier.southeastY},
            {barrier.southwestX, barrier.southwestY}};
}

/// Draws a map in units of the design.
class Pen {
  public:
    Pen(PictureSurface& surface, Scale scale, const PlotTransform& place)
        : surface_(surface), scale_(scale), place_(place) {}

    void closedLine(const std::vector<MapPoint>& points) {
        for (std::size_t i = 0; i < points.size(); ++i) {
            const SurfacePoint from = at(points[i]);
            const SurfacePoint to = at(points[(i + 1) % points.size()]);
            surface_.line(from.x, from.y, to.x, to.y, colour::black);
        }
    }

    void zone(const Zone& zone) {
        const SurfacePoint one = at({zone.left, zone.top});
        const SurfacePoint other = at({zone.right, zone.bottom});
        surface_.box(one.x, one.y, other.x, other.y, colour::brightWhite, true);
        surface_.box(one.x, one.y, other.x, other.y, colour::lightBlue);
    }

    void depot(MapPoint point) {
        const SurfacePoint centre = at(point);
        const double halfWidth = halfDepot * scale_.x;
        const double halfHeight = halfDepot * scale_.y;
        surface_.box(centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth, centre.y + halfHeight,
                     colour::lightBlue, true);
    }

    void stop(MapPoint point) {
        const SurfacePoint centre = at(point);
        surface_.circle(centre.x, centre.y, stopRadius * scale_.x, colour::lightRed, true);
    }

    /// Prints a text beside a point that is drawn so wide.
    void text(MapPoint beside, double halfWidth, const std::string& text) {
        const SurfacePoint point = at(beside);
        surface_.font = {"Arial", numberSize * scale_.x, false};
        surface_.moveTo(point.x + (halfWidth + textGap) * scale_.x, point.y - numberUp * scale_.y);
        surface_.print(text, colour::black);
    }

    void warn(const std::string& text) {
        surface_.font = {"Arial", warningSize * scale_.x, true};
        surface_.moveTo(warningMargin * scale_.x, warningMargin * scale_.y);
        surface_.print(text, colour::lightRed);
    }

  private:
    SurfacePoint at(MapPoint point) const {
        const SurfacePoint place = place_(point);
        return {place.x * scale_.x, place.y * scale_.y};
    }

    PictureSurface& surface_;
    Scale scale_;
    const PlotTransform& place_;
};

} // namespace

PlanMap::PlanMap(const Problem& problem, const Plan& plan) : corner_(cornerFor(problem.corner)) {
    stops_.push_back({problem.depotX, problem.depotY});
    for (const Stop& stop : problem.stops.span()) stops_.push_back({stop.x, stop.y});
    zones_.assign(problem.zones.span().begin(), problem.zones.span().end());
    for (const Barrier& barrier : problem.barriers.span()) barriers_.push_back(cornersOf(barrier));
    for (int r = 1; r <= plan.routeCount; ++r) {
        Points& route = routes_.emplace_back(Points{stops_.front()});
        for (const int stop : plan.routes(r).stops)
            route.push_back({problem.stops(stop).x, problem.stops(stop).y});
    }
}

PlanMap::Points PlanMap::allPoints() const {
    Points points = stops_;
    for (const Zone& zone : zones_) {
        points.push_back({zone.left, zone.top});
        points.push_back({zone.right, zone.bottom});
    }
    for (const Points& barrier : barriers_) points.insert(points.end(), barrier.begin(), barrier.end());
    return points;
}

void PlanMap::draw(PictureSurface& surface, Scale scale, routing::Vantage vantage, MapLayers layers) const {
    const PlotTransform place(allPoints(), vantage, corner_);
    Pen pen(surface, scale, place);
    surface.clear();
    if (layers.zones) std::ranges::for_each(zones_, [&](const Zone& zone) { pen.zone(zone); });
    pen.depot(stops_.front());
    for (std::size_t n = 1; n < stops_.size(); ++n) pen.stop(stops_[n]);
    for (const Points& route : routes_)
        if (route.size() > 1) pen.closedLine(route);
    for (const Points& barrier : barriers_) pen.closedLine(barrier);
    if (layers.warning) pen.warn(pointInBarrierWarning);
    if (!layers.numbers) return;
    pen.text(stops_.front(), halfDepot, "Depot");
    for (std::size_t n = 1; n < stops_.size(); ++n)
        pen.text(stops_[n], stopRadius, format(static_cast<double>(n), "##0"));
}

} // namespace vantore::router
