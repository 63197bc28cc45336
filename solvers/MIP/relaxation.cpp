#include "solvers/MIP/relaxation.h"

#include <stdexcept>

#include "solvers/MIP/certificates.h"
#include "solvers/MIP/floating_simplex.h"
#include "solvers/MIP/point.h"

namespace vantore::mip {

namespace {

std::vector<int> placesOfOthersThan0(const std::vector<Integer>& numbers) {
    std::vector<int> places;
    for (std::size_t i = 0; i < numbers.size(); ++i)
        if (numbers[i] != 0) places.push_back(static_cast<int>(i) + 1);
    return places;
}

/// `number` over `scale`, brought back from one unit to another.
Rational inUnits(const Integer& number, const Integer& scale, const Rational& by) {
    Rational result(number, scale);
    result.canonicalize();
    return result * by;
}

void takeOptimum(Relaxation& relaxation, const Model& model, const ExactResult& result) {
    const auto bound = safeBound(model, model.box, result.multipliers);
    const ExactPoint point{result.values, result.scale};
    if (!keepsAll(model, point) || !bound ||
        inUnits(bound->cost, result.multipliers.scale, 1) != costOf(model, point))
        throw std::logic_error("an optimum without its dual");
    relaxation.objective = costOf(model, point) / model.costScale;
    relaxation.values = problemValues(model, point);
    for (std::size_t j = 0; j < model.columnCount(); ++j)
        relaxation.reducedCosts.push_back(
            inUnits(bound->reducedCosts[j], result.scale, model.columnScale[j] / model.costScale));
    for (std::size_t i = 0; i < model.rowCount(); ++i)
        relaxation.dualValues.push_back(
            inUnits(result.multipliers.rows[i], result.scale, model.rows[i].scale / model.costScale));
}

} // namespace

Relaxation relax(const Model& model) {
    Relaxation relaxation;
    FloatingSimplex floating(model);
    floating.solve(model.box);
    ExactSimplex simplex(model);
    simplex.takeIntoBasis(floating.basicColumns());
    const ExactResult result = simplex.solve(model.box);
    relaxation.end = result.end;
    if (result.end == LinearEnd::Optimal) takeOptimum(relaxation, model, result);
    if (result.end == LinearEnd::Infeasible) {
        if (!contradict(model, model.box, result.multipliers.rows))
            throw std::logic_error("no contradiction");
        relaxation.conflict = placesOfOthersThan0(result.multipliers.rows);
    }
    if (result.end == LinearEnd::Unbounded) {
        if (!fallsForEver(model, result.direction)) throw std::logic_error("a direction with an end");
        relaxation.unlimited = placesOfOthersThan0(result.direction);
    }
    return relaxation;
}

} // namespace vantore::mip
