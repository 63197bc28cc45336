#include "tests/routing/ROUTE/networks.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <set>
#include <vector>

#include "shell/base/number_text.h"

namespace vantore::route::tests {

namespace {

using Random = std::mt19937;

int between(Random& random, int least, int most) {
    return least + static_cast<int>(random() % static_cast<unsigned>(most - least + 1));
}

double costOf(Costs costs, Random& random) {
    switch (costs) {
    case Costs::Few: return between(random, 1, 4);
    case Costs::Cents: return between(random, 1, 2000) / 100.0;
    case Costs::Fractional: return std::uniform_real_distribution<double>(0, 50)(random);
    case Costs::Wide: return between(random, 0, 3) == 0 ? between(random, -1, 1) : between(random, 1, 110000);
    }
    return 0;
}

void listNodes(RouteNetwork& network, int nodes, Random& random) {
    std::vector<int> numbers(mostNodes);
    std::iota(numbers.begin(), numbers.end(), 1);
    std::shuffle(numbers.begin(), numbers.end(), random);
    for (int i = 1; i <= nodes; ++i) {
        const std::string number = defaultText(numbers[static_cast<std::size_t>(i - 1)]);
        network.nodes(i) = {number, "Node " + number, defaultText(between(random, 1, 500)),
                            defaultText(between(random, 0, 300))};
    }
    network.nodeCount = nodes;
}

void joinNodes(RouteNetwork& network, int arcs, Costs costs, Random& random) {
    std::set<std::pair<int, int>> used;
    const int most = std::min(arcs, network.nodeCount * (network.nodeCount - 1) / 2);
    while (network.arcCount < most) {
        const int a = between(random, 1, network.nodeCount);
        const int b = between(random, 1, network.nodeCount);
        if (a == b || !used.insert(std::minmax(a, b)).second) continue;
        network.arcs(++network.arcCount) = {val(network.nodes(a).number), val(network.nodes(b).number),
                                            costOf(costs, random)};
    }
}

void putFault(RouteNetwork& network, Random& random) {
    ArcRow& arc = network.arcs(between(random, 1, network.arcCount));
    const ArcRow other = network.arcs(between(random, 1, network.arcCount));
    switch (between(random, 0, 12)) {
    case 0: network.originNode = between(random, -2, 505); break;
    case 1: arc = other; break;
    case 2: arc = {other.secondNode, other.firstNode, 1}; break;
    case 3: arc.secondNode = arc.firstNode; break;
    case 4: arc.firstNode = between(random, -1, 1); break;
    case 5: arc.firstNode = 501; break;
    case 6: arc.secondNode = .5; break;
    case 7: arc.secondNode = 700; break;
    case 8: arc.firstNode = between(random, 1, 500); break;
    case 9: arc.secondNode = between(random, 1, 500); break;
    case 10:
        for (int i = 1; i <= network.nodeCount; ++i) network.nodes(i).x = network.nodes(i).y = "0";
        break;
    case 11:
        for (int i = 1; i <= network.arcCount; ++i) network.arcs(i).cost = -1;
        break;
    default: network.nodes(between(random, 1, network.nodeCount)).number = "500"; break;
    }
}

} // namespace

RouteNetwork networkOf(int nodes, int origin, std::initializer_list<ArcRow> arcs) {
    RouteNetwork network;
    network.title = "Sample";
    network.originNode = origin;
    for (int n = 1; n <= nodes; ++n) {
        const std::string number = defaultText(n);
        network.nodes(n) = {number, "N" + number, number, defaultText(2 * n)};
    }
    network.nodeCount = nodes;
    for (const ArcRow& arc : arcs) network.arcs(++network.arcCount) = arc;
    return network;
}

RouteNetwork randomNetwork(int nodes, int arcs, Costs costs, unsigned seed) {
    Random random(seed);
    RouteNetwork network;
    network.title = "Random " + defaultText(seed);
    listNodes(network, nodes, random);
    joinNodes(network, arcs, costs, random);
    network.arcs(1).cost = 1; // at least one arc must have a cost
    network.originNode = network.arcs(between(random, 1, network.arcCount)).first();
    return network;
}

RouteNetwork faultyNetwork(int nodes, int arcs, unsigned seed) {
    RouteNetwork network = randomNetwork(nodes, arcs, Costs::Few, seed);
    Random random(seed);
    const int faults = between(random, 1, 3);
    for (int i = 0; i < faults; ++i) putFault(network, random);
    return network;
}

} // namespace vantore::route::tests
