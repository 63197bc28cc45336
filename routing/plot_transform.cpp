#include "routing/plot_transform.h"

#include <algorithm>
#include <cctype>

#include "shell/base/arithmetic.h"

namespace vantore::routing {

namespace {

constexpr double areaWidth = 632; // units of the design
constexpr double areaHeight = 448;
constexpr SurfacePoint centre = {320, 232};
constexpr double zoomStep = .2;
constexpr double leastZoom = .05; // half of the smallest zoom that whole steps reach
constexpr double panStep = 25;

/// Smallest and largest coordinates. A map of which all coordinates are negative reaches to 0.
struct Extremes {
    MapPoint smallest = {99999, 99999};
    MapPoint largest = {0, 0};
};

Extremes extremesOf(std::span<const MapPoint> points) {
    Extremes extremes;
    for (const MapPoint& point : points) {
        extremes.smallest.x = std::min(extremes.smallest.x, point.x);
        extremes.smallest.y = std::min(extremes.smallest.y, point.y);
        extremes.largest.x = std::max(extremes.largest.x, point.x);
        extremes.largest.y = std::max(extremes.largest.y, point.y);
    }
    return extremes;
}

/// The smaller of the scales that fill the area's width and its height; an axis without a range sets none.
double scaleFor(double rangeX, double rangeY) {
    if (rangeX == 0 && rangeY == 0) return 1;
    return areaWidth * rangeY < areaHeight * rangeX ? divide(areaWidth, rangeX) : divide(areaHeight, rangeY);
}

double middle(double a, double b) {
    return (a + b) / 2;
}

} // namespace

Vantage stepped(Vantage from, char step) {
    switch (std::toupper(static_cast<unsigned char>(step))) {
    case '+': from.zoom += zoomStep; break;
    case '-': from.zoom = from.zoom - zoomStep > leastZoom ? from.zoom - zoomStep : from.zoom; break;
    case 'U': from.panY -= panStep; break;
    case 'D': from.panY += panStep; break;
    case 'L': from.panX -= panStep; break;
    case 'R': from.panX += panStep; break;
    case 'O': from = {}; break;
    default: break;
    }
    return from;
}

PlotTransform::PlotTransform(std::span<const MapPoint> points, Vantage vantage, GridCorner corner) {
    const Extremes extremes = extremesOf(points);
    const double unit = vantage.zoom * scaleFor(finite(extremes.largest.x - extremes.smallest.x),
                                                finite(extremes.largest.y - extremes.smallest.y));
    reference_.x = corner.east ? extremes.largest.x : extremes.smallest.x;
    reference_.y = corner.north ? extremes.smallest.y : extremes.largest.y;
    unitX_ = corner.east ? -unit : unit;
    unitY_ = corner.north ? unit : -unit;
    if (points.empty()) return;
    SurfacePoint first = unmoved(points.front());
    SurfacePoint last = first;
    for (const MapPoint& point : points) {
        const SurfacePoint place = unmoved(point);
        first = {std::min(first.x, place.x), std::min(first.y, place.y)};
        last = {std::max(last.x, place.x), std::max(last.y, place.y)};
    }
    shift_ = {centre.x - middle(first.x, last.x) + vantage.panX,
              centre.y - middle(first.y, last.y) + vantage.panY};
}

SurfacePoint PlotTransform::unmoved(MapPoint point) const {
    return {finite((point.x - reference_.x) * unitX_), finite((point.y - reference_.y) * unitY_)};
}

SurfacePoint PlotTransform::operator()(MapPoint point) const {
    const SurfacePoint place = unmoved(point);
    return {place.x + shift_.x, place.y + shift_.y};
}

} // namespace vantore::routing
