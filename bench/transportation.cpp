#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <vector>

#include "mathprog/TRANLP/method.h"
#include "tests/mathprog/TRANLP/network_simplex.h"
#include "tests/mathprog/TRANLP/plain_labelling.h"
#include "tests/mathprog/TRANLP/random_problem.h"

/// The transportation method on 100 x 100 beside LEMON's network simplex method, and beside its own plain
/// loops. The methods solve the same ten problems by turns, from the matrix to the total cost. Times are for
/// one problem; the ratios say how many times faster ours is.

namespace {

using namespace vantore;
using tests::Balance;
using tests::Costs;

constexpr int size = 100;
constexpr unsigned problemCount = 10;

std::vector<tranlp::Problem> problems(Costs costs, Balance balance) {
    std::vector<tranlp::Problem> result;
    for (unsigned seed = 1; seed <= problemCount; ++seed)
        result.push_back(tests::randomProblem(size, size, costs, balance, seed));
    return result;
}

double plainCost(const tranlp::Problem& problem) {
    tranlp::Tableau tableau = tranlp::balanced(problem);
    tests::labelPlainly(tableau, problem.sources * problem.sinks);
    double cost = 0;
    for (int i = 1; i <= problem.sources; ++i)
        for (int j = 1; j <= problem.sinks; ++j) cost += tableau.alloc(i, j) * problem.cost(i, j);
    return cost;
}

double libraryCost(const tranlp::Problem& problem) {
    return tests::networkSimplexCost(tranlp::balanced(problem));
}

/// Seconds that `solve` takes; its result goes to `cost`.
template <class Solve>
double timed(Solve solve, const tranlp::Problem& problem, double& cost) {
    const auto start = std::chrono::steady_clock::now();
    benchmark::DoNotOptimize(cost = solve(problem));
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

template <class Other>
void sideBySide(benchmark::State& state, Other solveOtherwise, Costs costs, Balance balance) {
    const std::vector<tranlp::Problem> all = problems(costs, balance);
    double ours = 0;
    double others = 0;
    for (auto _ : state)
        for (const tranlp::Problem& problem : all) {
            double cost = 0;
            double otherCost = 0;
            ours += timed([](const auto& p) { return tranlp::cheapestPlan(p).totalCost; }, problem, cost);
            others += timed(solveOtherwise, problem, otherCost);
            if (std::abs(cost - otherCost) > 1E-9 * std::abs(cost)) state.SkipWithError("the costs differ");
        }
    const double solves = static_cast<double>(state.iterations()) * problemCount;
    state.counters["ours_us"] = ours / solves * 1E+6;
    state.counters["other_us"] = others / solves * 1E+6;
    state.counters["ratio"] = others / ours;
}

void besideLemon(benchmark::State& state, Costs costs, Balance balance) {
    sideBySide(state, libraryCost, costs, balance);
}

void besidePlainLoops(benchmark::State& state, Costs costs, Balance balance) {
    sideBySide(state, plainCost, costs, balance);
}

BENCHMARK_CAPTURE(besideLemon, few, Costs::Few, Balance::Even);
BENCHMARK_CAPTURE(besideLemon, whole, Costs::Whole, Balance::Even);
BENCHMARK_CAPTURE(besideLemon, whole_supply_heavy, Costs::Whole, Balance::SupplyHeavy);
BENCHMARK_CAPTURE(besideLemon, whole_demand_heavy, Costs::Whole, Balance::DemandHeavy);
BENCHMARK_CAPTURE(besideLemon, cents, Costs::Cents, Balance::Even);
BENCHMARK_CAPTURE(besideLemon, fractional, Costs::Fractional, Balance::Even);
BENCHMARK_CAPTURE(besidePlainLoops, few, Costs::Few, Balance::Even);
BENCHMARK_CAPTURE(besidePlainLoops, whole, Costs::Whole, Balance::Even);
BENCHMARK_CAPTURE(besidePlainLoops, cents, Costs::Cents, Balance::Even);
BENCHMARK_CAPTURE(besidePlainLoops, fractional, Costs::Fractional, Balance::Even);

} // namespace
