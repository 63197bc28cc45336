#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <cstdlib>

#include "demand/FORECAST/method.h"
#include "tests/demand/FORECAST/plain_loops.h"

namespace vantore::forecast {
namespace {

constexpr double pi = 3.14159265358979323846;

/// 200 monthly periods with a trend, a season of 12 and noise from a linear congruential generator.
Problem monthlySales(Model model) {
    Problem problem;
    problem.label = "Monthly sales";
    problem.dataPeriods = mostPeriods;
    problem.initialPeriods = 24;
    problem.errorPeriods = 176;
    problem.model = model;
    problem.search = "Y";
    problem.searchIncrement = .01;
    problem.seasonalLength = 12;
    problem.forecastPeriods = 12;
    unsigned state = 1;
    for (int t = 1; t <= problem.dataPeriods; ++t) {
        state = state * 1664525U + 1013904223U;
        const double noise = 1 + .1 * (static_cast<double>(state >> 16) / 65536 - .5);
        problem.periods(t).value = std::round((500 + 4 * t) * (1 + .3 * std::sin(2 * pi * t / 12)) * noise);
    }
    return problem;
}

double secondsOf(const auto& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

Model modelOf(const benchmark::State& state) {
    return static_cast<Model>(state.range(0));
}

/// A whole Solve with the search at increment 0.01, as the window runs it.
void forecastWithSearch(benchmark::State& state) {
    const Problem problem = monthlySales(modelOf(state));
    for (auto _ : state) benchmark::DoNotOptimize(forecast(problem));
}
BENCHMARK(forecastWithSearch)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

/// The same by plain loops.
void plainLoops(benchmark::State& state) {
    const Problem problem = monthlySales(modelOf(state));
    for (auto _ : state) benchmark::DoNotOptimize(tests::plainForecast(problem));
}
BENCHMARK(plainLoops)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

/// Both in turn, so that whatever else the machine does meets both: `ratio` is plain time over ours. It stops
/// where the two don't come to the same constants and measures.
void plainOverOurs(benchmark::State& state) {
    const Problem problem = monthlySales(modelOf(state));
    double ours = 0, plain = 0;
    for (auto _ : state) {
        Forecast mine;
        tests::PlainResult theirs;
        ours += secondsOf([&] { mine = forecast(problem); });
        plain += secondsOf([&] { theirs = tests::plainForecast(problem); });
        if (mine.constants.level != theirs.constants.level || mine.errors.rmse != theirs.errors.rmse)
            state.SkipWithError("the results differ");
    }
    const auto runs = static_cast<double>(state.iterations());
    state.counters["ours_ms"] = 1000 * ours / runs;
    state.counters["plain_ms"] = 1000 * plain / runs;
    state.counters["ratio"] = plain / ours;
}
BENCHMARK(plainOverOurs)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vantore::forecast
