#include "solvers/MIP/floating_simplex.h"

#include <CoinFinite.hpp>
#include <memory>

namespace vantore::mip {

FloatingSimplex::FloatingSimplex(const Model& model)
    : columns_(model.columnCount()), linear_(linearModel(model)) {
    simplex_.setLogLevel(0);
    simplex_.loadProblem(linear_.matrix, linear_.columnLower.data(), linear_.columnUpper.data(),
                         linear_.objective.data(), linear_.rowLower.data(), linear_.rowUpper.data());
}

FloatingSimplex::Guess FloatingSimplex::solve(const Box& box) {
    for (std::size_t j = 0; j < columns_; ++j)
        simplex_.setColumnBounds(static_cast<int>(j), boundOf(box[j].lower, -COIN_DBL_MAX),
                                 boundOf(box[j].upper, COIN_DBL_MAX));
    simplex_.dual();
    Guess guess;
    if (simplex_.isProvenOptimal()) {
        guess.end = LinearEnd::Optimal;
        guess.values.assign(simplex_.primalColumnSolution(), simplex_.primalColumnSolution() + columns_);
        guess.cost = simplex_.objectiveValue();
        guess.multipliers = multipliersOf(linear_, simplex_.dualRowSolution(), true);
    } else if (simplex_.isProvenPrimalInfeasible()) {
        const std::unique_ptr<double[]> ray(simplex_.infeasibilityRay());
        if (!ray) return guess;
        guess.end = LinearEnd::Infeasible;
        guess.multipliers = multipliersOf(linear_, ray.get(), false);
    }
    return guess;
}

std::vector<std::size_t> FloatingSimplex::basicColumns() const {
    std::vector<std::size_t> columns;
    for (std::size_t j = 0; j < columns_; ++j)
        if (simplex_.getColumnStatus(static_cast<int>(j)) == ClpSimplex::basic) columns.push_back(j);
    return columns;
}

} // namespace vantore::mip
