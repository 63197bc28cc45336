#include "solvers/MIP/relaxation.h"

#include <ClpEventHandler.hpp>
#include <ClpSimplex.hpp>
#include <CoinFinite.hpp>
#include <algorithm>
#include <cmath>
#include <memory>

#include "solvers/MIP/certificates.h"
#include "solvers/MIP/check.h"
#include "solvers/MIP/linear_model.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr double strictTolerance = 1E-09;

/// Ends the simplex method when the search is to stop.
class StopHandler : public ClpEventHandler {
  public:
    explicit StopHandler(const Progress& progress) : progress_(progress) {}

    int event(Event /*which*/) override { return progress_.stopping() ? stopNow : goOn; }
    ClpEventHandler* clone() const override { return std::make_unique<StopHandler>(*this).release(); }

  private:
    static constexpr int goOn = -1;
    static constexpr int stopNow = 5;

    const Progress& progress_;
};

void load(ClpSimplex& simplex, const LinearModel& model) {
    simplex.loadProblem(model.matrix, model.columnLower.data(), model.columnUpper.data(),
                        model.objective.data(), model.rowLower.data(), model.rowUpper.data());
}

void prepare(ClpSimplex& simplex, double seconds, Care care) {
    simplex.setLogLevel(0);
    simplex.setMaximumSeconds(std::max(seconds, 0.0));
    if (care == Care::Usual) return;
    simplex.setPrimalTolerance(strictTolerance);
    simplex.setDualTolerance(strictTolerance);
}

bool stopped(const ClpSimplex& simplex) {
    constexpr int atLimit = 3;
    constexpr int byHandler = 5;
    return simplex.status() == atLimit || simplex.status() == byHandler;
}

std::vector<double> scaled(const double* values, int count, double factor, double noise = 0) {
    std::vector<double> result(values, values + count);
    for (double& value : result) value = std::abs(value) <= noise ? 0 : value * factor;
    return result;
}

double largestCost(const SolverInput& input) {
    double largest = 0;
    for (const double cost : input.objCoef.span()) largest = std::max(largest, std::abs(cost));
    return largest;
}

Relaxation relaxationOf(const SolverInput& input, const ClpSimplex& simplex) {
    const double sign = modelSign(input);
    const double noise = roundingNoise * largestCost(input);
    return {sign * simplex.objectiveValue(), scaled(simplex.primalColumnSolution(), input.n, 1),
            scaled(simplex.dualColumnSolution(), input.n, sign, noise),
            scaled(simplex.dualRowSolution(), input.m, sign, noise)};
}

using Ray = std::unique_ptr<double[]>;

/// One linear program, solved in the ways that lead to a proof of what it is.
class LinearRun {
  public:
    LinearRun(const SolverInput& input, double seconds, Care care, const Progress& progress)
        : input_(input), model_(linearModel(input)), handler_(progress) {
        load(simplex_, model_);
        prepare(simplex_, seconds, care);
        simplex_.passInEventHandler(&handler_);
    }

    /// The dual simplex is the fastest, but takes some unbounded problems for infeasible ones. What it
    /// doesn't solve is done in two phases: a feasible solution, and on from there.
    LinearResult result() {
        simplex_.dual();
        if (!simplex_.isProvenOptimal() && !stopped(simplex_)) {
            findFeasible();
            if (simplex_.isProvenOptimal()) improve();
        }
        result_.iterations = simplex_.numberIterations();
        if (stopped(simplex_)) result_.status = LinearStatus::Stopped;
        if (simplex_.isProvenOptimal()) {
            result_.status = LinearStatus::Optimal;
            result_.relaxation = relaxationOf(input_, simplex_);
        }
        return result_;
    }

  private:
    /// Without an objective every basis is dual feasible: the dual simplex either ends at a feasible solution
    /// or with multipliers that prove that there is none.
    void findFeasible() {
        const std::vector<double> none(model_.objective.size(), 0);
        simplex_.chgObjCoefficients(none.data());
        simplex_.allSlackBasis(true);
        simplex_.dual();
        if (!simplex_.isProvenPrimalInfeasible()) return;
        const Ray ray(simplex_.infeasibilityRay());
        result_.conflict =
            ray ? provenConflict(input_, {ray.get(), ray.get() + input_.m}) : conflictInOneRow(input_);
        if (!result_.conflict.empty()) result_.status = LinearStatus::Infeasible;
    }

    void improve() {
        simplex_.chgObjCoefficients(model_.objective.data());
        simplex_.primal();
        if (!simplex_.isProvenDualInfeasible()) return;
        if (const Ray ray(simplex_.unboundedRay()); ray)
            result_.unlimited = provenRay(input_, {ray.get(), ray.get() + input_.n});
        if (!result_.unlimited.empty()) result_.status = LinearStatus::Unbounded;
    }

    const SolverInput& input_;
    LinearModel model_;
    StopHandler handler_;
    ClpSimplex simplex_;
    LinearResult result_;
};

} // namespace

LinearResult solveRelaxation(const SolverInput& input, double seconds, Care care, const Progress& progress) {
    return LinearRun(input, seconds, care, progress).result();
}

std::vector<double> withIntegersFixed(const SolverInput& input, std::vector<double> values, double seconds) {
    LinearModel model = linearModel(input);
    for (const int j : input.intIndex.span()) {
        const auto column = static_cast<std::size_t>(j - 1);
        values[column] = std::nearbyint(values[column]);
        model.columnLower[column] = model.columnUpper[column] = values[column];
    }
    if (input.intCount() == input.n) return values;
    ClpSimplex simplex;
    load(simplex, model);
    prepare(simplex, seconds, Care::Strict);
    simplex.dual();
    if (!simplex.isProvenOptimal()) return values;
    return scaled(simplex.primalColumnSolution(), input.n, 1);
}

} // namespace vantore::mip
