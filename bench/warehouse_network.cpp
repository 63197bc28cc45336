#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "solvers/WARELO/evaluate.h"
#include "solvers/WARELO/network.h"
#include "solvers/WARELO/search.h"

/// WARELO.EXE's search on the base case and on random selections of its plants and warehouses: the gap
/// between the cost and the proven lower bound in thousandths of a percent, on the average and at most, how
/// many selections are proved within a thousandth of a percent, and how many aren't within a tenth.

namespace {

using namespace vantore;

wareloca::Case baseCase() {
    return warelo::readCase(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install");
}

double gapOf(const wareloca::Case& problem) {
    warelo::Found best;
    warelo::search(warelo::networkOf(problem), [&](const warelo::Found& found) { best = found; });
    return best.gap();
}

void baseCaseGap(benchmark::State& state) {
    const wareloca::Case problem = baseCase();
    double gap = 0;
    for (auto _ : state) gap = gapOf(problem);
    state.counters["gap_per_100000"] = gap * 1E+5;
}

/// Selects plants by the toss of a coin, until their capacity suffices, and so many warehouses.
wareloca::Case selection(std::mt19937& random, int warehouses) {
    wareloca::Case problem = baseCase();
    std::vector<int> rows;
    for (int w = 1; w <= problem.warehouseCount; ++w) {
        problem.warehouses(w).selection.clear();
        rows.push_back(w);
    }
    std::shuffle(rows.begin(), rows.end(), random);
    for (int i = 0; i < warehouses; ++i)
        problem.warehouses(rows[static_cast<std::size_t>(i)]).selection = mark;
    do
        for (int p = 1; p <= problem.plantCount; ++p)
            problem.plants(p).selection = random() % 2 == 0 ? mark : "";
    while (warelo::faultIn(problem));
    return problem;
}

/// The arguments are the count of warehouses and the seed.
void randomSelections(benchmark::State& state) {
    constexpr int selections = 100;
    double sum = 0, most = 0;
    int closest = 0, wide = 0;
    for (auto _ : state) {
        std::mt19937 random(static_cast<unsigned>(state.range(1)));
        for (int i = 0; i < selections; ++i) {
            const double gap = gapOf(selection(random, static_cast<int>(state.range(0)))) * 1E+5;
            sum += gap;
            most = std::max(most, gap);
            closest += gap <= 1 ? 1 : 0;
            wide += gap > 100 ? 1 : 0;
        }
    }
    state.counters["mean_per_100000"] = sum / selections;
    state.counters["most_per_100000"] = most;
    state.counters["within_1_per_100000"] = closest;
    state.counters["beyond_100_per_100000"] = wide;
}

BENCHMARK(baseCaseGap)->Unit(benchmark::kMillisecond);
BENCHMARK(randomSelections)
    ->ArgsProduct({{5, 18, 48}, {1, 2, 3, 4, 5}})
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

} // namespace
