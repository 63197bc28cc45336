#include <benchmark/benchmark.h>

#include <boost/graph/adjacency_list.hpp>
#include <boost/graph/dijkstra_shortest_paths.hpp>
#include <chrono>
#include <cmath>
#include <vector>

#include "routing/ROUTE/method.h"
#include "tests/routing/ROUTE/networks.h"

/// The shortest paths through the largest networks, 500 nodes and 900 arcs, beside Boost's Dijkstra on the
/// same networks by turns, from the arc list to the cost of every path. Ours gives the paths as well. The
/// ratio says how many times faster ours is.

namespace {

using namespace vantore;
using route::tests::Costs;
using Graph = boost::adjacency_list<boost::vecS, boost::vecS, boost::undirectedS, boost::no_property,
                                    boost::property<boost::edge_weight_t, double>>;

constexpr unsigned networkCount = 10;

double ourSum(const route::RouteNetwork& network) {
    double sum = 0;
    for (const route::Path& path : route::shortestPaths(network).paths) sum += path.cost;
    return sum;
}

double librarySum(const route::RouteNetwork& network) {
    Graph graph(route::mostNodes + 1);
    for (int i = 1; i <= network.arcCount; ++i)
        boost::add_edge(network.arcs(i).first(), network.arcs(i).second(), network.arcs(i).cost, graph);
    std::vector<double> distances(boost::num_vertices(graph));
    boost::dijkstra_shortest_paths(graph, network.originNode, boost::distance_map(distances.data()));
    double sum = 0;
    for (const double distance : distances) sum += distance < 1E+6 ? distance : 0;
    return sum;
}

template <class Sum>
double timed(Sum sumOf, const route::RouteNetwork& network, double& sum) {
    const auto start = std::chrono::steady_clock::now();
    sum = sumOf(network);
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void besideBoost(benchmark::State& state, Costs costs) {
    std::vector<route::RouteNetwork> networks;
    for (unsigned seed = 1; seed <= networkCount; ++seed)
        networks.push_back(route::tests::randomNetwork(route::mostNodes, route::mostSolvedArcs, costs, seed));
    double ours = 0;
    double others = 0;
    for (auto _ : state)
        for (const route::RouteNetwork& network : networks) {
            double sum = 0;
            double otherSum = 0;
            ours += timed(ourSum, network, sum);
            others += timed(librarySum, network, otherSum);
            if (std::abs(sum - otherSum) > 1E-9 * sum) state.SkipWithError("the costs differ");
        }
    const double solves = static_cast<double>(state.iterations()) * networkCount;
    state.counters["ours_us"] = ours / solves * 1E+6;
    state.counters["other_us"] = others / solves * 1E+6;
    state.counters["ratio"] = others / ours;
}

BENCHMARK_CAPTURE(besideBoost, few, Costs::Few);
BENCHMARK_CAPTURE(besideBoost, cents, Costs::Cents);
BENCHMARK_CAPTURE(besideBoost, fractional, Costs::Fractional);

} // namespace
