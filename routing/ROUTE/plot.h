#pragma once

#include <optional>
#include <vector>

#include "routing/ROUTE/method.h"
#include "routing/plot_transform.h"
#include "shell/forms/picture_surface.h"

namespace vantore::route {

/// The network as it is drawn: where each node lies, and which nodes are joined.
class NetworkMap {
  public:
    /// Of nodes with equal numbers the first row counts. Arcs with an end that isn't in the node list are
    /// left out.
    explicit NetworkMap(const RouteNetwork& network);

    /// Clears the surface and draws the arcs, then the nodes with their numbers, the origin's in red.
    void draw(PictureSurface& surface, Scale scale, routing::Vantage vantage) const;

    /// Draws a path in thick red lines and prints its cost. Nothing when one of its nodes isn't on the map.
    void drawPath(PictureSurface& surface, Scale scale, routing::Vantage vantage, const Path& path) const;

    /// True for a path along the map's arcs at their cost, to the hundredth.
    bool leadsAlong(const Path& path) const;

  private:
    struct Node {
        int number = 0;
        routing::MapPoint point;
    };
    struct Arc {
        Node first;
        Node second;
        double cost = 0;

        bool joins(int a, int b) const;
    };

    const Node* find(int number) const;
    const Arc* arcBetween(int a, int b) const;
    routing::PlotTransform transform(routing::Vantage vantage) const;

    std::vector<Node> nodes_;
    std::vector<Arc> arcs_;
    int origin_;
};

} // namespace vantore::route
