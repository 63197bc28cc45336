#include "solvers/MIP/search.h"

#include <CbcEventHandler.hpp>
#include <CbcHeuristic.hpp>
#include <CbcHeuristicFPump.hpp>
#include <CbcModel.hpp>
#include <CglClique.hpp>
#include <CglFlowCover.hpp>
#include <CglGomory.hpp>
#include <CglKnapsackCover.hpp>
#include <CglMixedIntegerRounding2.hpp>
#include <CglProbing.hpp>
#include <CglTwomir.hpp>
#include <CglZeroHalf.hpp>
#include <OsiClpSolverInterface.hpp>
#include <algorithm>
#include <cmath>
#include <memory>

#include "solvers/MIP/exact_simplex.h"
#include "solvers/MIP/linear_model.h"
#include "solvers/MIP/propagation.h"

namespace vantore::mip {

namespace {

// CBC's settings for branching on several candidates before it trusts its estimates.
constexpr int strongCandidates = 5;
constexpr int trustedBranchings = 10;

// Of the cutting planes. A kind that helps at the root is called below it too, says CBC's -98.
constexpr int whereItHelps = -98;
constexpr int cutPasses = 10;       // at a node below the root
constexpr int longestGomory = 50;   // variables in a cut below the root
constexpr int longestAtRoot = 1000; // and at the root
constexpr int longestTwomir = 250;
constexpr int probedAtNode = 10; // variables whose values are tried
constexpr int probedAtRoot = 50;

constexpr double integerTolerance = 1E-09; // what a variable may be off a whole number and count as one
constexpr double leastGain = 1E-09;        // of the objective: what a better solution is better by
constexpr double agreement = 1E-06;    // of the objective: what the library's and the exact cost differ by
constexpr double largestWhole = 1E+09; // where the rows set an integer variable no bound
constexpr int nodesBetweenNews = 50;

/// Exact solutions from the library's: its integers rounded, the continuous variables fitted to them.
class Completion {
  public:
    explicit Completion(const Model& model) : model_(model), simplex_(model) {}

    std::optional<ExactPoint> of(const double* values) {
        Box box = model_.box;
        for (std::size_t j = 0; j < box.size(); ++j) {
            if (!model_.whole[j]) continue;
            if (!std::isfinite(values[j])) return std::nullopt;
            const Integer whole(std::nearbyint(values[j]));
            if ((box[j].lower && whole < *box[j].lower) || (box[j].upper && whole > *box[j].upper))
                return std::nullopt;
            box[j] = {whole, whole};
        }
        const ExactResult result = simplex_.solve(box);
        if (result.end != LinearEnd::Optimal) return std::nullopt;
        return ExactPoint{result.values, result.scale};
    }

  private:
    const Model& model_;
    ExactSimplex simplex_;
};

/// A cost in the library's unit, and back.
double libraryCost(const LinearModel& linear, const Rational& cost) {
    return std::ldexp(approximate(cost), static_cast<int>(linear.costPower));
}

std::optional<Rational> modelCost(const LinearModel& linear, double cost) {
    constexpr double none = 1E+40;
    if (!(std::abs(cost) < none)) return std::nullopt;
    Rational result(cost);
    result <<= static_cast<unsigned long>(-linear.costPower);
    return result;
}

/// Looks on at the search and tells what it finds.
class Watcher : public CbcEventHandler {
  public:
    struct Found {
        Completion completion;
        std::optional<Rational> cost; ///< of the best exact solution
    };

    Watcher(const Model& model, const LinearModel& linear, const SearchNews& news, Found& found)
        : task_(&model), linear_(&linear), news_(&news), found_(&found) {}

    CbcAction event(CbcEvent which) override {
        if (insideHeuristic()) return noAction;
        if (which == solution || which == heuristicSolution) takeSolution(*model_);
        if (which == node && model_->getNodeCount() % nodesBetweenNews == 0) tellProgress(*model_);
        return noAction;
    }
    CbcAction event(CbcEvent which, void* /*data*/) override { return event(which); }
    CbcEventHandler* clone() const override { return std::make_unique<Watcher>(*this).release(); }

    void takeSolution(const CbcModel& search) const {
        const double* values = search.bestSolution();
        if (values == nullptr || search.getNumCols() < static_cast<int>(task_->columnCount())) return;
        const auto point = found_->completion.of(values);
        if (!point) return;
        const Rational cost = costOf(*task_, *point);
        if (found_->cost && cost >= *found_->cost) return;
        found_->cost = cost;
        news_->betterSolution(*point);
    }

    void tellProgress(const CbcModel& search) const {
        news_->progress({search.getNodeCount(), search.getIterationCount(),
                         modelCost(*linear_, search.getBestPossibleObjValue())});
    }

  private:
    /// Heuristics search parts of the problem in models of their own.
    bool insideHeuristic() const {
        constexpr int subModel = 2048;
        return (model_->specialOptions() & subModel) != 0;
    }

