#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "routing/ROUTESEQ/method.h"
#include "tests/routing/ROUTESEQ/plain_sequencer.h"

namespace {

using namespace vantore;

/// The bytes are coordinates on a coarse grid, so that points coincide and lie in lines; every eighth is
/// moved by less than the method can see.
double coordinateFrom(std::uint8_t byte) {
    return byte % 8 == 7 ? byte / 8 + 3E-8 : byte / 8;
}

routeseq::StopSequencingProblem problemFrom(const std::uint8_t* data, std::size_t size) {
    routeseq::StopSequencingProblem problem;
    for (std::size_t at = 0; at + 2 <= size && problem.stopCount < routeseq::mostSolvedStops; at += 2)
        problem.stops(++problem.stopCount) = {"", coordinateFrom(data[at]), coordinateFrom(data[at + 1])};
    return problem;
}

} // namespace

/// Each stop is visited once, in the order of the plain loops.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const routeseq::StopSequencingProblem problem = problemFrom(data, size);
    if (problem.stopCount == 0) return 0;
    std::vector<int> stops = routeseq::shortSequence(routeseq::Points(problem));
    if (stops != routeseq::tests::plainSequence(problem)) std::abort();
    std::sort(stops.begin(), stops.end());
    for (int stop = 1; stop <= problem.stopCount; ++stop)
        if (stops.at(static_cast<std::size_t>(stop - 1)) != stop) std::abort();
    return 0;
}
