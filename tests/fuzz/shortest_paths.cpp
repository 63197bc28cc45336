#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "routing/ROUTE/report.h"
#include "tests/routing/ROUTE/plain_route.h"

namespace {

using namespace vantore;

constexpr int mostFuzzedNodes = 40;

/// The bytes are the arcs, three to each: two nodes and a cost. Nodes beyond the list and equal arcs are
/// faults that both sides must find.
route::RouteNetwork networkFrom(const std::uint8_t* data, std::size_t size) {
    route::RouteNetwork network;
    network.originNode = size > 0 ? data[0] % mostFuzzedNodes : 0;
    for (int n = 1; n <= mostFuzzedNodes; ++n)
        network.nodes(++network.nodeCount) = {std::to_string(n), "", std::to_string(n), "1"};
    for (std::size_t at = 1; at + 3 <= size && network.arcCount < route::mostSolvedArcs; at += 3) {
        const int spread = data[at + 2] % 4;
        const double cost = (data[at + 2] / 4 - 1) * (spread == 0 ? 1600.0 : spread / 4.0);
        network.arcs(++network.arcCount) = {data[at] / 6.0, data[at + 1] / 6.0, cost};
    }
    return network;
}

} // namespace

/// Paths, warnings and faults are those of the plain loops.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const route::RouteNetwork network = networkFrom(data, size);
    const route::tests::PlainRun plain = route::tests::plainSolve(network);
    if (const auto fault = route::fault(network)) {
        if (plain.boxes != std::vector<std::string>{*fault}) std::abort();
        return 0;
    }
    const route::Solution solution = route::shortestPaths(network);
    const PrintLines page = route::reportPage(network, solution);
    if (page.lines() != plain.report) std::abort();
    if (route::warnings(network, solution) != plain.boxes) std::abort();
    return 0;
}
