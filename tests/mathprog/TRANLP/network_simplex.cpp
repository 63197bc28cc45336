#include "tests/mathprog/TRANLP/network_simplex.h"

#include <lemon/network_simplex.h>
#include <lemon/smart_graph.h>

#include <stdexcept>
#include <vector>

namespace vantore::tests {

double networkSimplexCost(const tranlp::Tableau& tableau) {
    using Graph = lemon::SmartDigraph;
    Graph graph;
    graph.reserveNode(tableau.rows + tableau.cols);
    graph.reserveArc(tableau.rows * tableau.cols);
    Graph::NodeMap<std::int64_t> supply(graph);
    Graph::ArcMap<double> cost(graph);
    std::vector<Graph::Node> rows, cols;
    for (int i = 1; i <= tableau.rows; ++i) supply[rows.emplace_back(graph.addNode())] = tableau.unitsLeft(i);
    for (int j = 1; j <= tableau.cols; ++j) supply[cols.emplace_back(graph.addNode())] = -tableau.needLeft(j);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto costs = tableau.reduced.row(static_cast<int>(i) + 1);
        for (std::size_t j = 0; j < cols.size(); ++j) cost[graph.addArc(rows[i], cols[j])] = costs[j + 1];
    }
    lemon::NetworkSimplex<Graph, std::int64_t, double> simplex(graph);
    simplex.costMap(cost).supplyMap(supply);
    if (simplex.run() != lemon::NetworkSimplex<Graph, std::int64_t, double>::OPTIMAL)
        throw std::runtime_error("the network simplex method found no optimum");
    return simplex.totalCost<double>();
}

} // namespace vantore::tests
