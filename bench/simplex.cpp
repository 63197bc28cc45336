#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <coin/Clp_C_Interface.h>
#include <limits>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

#include "mathprog/LNPROG/method.h"
#include "tests/mathprog/LNPROG/plain_simplex.h"

/// The simplex method on dense problems of the greatest size, 50 constraints by 100 variables: ours, the
/// plain loops, and COIN-OR Clp on the same data in the same run.

namespace vantore::lnprog {
namespace {

constexpr int constraints = 50;
constexpr int variables = 100;
constexpr double unlimited = std::numeric_limits<double>::max(); // how Clp says that there is no bound

/// Maximise a random profit under random capacities; `share` of the rows are minimum demands instead, so that
/// phase one has work.
Problem denseProblem(unsigned seed, int demands) {
    std::mt19937 generator(seed);
    std::uniform_real_distribution<double> coefficient(1, 10);
    std::uniform_real_distribution<double> capacity(1000, 2000);
    Problem problem;
    problem.constraints = constraints;
    problem.variables = variables;
    for (int i = 1; i <= constraints; ++i) {
        const bool demand = i <= demands;
        problem.rows(i) = {demand ? ">" : "<", demand ? capacity(generator) / 20 : capacity(generator)};
        for (int j = 1; j <= variables; ++j) problem.coefficients(i, j) = coefficient(generator);
    }
    for (int j = 1; j <= variables; ++j) problem.coefficients(constraints + 1, j) = -coefficient(generator);
    return problem;
}

Problem problemFor(const benchmark::State& state) {
    return denseProblem(7, static_cast<int>(state.range(0)));
}

double ourOptimum(Simplex& simplex, const Problem& problem) {
    if (!std::holds_alternative<Optimal>(solve(simplex, problem))) throw std::runtime_error("no optimum");
    return -simplex.tableau(simplex.objectiveRow(), 1);
}

/// The same problem column by column, as Clp takes it.
struct ClpData {
    std::vector<CoinBigIndex> starts{0};
    std::vector<int> rowNumbers;
    std::vector<double> values, objective, rowLower, rowUpper;
    std::vector<double> lower = std::vector<double>(variables, 0);
    std::vector<double> upper = std::vector<double>(variables, unlimited);

    explicit ClpData(const Problem& problem) {
        for (int j = 1; j <= variables; ++j) {
            for (int i = 1; i <= constraints; ++i) {
                rowNumbers.push_back(i - 1);
                values.push_back(problem.coefficients(i, j).value_or(0));
            }
            starts.push_back(static_cast<CoinBigIndex>(values.size()));
            objective.push_back(problem.coefficients(constraints + 1, j).value_or(0));
        }
        for (int i = 1; i <= constraints; ++i) {
            const bool demand = problem.rows(i).relation == ">";
            rowLower.push_back(demand ? problem.rows(i).rightSide : -unlimited);
            rowUpper.push_back(demand ? unlimited : problem.rows(i).rightSide);
        }
    }
};

/// Loads and solves by Clp's primal simplex, which was the fastest of its ways on these problems.
double clpOptimum(const ClpData& data) {
    Clp_Simplex* model = Clp_newModel();
    Clp_setLogLevel(model, 0);
    Clp_loadProblem(model, variables, constraints, data.starts.data(), data.rowNumbers.data(),
                    data.values.data(), data.lower.data(), data.upper.data(), data.objective.data(),
                    data.rowLower.data(), data.rowUpper.data());
    Clp_primal(model, 0);
    const double optimum = Clp_objectiveValue(model);
    Clp_deleteModel(model);
    return optimum;
}

void ours(benchmark::State& state) {
    const Problem problem = problemFor(state);
    Simplex simplex;
    for (auto _ : state) benchmark::DoNotOptimize(ourOptimum(simplex, problem));
}

void plainLoops(benchmark::State& state) {
    const Problem problem = problemFor(state);
    auto simplex = std::make_unique<tests::PlainSimplex>();
    for (auto _ : state) benchmark::DoNotOptimize(simplex->solve(problem));
    state.counters["pivots"] = simplex->iterations;
}

void clp(benchmark::State& state) {
    const ClpData data(problemFor(state));
    for (auto _ : state) benchmark::DoNotOptimize(clpOptimum(data));
}

template <class Work>
double seconds(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// All three by turns, so that they meet the same machine; prints how many times as long the others take.
void ratios(benchmark::State& state) {
    const Problem problem = problemFor(state);
    const ClpData data(problem);
    Simplex simplex;
    auto plain = std::make_unique<tests::PlainSimplex>();
    double ourTime = 0, plainTime = 0, clpTime = 0, ourValue = 0, clpValue = 0;
    for (auto _ : state) {
        ourTime += seconds([&] { ourValue = ourOptimum(simplex, problem); });
        plainTime += seconds([&] { benchmark::DoNotOptimize(plain->solve(problem)); });
        clpTime += seconds([&] { clpValue = clpOptimum(data); });
    }
    if (!(std::abs(ourValue - clpValue) <= 1E-6 * std::abs(clpValue))) state.SkipWithError("other optimum");
    state.counters["clp/ours"] = clpTime / ourTime;
    state.counters["plain/ours"] = plainTime / ourTime;
}

BENCHMARK(ours)->Arg(0)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainLoops)->Arg(0)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK(clp)->Arg(0)->Arg(25)->Unit(benchmark::kMicrosecond);
BENCHMARK(ratios)->Arg(0)->Arg(25)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace vantore::lnprog
