#pragma once

#include <vector>

#include "routing/ROUTE/problem.h"

namespace vantore::route {

/// The cheapest path from the origin to one node, both ends included. A node that the origin doesn't reach
/// has an empty path.
struct Path {
    int destination = 0;
    double cost = 0;
    std::vector<int> nodes;

    bool connected() const { return !nodes.empty(); }
};

struct Solution {
    int nodeCount = 0; ///< nodes that the arcs in use join
    int arcCount = 0;  ///< arcs in use
    bool originConnected = false;
    std::vector<Path> paths; ///< to every other node, by ascending number; none when the origin isn't joined
};

/// The cheapest paths from the origin to all nodes, by label setting on the forward star of the network. Arcs
/// with a cost of 0 or less, or of 99999.99 and more, are left out, and paths that cost so much aren't found.
///
/// Of equally cheap paths the one found last is kept. The candidate with the smallest label comes next, of
/// equal ones the first in the list; its place in the list goes to the last. A node's arcs are looked at in
/// the reverse of their order. These rules decide between equal paths.
///
/// At most 900 arcs; SubscriptOutOfRange beyond. O(n^2 + m) for n nodes and m arcs.
/// Source: Dijkstra, "A note on two problems in connexion with graphs" (1959).
Solution shortestPaths(const RouteNetwork& network);

} // namespace vantore::route
