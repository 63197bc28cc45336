#include "routing/ROUTER/detour.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace vantore::router {

namespace {

/// A straight line between two places, as a formula.
struct Line {
    enum class Kind { Point, Vertical, Horizontal, Sloped };

    Line(Place from, Place to) : start(from), end(to) {
        if (start.x == end.x && start.y == end.y)
            kind = Kind::Point;
        else if (start.x == end.x)
            kind = Kind::Vertical;
        else if (start.y == end.y)
            kind = Kind::Horizontal;
        if (kind != Kind::Sloped) return;
        slope = (end.y - start.y) / (end.x - start.x);
        intercept = start.y - slope * start.x;
    }

    double yAt(double x) const { return kind == Kind::Horizontal ? start.y : slope * x + intercept; }
    double xAt(double y) const { return (y - intercept) / slope; }

    /// Whether a place on the line lies between its ends, these included.
    bool holds(Place place) const {
        const auto [left, right] = std::minmax(start.x, end.x);
        const auto [bottom, top] = std::minmax(start.y, end.y);
        return place.x >= left && place.x <= right && place.y >= bottom && place.y <= top;
    }

    Place start, end;
    Kind kind = Kind::Sloped;
    double slope = 0;
    double intercept = 0;
};

constexpr std::size_t edgeCount = 4;
constexpr Place beyondTheMap{9999, 9999}; // where an edge without length meets every line

/// An edge of a barrier, with the place where the way crosses it.
struct Edge {
    Line line;
    double length = 0;
    std::optional<Place> crossing = {};
    double crossedAfter = 0; ///< distance of the crossing from the edge's start
};

/// In the order of the way round: 1 and 2 are passed from start to end, 3 and 4 from end to start.
std::array<Edge, edgeCount> edgesOf(const Barrier& barrier, GridScale scale) {
    const Place northwest{barrier.northwestX, barrier.northwestY};
    const Place northeast{barrier.northeastX, barrier.northeastY};
    const Place southwest{barrier.southwestX, barrier.southwestY};
    const Place southeast{barrier.southeastX, barrier.southeastY};
    const auto edge = [scale](Place start, Place end) {
        return Edge{Line(start, end), straightDistance(start, end, scale)};
    };
    return {edge(southeast, southwest), edge(southwest, northwest), edge(northeast, northwest),
            edge(southeast, northeast)};
}

/// Whether a way may meet a barrier at all. Most are far from each other, and this is soon known.
bool mayMeet(const Barrier& barrier, Place from, Place to) {
    const auto [left, right] =
        std::minmax({barrier.northwestX, barrier.northeastX, barrier.southwestX, barrier.southeastX});
    const auto [bottom, top] =
        std::minmax({barrier.northwestY, barrier.northeastY, barrier.southwestY, barrier.southeastY});
    return std::max(from.x, to.x) >= left && std::min(from.x, to.x) <= right &&
           std::max(from.y, to.y) >= bottom && std::min(from.y, to.y) <= top;
}

/// Both vertical or both horizontal, and on one line.
bool runsAlong(const Line& way, const Line& edge) {
    if (way.kind != edge.kind) return false;
    return (way.kind == Line::Kind::Vertical && way.start.x == edge.start.x) ||
           (way.kind == Line::Kind::Horizontal && way.start.y == edge.start.y);
}

bool isParallel(const Line& way, const Line& edge) {
    return way.kind == edge.kind && (way.kind != Line::Kind::Sloped || way.slope == edge.slope);
}

/// The common place of two lines that aren't parallel, however long they are.
Place intersection(const Line& way, const Line& edge) {
    using Kind = Line::Kind;
    if (edge.kind == Kind::Point) return beyondTheMap;
    if (edge.kind == Kind::Vertical) return {edge.start.x, way.yAt(edge.start.x)};
    if (way.kind == Kind::Vertical) return {way.start.x, edge.yAt(way.start.x)};
    if (edge.kind == Kind::Horizontal) return {way.xAt(edge.start.y), edge.start.y};
    if (way.kind == Kind::Horizontal) return {edge.xAt(way.start.y), way.start.y};
    const double x = (edge.intercept - way.intercept) / (way.slope - edge.slope);
    return {x, way.yAt(x)};
}

bool isCrossed(const Edge& edge) {
    return edge.crossing.has_value();
}

void markCrossing(Edge& edge, const Line& way, GridScale scale) {
    if (isParallel(way, edge.line)) return;
    const Place place = intersection(way, edge.line);
    if (!way.holds(place) || !edge.line.holds(place)) return;
    edge.crossing = place;
    edge.crossedAfter = straightDistance(edge.line.start, place, scale);
}

/// A way through a corner crosses both edges there; the second one is left out.
void unmarkCommonCorners(std::array<Edge, edgeCount>& edges) {
    for (std::size_t i = 1; i < edgeCount; ++i)
        if (isCrossed(edges[i - 1]) && isCrossed(edges[i])) edges[i].crossing.reset();
}

/// The way along the edges from one crossing to a later one.
double wayRound(const std::array<Edge, edgeCount>& edges, std::size_t from, std::size_t to) {
    const auto isPassedForwards = [](std::size_t i) { return i < 2; };
    double way =
        isPassedForwards(from) ? edges[from].length - edges[from].crossedAfter : edges[from].crossedAfter;
    for (std::size_t i = from + 1; i < to; ++i) way += edges[i].length;
    if (isPassedForwards(to)) return way + edges[to].crossedAfter;
    return way + edges[to].length - edges[to].crossedAfter;
}

double shorterDetour(const std::array<Edge, edgeCount>& edges, GridScale scale) {
    const auto first = std::find_if(edges.begin(), edges.end(), isCrossed);
    const auto second = std::find_if(first + 1, edges.end(), isCrossed);
    double perimeter = 0;
    for (const Edge& edge : edges) perimeter += edge.length;
    const double way = wayRound(edges, static_cast<std::size_t>(first - edges.begin()),
                                static_cast<std::size_t>(second - edges.begin()));
    const double chord = straightDistance(*first->crossing, *second->crossing, scale);
    return way < perimeter - way ? way - chord : perimeter - way - chord;
}

} // namespace

double straightDistance(Place a, Place b, GridScale scale) {
    const double across = (a.x - b.x) * scale.horizontal;
    const double up = (a.y - b.y) * scale.vertical;
    return std::sqrt(across * across + up * up);
}

BarrierEffect barrierEffect(const Barrier& barrier, Place from, Place to, GridScale scale) {
    if (!mayMeet(barrier, from, to)) return {};
    const Line way(from, to);
    auto edges = edgesOf(barrier, scale);
    for (Edge& edge : edges) {
        if (runsAlong(way, edge.line)) return {};
        markCrossing(edge, way, scale);
    }
    const auto crossings = std::ranges::count_if(edges, isCrossed);
    if (crossings == 0) return {};
    if (crossings == 1) return {.detour = 0, .endsInside = true};
    if (crossings > 2) unmarkCommonCorners(edges);
    return {shorterDetour(edges, scale), false};
}

} // namespace vantore::router
