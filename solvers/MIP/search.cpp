#include "solvers/MIP/search.h"

#include <CbcEventHandler.hpp>
#include <CbcModel.hpp>
#include <CbcStrategy.hpp>
#include <OsiClpSolverInterface.hpp>
#include <algorithm>
#include <cmath>
#include <memory>

#include "solvers/MIP/check.h"
#include "solvers/MIP/linear_model.h"
#include "solvers/MIP/tightening.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr double strictTolerance = 1E-09;

// CBC's settings for branching on several candidates before it trusts its estimates.
constexpr int strongCandidates = 5;
constexpr int trustedBranchings = 5;

/// Looks on at the search: keeps its solutions and its bound, and stops it when that is asked for.
class Watcher : public CbcEventHandler {
  public:
    Watcher(const SolverInput& input, Progress& progress) : input_(input), progress_(progress) {}

    CbcAction event(CbcEvent which) override {
        if (which == solution || which == heuristicSolution) keepSolution();
        if (which == node && !insideHeuristic()) tellBound();
        return progress_.stopping() ? stop : noAction;
    }
    CbcAction event(CbcEvent which, void* /*data*/) override { return event(which); }
    CbcEventHandler* clone() const override { return std::make_unique<Watcher>(*this).release(); }

  private:
    /// Heuristics search parts of the problem in models of their own.
    bool insideHeuristic() const {
        constexpr int subModel = 2048;
        return (model_->specialOptions() & subModel) != 0;
    }

    void keepSolution() {
        const double* values = model_->bestSolution();
        if (values == nullptr || insideHeuristic() || model_->getNumCols() != input_.n) return;
        const Checked found = checked(input_, {values, values + input_.n});
        if (found.solution) keepBest(input_, *found.solution, progress_);
    }

    void tellBound() {
        const int nodes = model_->getNodeCount();
        const int iterations = model_->getIterationCount();
        progress_.update([&](Outcome& outcome) {
            outcome.nodes = nodes;
            outcome.iterations = iterations;
        });
    }

    const SolverInput& input_;
    Progress& progress_;
};

OsiClpSolverInterface interfaceFor(const SolverInput& input, const SearchTask& task) {
    LinearModel model = linearModel(tightened(input));
    if (task.anySolution) std::fill(model.objective.begin(), model.objective.end(), 0.0);
    OsiClpSolverInterface solver;
    solver.messageHandler()->setLogLevel(0);
    solver.loadProblem(model.matrix, model.columnLower.data(), model.columnUpper.data(),
                       model.objective.data(), model.rowLower.data(), model.rowUpper.data());
    for (const int j : input.intIndex.span()) solver.setInteger(j - 1);
    if (task.care == Care::Strict) {
        solver.setDblParam(OsiPrimalTolerance, strictTolerance);
        solver.setDblParam(OsiDualTolerance, strictTolerance);
    }
    return solver;
}

void prepare(CbcModel& model, const SearchTask& task) {
    model.setLogLevel(0);
    model.setUseElapsedTime(true);
    model.setMaximumSeconds(std::max(task.limits.seconds, 0.0));
    model.setMaximumNodes(task.limits.nodes);
    if (task.anySolution) model.setMaximumSolutions(1);
    model.setIntegerTolerance(integerTolerance);
    model.setAllowableGap(0);
    // Strict is plain branch and bound: no cut that rounding could have made wrong.
    if (task.care == Care::Strict) return;
    CbcStrategyDefault strategy(1, strongCandidates, trustedBranchings, 0);
    model.setStrategy(strategy);
}

SearchEnd endOf(const CbcModel& model, const SearchTask& task, const Progress& progress) {
    const bool found = model.bestSolution() != nullptr;
    if (found && task.anySolution) return SearchEnd::Optimal;
    if (progress.stopping()) return SearchEnd::Interrupted;
    if (model.isProvenInfeasible()) return SearchEnd::Infeasible;
    if (model.isProvenOptimal()) return found ? SearchEnd::Optimal : SearchEnd::Infeasible;
    if (model.isNodeLimitReached()) return SearchEnd::NodeLimit;
    if (model.isSecondsLimitReached()) return SearchEnd::TimeLimit;
    return SearchEnd::Failed;
}

} // namespace

SearchResult branchAndCut(const SolverInput& input, const SearchTask& task, Progress& progress) {
    CbcModel model(interfaceFor(input, task));
    prepare(model, task);
    const Watcher watcher(input, progress);
    model.passInEventHandler(&watcher);
    model.branchAndBound();
    SearchResult result;
    result.end = endOf(model, task, progress);
    if (const double* values = model.bestSolution(); values != nullptr) {
        result.values.assign(values, values + input.n);
        result.objective = modelSign(input) * model.getObjValue();
    }
    const double bound = modelSign(input) * model.getBestPossibleObjValue();
    if (!task.anySolution && std::abs(bound) < largestNumber) result.bound = bound;
    result.nodes = model.getNodeCount();
    result.iterations = model.getIterationCount();
    return result;
}

void keepBest(const SolverInput& input, const Solution& solution, Progress& progress) {
    progress.update([&](Outcome& outcome) {
        if (!outcome.solution || better(input, solution.objective, outcome.solution->objective))
            outcome.solution = solution;
    });
}

} // namespace vantore::mip
