#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

#include "bench/strong_tour.h"
#include "routing/ROUTESEQ/method.h"
#include "tests/routing/ROUTESEQ/plain_sequencer.h"
#include "tests/routing/ROUTESEQ/stops.h"

/// The sequencing method: by how much its tours exceed the best ones that a strong method finds, in percent
/// over 40 random problems of each size, and how long 50 stops take beside its own plain loops and the strong
/// method.

namespace {

using namespace vantore::routeseq;
using tests::Pattern;

constexpr unsigned problemCount = 40;
constexpr int starts = 200;
constexpr int mostExactStops = 12;

double seconds(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double ourTour(const Points& points) {
    std::vector<int> tour = {0};
    for (const int stop : shortSequence(points)) tour.push_back(stop);
    for (int& stop : tour) ++stop;
    return tourLength(points, tour);
}

/// The argument is the count of stops; up to 12 the tours are compared with the shortest.
void excess(benchmark::State& state, Pattern pattern) {
    const int stops = static_cast<int>(state.range(0));
    double sum = 0;
    double most = 0;
    for (auto _ : state)
        for (unsigned seed = 1; seed <= problemCount; ++seed) {
            const Points points(tests::randomStops(stops, pattern, 1000 + seed));
            const double best = stops <= mostExactStops ? shortestTour(points) : strongTour(points, starts);
            const double percent = (ourTour(points) / best - 1) * 100;
            if (stops <= mostExactStops && percent < -1E-9) state.SkipWithError("shorter than the shortest");
            sum += percent;
            most = std::max(most, percent);
        }
    state.counters["mean_percent"] = sum / problemCount / static_cast<double>(state.iterations());
    state.counters["most_percent"] = most;
}

void fiftyStops(benchmark::State& state) {
    double ours = 0;
    double plain = 0;
    double strong = 0;
    for (auto _ : state)
        for (unsigned seed = 1; seed <= 10; ++seed) {
            const StopSequencingProblem problem =
                tests::randomStops(mostSolvedStops, Pattern::Scattered, seed);
            auto start = std::chrono::steady_clock::now();
            const std::vector<int> stops = shortSequence(Points(problem));
            ours += seconds(start);
            start = std::chrono::steady_clock::now();
            if (tests::plainSequence(problem) != stops) state.SkipWithError("the sequences differ");
            plain += seconds(start);
            start = std::chrono::steady_clock::now();
            benchmark::DoNotOptimize(strongTour(Points(problem), 1));
            strong += seconds(start);
        }
    state.counters["ours_us"] = ours / static_cast<double>(state.iterations()) / 10 * 1E+6;
    state.counters["ratio_plain"] = plain / ours;
    state.counters["ratio_one_strong_start"] = strong / ours;
}

BENCHMARK(fiftyStops)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(excess, scattered, Pattern::Scattered)
    ->Arg(10)
    ->Arg(20)
    ->Arg(30)
    ->Arg(40)
    ->Arg(50)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(excess, clusters, Pattern::Clusters)
    ->Arg(10)
    ->Arg(20)
    ->Arg(30)
    ->Arg(40)
    ->Arg(50)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
