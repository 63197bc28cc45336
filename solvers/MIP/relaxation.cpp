#include "solvers/MIP/relaxation.h"

#include <ClpEventHandler.hpp>
#include <ClpSimplex.hpp>
#include <CoinFinite.hpp>
#include <algorithm>
#include <cmath>
#include <memory>

#include "solvers/MIP/certificates.h"
#include "solvers/MIP/linear_model.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr double strictTolerance = 1E-09;
constexpr double explainingSeconds = 2;

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

/// The dual simplex proves what is infeasible, the primal one what is unbounded; each takes what the other
/// leaves open.
void run(ClpSimplex& simplex) {
    simplex.dual();
    const bool settled = simplex.isProvenOptimal() || simplex.isProvenPrimalInfeasible();
    if (!settled && simplex.status() != 3 && simplex.status() != 5) simplex.primal();
}

LinearStatus statusOf(const ClpSimplex& simplex) {
    if (simplex.isProvenOptimal()) return LinearStatus::Optimal;
    if (simplex.isProvenPrimalInfeasible()) return LinearStatus::Infeasible;
    if (simplex.isProvenDualInfeasible()) return LinearStatus::Unbounded;
    // 3: at a limit, 5: by the event handler
    return simplex.status() == 3 || simplex.status() == 5 ? LinearStatus::Stopped : LinearStatus::Failed;
}

std::vector<double> scaled(const double* values, int count, double factor) {
    std::vector<double> result(values, values + count);
    for (double& value : result) value *= factor;
    return result;
}

Relaxation relaxationOf(const ClpSimplex& simplex, double sign) {
    return {sign * simplex.objectiveValue(),
            scaled(simplex.primalColumnSolution(), simplex.numberColumns(), 1),
            scaled(simplex.dualColumnSolution(), simplex.numberColumns(), sign),
            scaled(simplex.dualRowSolution(), simplex.numberRows(), sign)};
}

using Ray = std::unique_ptr<double[]>;

/// Without an objective the dual simplex is ready to go at once, and ends with the multipliers that prove the
/// conflict.
std::vector<int> conflictIn(const SolverInput& input, LinearModel model) {
    std::fill(model.objective.begin(), model.objective.end(), 0.0);
    ClpSimplex simplex;
    load(simplex, model);
    prepare(simplex, explainingSeconds, Care::Usual);
    simplex.dual();
    const Ray ray(simplex.infeasibilityRay());
    if (!ray) return {};
    return provenConflict(input, {ray.get(), ray.get() + input.m});
}

} // namespace

LinearResult solveRelaxation(const SolverInput& input, double seconds, Care care, const Progress& progress) {
    const LinearModel model = linearModel(input);
    ClpSimplex simplex;
    load(simplex, model);
    prepare(simplex, seconds, care);
    const StopHandler handler(progress);
    simplex.passInEventHandler(&handler);
    run(simplex);
    LinearResult result;
    result.status = statusOf(simplex);
    result.iterations = simplex.numberIterations();
    if (result.status == LinearStatus::Optimal) result.relaxation = relaxationOf(simplex, modelSign(input));
    if (result.status == LinearStatus::Infeasible) result.conflict = conflictIn(input, model);
    if (result.status == LinearStatus::Unbounded)
        if (const Ray ray(simplex.unboundedRay()); ray)
            result.unlimited = provenRay(input, {ray.get(), ray.get() + input.n});
    return result;
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
    run(simplex);
    if (!simplex.isProvenOptimal()) return values;
    return scaled(simplex.primalColumnSolution(), input.n, 1);
}

} // namespace vantore::mip
