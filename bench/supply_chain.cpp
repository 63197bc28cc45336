#include <benchmark/benchmark.h>

#include <string>

#include "simulator/SCSIM/method.h"
#include "simulator/SCSIM/trace.h"
#include "tests/simulator/SCSIM/plain_channel.h"

namespace vantore::scsim {
namespace {

/// All levels calculate their reorder points day by day, from exponential smoothing; times vary.
Problem calculatedReorderPoints(int years) {
    Problem problem;
    problem.title = "Bench";
    problem.seed = 1961;
    problem.years = years;
    problem.averageDemand = 100;
    problem.demandDeviation = 20;
    problem.growth = 2;
    problem.price = 25;
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = .9 + month / 60.0;
    for (const Level level : allLevels) {
        LevelData& data = problem.levels(level);
        data = {10, .25, 5, 25, 2, .5, 95, 3};
        data.smoothingConstant = .1;
        data.reorderParameters = Parameters::Calculated;
        problem.lanes(level) = {.3, 3, .7};
    }
    problem.factory = {3.5, 100, .1, 4, 1, 1.2};
    return problem;
}

const Answers noQuestions = {[](const ForecastQuestion&) { return std::nullopt; },
                             [](const OrdersQuestion&) { return false; }};

void simulateYears(benchmark::State& state) {
    const Problem problem = calculatedReorderPoints(static_cast<int>(state.range(0)));
    UniformGenerator uniforms;
    RunFigures figures;
    for (auto _ : state) {
        if (simulate(problem, uniforms, noQuestions, {}, figures) != Ending::Complete)
            state.SkipWithError("the run stopped");
        benchmark::DoNotOptimize(figures);
    }
    state.counters["runs"] =
        benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(simulateYears)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond);

/// With the trace as the window writes it, but for the file.
void simulateAndTrace(benchmark::State& state) {
    const Problem problem = calculatedReorderPoints(static_cast<int>(state.range(0)));
    UniformGenerator uniforms;
    RunFigures figures;
    for (auto _ : state) {
        std::vector<std::string> lines = traceHeading();
        const Watchers watchers = {
            .trace = [&lines](const TraceRow& row) { lines.push_back(traceLine(row)); }, .dayStarts = {}};
        simulate(problem, uniforms, noQuestions, watchers, figures);
        benchmark::DoNotOptimize(lines);
    }
}
BENCHMARK(simulateAndTrace)->Arg(20)->Unit(benchmark::kMillisecond);

/// The tests' plain program on the same channel.
void plainYears(benchmark::State& state) {
    const Problem problem = calculatedReorderPoints(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        tests::PlainChannel plain(problem, {});
        if (plain.run() != 0) state.SkipWithError("the run stopped");
        benchmark::DoNotOptimize(plain);
    }
}
BENCHMARK(plainYears)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vantore::scsim