    const Model* task_;
    const LinearModel* linear_;
    const SearchNews* news_;
    Found* found_;
};

/// Finite bounds for every integer variable, within which the library is to search.
void limitIntegers(const Model& model, Box& box) {
    const Integer most(largestWhole);
    for (std::size_t j = 0; j < box.size(); ++j) {
        if (!model.whole[j]) continue;
        if (!box[j].lower) box[j].lower = box[j].upper ? Integer(*box[j].upper - most) : Integer(-most);
        if (!box[j].upper) box[j].upper = *box[j].lower + most;
    }
}

OsiClpSolverInterface interfaceFor(const Model& model, const LinearModel& linear) {
    OsiClpSolverInterface solver;
    solver.messageHandler()->setLogLevel(0);
    solver.loadProblem(linear.matrix, linear.columnLower.data(), linear.columnUpper.data(),
                       linear.objective.data(), linear.rowLower.data(), linear.rowUpper.data());
    for (std::size_t j = 0; j < model.columnCount(); ++j)
        if (model.whole[j]) solver.setInteger(static_cast<int>(j));
    return solver;
}

/// What a solution must be better by to be worth searching for, in the library's unit.
double increment(const Model& model, const LinearModel& linear, const CbcModel& search) {
    constexpr double nearly = .999;
    if (model.hasWholeObjective()) return nearly * std::ldexp(1, static_cast<int>(linear.costPower));
    return leastGain * std::abs(search.getContinuousObjective());
}

CglProbing probing() {
    CglProbing cuts;
    constexpr int rowAndColumnCuts = 3;
    cuts.setRowCuts(rowAndColumnCuts);
    cuts.setUsingObjective(1);
    cuts.setMaxPass(1);
    cuts.setMaxPassRoot(1);
    cuts.setMaxLook(probedAtNode);
    cuts.setMaxProbeRoot(probedAtRoot);
    cuts.setMaxLookRoot(probedAtRoot);
    return cuts;
}

/// Every kind of cutting plane that the library has for problems without a structure known beforehand.
void addCuts(CbcModel& search) {
    CglProbing implied = probing();
    CglGomory gomory;
    gomory.setLimit(longestGomory);
    gomory.setLimitAtRoot(longestAtRoot);
    CglTwomir twoStep;
    twoStep.setMaxElements(longestTwomir);
    CglKnapsackCover covers;
    CglClique cliques;
    cliques.setStarCliqueReport(false);
    cliques.setRowCliqueReport(false);
    CglMixedIntegerRounding2 rounding;
    CglFlowCover flows;
    CglZeroHalf halves;
    const std::initializer_list<CglCutGenerator*> kinds = {&implied, &gomory,   &covers,  &cliques,
                                                           &flows,   &rounding, &twoStep, &halves};
    for (CglCutGenerator* kind : kinds) search.addCutGenerator(kind, whereItHelps);
    search.setMaximumCutPasses(cutPasses);
}

void addHeuristics(CbcModel& search) {
    CbcRounding rounding(search);
    search.addHeuristic(&rounding);
    CbcHeuristicFPump pump(search);
    search.addHeuristic(&pump);
}

void prepare(CbcModel& search) {
    search.setLogLevel(0);
    search.setIntegerTolerance(integerTolerance);
    search.setAllowableGap(0);
    search.setAllowableFractionGap(0);
    search.setNumberStrong(strongCandidates);
    search.setNumberBeforeTrust(trustedBranchings);
    addCuts(search);
    addHeuristics(search);
}

SearchEnd endOf(const CbcModel& search, const LinearModel& linear, const std::optional<Rational>& found) {
    if (search.bestSolution() == nullptr)
        return search.isProvenInfeasible() || search.isProvenOptimal() ? SearchEnd::Infeasible
                                                                       : SearchEnd::Failed;
    if (!search.isProvenOptimal() || !found) return SearchEnd::Failed;
    const double claimed = search.getObjValue();
    const double reached = libraryCost(linear, *found);
    const bool agrees = reached <= claimed + agreement * std::abs(claimed);
    return agrees ? SearchEnd::Optimal : SearchEnd::Failed;
}

} // namespace

SearchEnd search(const Model& given, const SearchNews& news) {
    Model model = divided(given);
    if (!Propagation(model).narrow(model.box)) return SearchEnd::Infeasible;
    limitIntegers(model, model.box);
    const LinearModel linear = linearModel(model);
    CbcModel search(interfaceFor(model, linear));
    search.initialSolve();
    prepare(search);
    search.setCutoffIncrement(increment(model, linear, search));
    Watcher::Found found{Completion(model), std::nullopt};
    Watcher watcher(model, linear, news, found);
    search.passInEventHandler(&watcher);
    search.branchAndBound();
    watcher.takeSolution(search);
    watcher.tellProgress(search);
    return endOf(search, linear, found.cost);
}

} // namespace vantore::mip
