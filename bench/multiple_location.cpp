#include <benchmark/benchmark.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

#include "location/MCOG/method.h"
#include "tests/location/MCOG/problems.h"

/// The multiple centre-of-gravity method: by how much its total cost exceeds the best of many random starts,
/// in percent over random problems of each size, and in how many of them by more than 1 percent.

namespace {

using namespace vantore::mcog;

constexpr int problemCount = 100;
constexpr int starts = 200;

/// The same alternation from facilities at points drawn at random.
double costFromRandomStart(const Problem& problem, int facilities, std::mt19937& random) {
    std::vector<int> points(static_cast<std::size_t>(problem.rowCount));
    std::iota(points.begin(), points.end(), 1);
    std::shuffle(points.begin(), points.end(), random);
    Plan plan;
    plan.facilityCount = facilities;
    for (int j = 1; j <= facilities; ++j) {
        const Point& point = problem.points(points.at(static_cast<std::size_t>(j - 1)));
        plan.facilities(j).location = {point.x, point.y};
    }
    reallocate(problem, plan);
    return improved(problem, plan).totalCost;
}

/// The arguments are the counts of points and of facilities.
void excess(benchmark::State& state) {
    const int points = static_cast<int>(state.range(0));
    const int facilities = static_cast<int>(state.range(1));
    double sum = 0;
    double most = 0;
    int overOnePercent = 0;
    for (auto _ : state)
        for (unsigned seed = 1; seed <= problemCount; ++seed) {
            std::mt19937 random(seed);
            const Problem problem = tests::spreadProblem(random, points);
            const double ours = located(problem, facilities).totalCost;
            double best = ours;
            for (int start = 0; start < starts; ++start)
                best = std::min(best, costFromRandomStart(problem, facilities, random));
            const double percent = (ours / best - 1) * 100;
            sum += percent;
            most = std::max(most, percent);
            overOnePercent += percent > 1 ? 1 : 0;
        }
    state.counters["mean_percent"] = sum / problemCount;
    state.counters["most_percent"] = most;
    state.counters["over_1_percent"] = overOnePercent;
}

BENCHMARK(excess)->Args({20, 2})->Args({50, 3})->Args({50, 8})->Args({200, 5})->Iterations(1)->Unit(
    benchmark::kSecond);

} // namespace
