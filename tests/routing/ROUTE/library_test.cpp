#include <gtest/gtest.h>

#include <algorithm>
#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/dijkstra_shortest_paths.hpp>
#include <map>
#include <vector>

#include "routing/ROUTE/method.h"
#include "tests/routing/ROUTE/networks.h"

/// The paths beside those of an independent library.

namespace vantore::route {
namespace {

using Graph = boost::adjacency_list<boost::vecS, boost::vecS, boost::undirectedS, boost::no_property,
                                    boost::property<boost::edge_weight_t, double>>;

constexpr double mostCost = 99999.99;

bool inUse(double cost) {
    return cost > 0 && cost < mostCost;
}

/// The library's distances from the origin to every node number.
std::vector<double> libraryDistances(const RouteNetwork& network) {
    Graph graph(mostNodes + 1);
    for (int i = 1; i <= network.arcCount; ++i) {
        const ArcRow& arc = network.arcs(i);
        if (inUse(arc.cost)) boost::add_edge(arc.first(), arc.second(), arc.cost, graph);
    }
    std::vector<double> distances(mostNodes + 1);
    boost::dijkstra_shortest_paths(graph, network.originNode, boost::distance_map(distances.data()));
    return distances;
}

using ArcCosts = std::map<std::pair<int, int>, double>;

ArcCosts costsInUse(const RouteNetwork& network) {
    ArcCosts costs;
    for (int i = 1; i <= network.arcCount; ++i) {
        const ArcRow& arc = network.arcs(i);
        if (inUse(arc.cost)) costs[std::minmax({arc.first(), arc.second()})] = arc.cost;
    }
    return costs;
}

/// The sum of the arcs along a path; -1 where two of its nodes aren't joined.
double costAlong(const ArcCosts& costs, const std::vector<int>& nodes) {
    double sum = 0;
    for (std::size_t i = 1; i < nodes.size(); ++i) {
        const auto arc = costs.find(std::minmax({nodes[i - 1], nodes[i]}));
        if (arc == costs.end()) return -1;
        sum += arc->second;
    }
    return sum;
}

void expectAsTheLibrary(const RouteNetwork& network) {
    const Solution solution = shortestPaths(network);
    const std::vector<double> distances = libraryDistances(network);
    const ArcCosts costs = costsInUse(network);
    const auto reached = [](double distance) { return distance < mostCost - 1E-6; };
    int connected = 0;
    for (const Path& path : solution.paths) {
        const double distance = distances[static_cast<std::size_t>(path.destination)];
        ASSERT_EQ(path.connected(), reached(distance));
        if (!path.connected()) continue;
        ++connected;
        ASSERT_NEAR(path.cost, distance, 1E-9 * distance);
        ASSERT_EQ(path.nodes.front(), network.originNode);
        ASSERT_EQ(path.nodes.back(), path.destination);
        ASSERT_NEAR(costAlong(costs, path.nodes), path.cost, 1E-9 * distance);
    }
    // The library counts the origin too, at a distance of 0.
    EXPECT_EQ(connected + 1, std::ranges::count_if(distances, reached));
}

TEST(ShortestPathsBesideALibrary, CostTheSameInAThousandNetworks) {
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        const int nodes = 2 + static_cast<int>(seed * 7919 % 499);
        const int arcs = 1 + static_cast<int>(seed * 104729 % 900);
        SCOPED_TRACE(seed);
        expectAsTheLibrary(tests::randomNetwork(nodes, arcs, static_cast<tests::Costs>(seed % 4), seed));
        if (HasFatalFailure()) return;
    }
}

TEST(ShortestPathsBesideALibrary, CostTheSameAtTheLimits) {
    for (unsigned seed = 1; seed <= 20; ++seed)
        expectAsTheLibrary(tests::randomNetwork(mostNodes, mostSolvedArcs, tests::Costs::Cents, seed));
}

} // namespace
} // namespace vantore::route
