#include "tests/routing/ROUTESEQ/stops.h"

#include <iterator>
#include <random>

namespace vantore::routeseq::tests {

namespace {

using Random = std::mt19937;

double within(Random& random, double most) {
    return std::uniform_real_distribution<double>(-most, most)(random);
}

double whole(Random& random, int most) {
    return static_cast<double>(random() % static_cast<unsigned>(most + 1));
}

/// A whole number, moved by about as much as the method takes for nothing.
double nearly(Random& random) {
    constexpr double hairs[] = {0, 0, 3E-8, -3E-8, 2E-7, 3E-6, 9E-6, 2E-5};
    const double number = whole(random, 4);
    return number + hairs[random() % std::size(hairs)];
}

Spot spotOf(Pattern pattern, Random& random) {
    switch (pattern) {
    case Pattern::Scattered: return {within(random, 100), within(random, 100)};
    case Pattern::Grid: return {whole(random, 7), whole(random, 7)};
    case Pattern::Clusters: {
        const double x = whole(random, 2) * 40;
        const double y = whole(random, 2) * 40;
        return {x + within(random, 3), y + within(random, 3)};
    }
    case Pattern::Street: return {whole(random, 60), random() % 6 == 0 ? 1.0 : 0.0};
    case Pattern::Hairline: return {nearly(random), nearly(random)};
    case Pattern::Far: return {80000 + within(random, 60000), within(random, 60000)};
    }
    return {};
}

} // namespace

StopSequencingProblem stopsAt(Spot depot, std::initializer_list<Spot> stops) {
    StopSequencingProblem problem;
    problem.label = "Sample";
    problem.depotX = depot.x;
    problem.depotY = depot.y;
    for (const Spot& spot : stops) problem.stops(++problem.stopCount) = {"Stop", spot.x, spot.y};
    return problem;
}

StopSequencingProblem randomStops(int stops, Pattern pattern, unsigned seed) {
    Random random(seed);
    StopSequencingProblem problem = stopsAt(spotOf(pattern, random), {});
    while (problem.stopCount < stops) {
        const Spot spot = spotOf(pattern, random);
        problem.stops(++problem.stopCount) = {"Stop", spot.x, spot.y};
    }
    return problem;
}

} // namespace vantore::routeseq::tests
