#include "routing/ROUTE/plot.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "shell/base/number_text.h"

namespace vantore::route {

using routing::MapPoint;
using routing::PlotTransform;
using routing::SurfacePoint;
using routing::Vantage;

namespace {

constexpr double nodeRadius = 3; // units of the design
constexpr double labelRight = 5; // from a node's centre to its number
constexpr double labelUp = 13;
constexpr double labelSize = 8; // points
constexpr double costSize = 10;
constexpr double pathWidth = 3;

void drawLine(PictureSurface& surface, Scale scale, SurfacePoint from, SurfacePoint to, int colour,
              double width = 1) {
    surface.line(from.x * scale.x, from.y * scale.y, to.x * scale.x, to.y * scale.y, colour, width);
}

void drawNode(PictureSurface& surface, Scale scale, SurfacePoint at, int number, bool origin) {
    surface.circle(at.x * scale.x, at.y * scale.y, nodeRadius * scale.x, colour::black, true);
    surface.font = {"Arial", labelSize * scale.x, origin};
    surface.moveTo((at.x + labelRight) * scale.x, (at.y - labelUp) * scale.y);
    surface.print(format(number, "###0"), origin ? colour::lightRed : colour::black);
}

} // namespace

NetworkMap::NetworkMap(const RouteNetwork& network) : origin_(network.originNode) {
    for (const NodeRow& row : network.listedNodes())
        nodes_.push_back({nodeNumber(row), {val(row.x), val(row.y)}});
    for (int i = 1; i <= network.arcCount; ++i) {
        const Node* first = find(network.arcs(i).first());
        const Node* second = find(network.arcs(i).second());
        if (first != nullptr && second != nullptr) arcs_.push_back({*first, *second, network.arcs(i).cost});
    }
}

const NetworkMap::Node* NetworkMap::find(int number) const {
    const auto found = std::ranges::find(nodes_, number, &Node::number);
    return found == nodes_.end() ? nullptr : &*found;
}

bool NetworkMap::Arc::joins(int a, int b) const {
    return (first.number == a && second.number == b) || (first.number == b && second.number == a);
}

const NetworkMap::Arc* NetworkMap::arcBetween(int a, int b) const {
    const auto found = std::ranges::find_if(arcs_, [&](const Arc& arc) { return arc.joins(a, b); });
    return found == arcs_.end() ? nullptr : &*found;
}

bool NetworkMap::leadsAlong(const Path& path) const {
    double cost = 0;
    for (std::size_t i = 1; i < path.nodes.size(); ++i) {
        const Arc* arc = arcBetween(path.nodes[i - 1], path.nodes[i]);
        if (arc == nullptr) return false;
        cost += arc->cost;
    }
    return std::abs(cost - path.cost) < .005;
}

PlotTransform NetworkMap::transform(Vantage vantage) const {
    std::vector<MapPoint> points;
    for (const Node& node : nodes_) points.push_back(node.point);
    return {points, vantage};
}

void NetworkMap::draw(PictureSurface& surface, Scale scale, Vantage vantage) const {
    const PlotTransform place = transform(vantage);
    surface.clear();
    for (const Arc& arc : arcs_)
        drawLine(surface, scale, place(arc.first.point), place(arc.second.point), colour::black);
    for (const Node& node : nodes_)
        drawNode(surface, scale, place(node.point), node.number, node.number == origin_);
}

void NetworkMap::drawPath(PictureSurface& surface, Scale scale, Vantage vantage, const Path& path) const {
    std::vector<SurfacePoint> places;
    const PlotTransform place = transform(vantage);
    for (const int number : path.nodes) {
        const Node* node = find(number);
        if (node == nullptr) return;
        places.push_back(place(node->point));
    }
    for (std::size_t i = 1; i < places.size(); ++i)
        drawLine(surface, scale, places[i - 1], places[i], colour::lightRed, pathWidth);
    surface.font = {"Arial", costSize * scale.x, false};
    surface.moveTo(2 * scale.x, 2 * scale.y);
    surface.print("Total route cost: " + format(path.cost, "###,##0.00"), colour::lightRed);
}

} // namespace vantore::route
