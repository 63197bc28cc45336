#pragma once

#include "solvers/MIP/model.h"

namespace vantore::mip {

/// Values of a model's variables over a common scale.
struct ExactPoint {
    std::vector<Integer> values;
    Integer scale = 1;
};

/// The cost of a point in the model.
inline Rational costOf(const Model& model, const ExactPoint& point) {
    Integer cost;
    for (std::size_t j = 0; j < model.columnCount(); ++j) cost += model.costs[j] * point.values[j];
    Rational result(cost, point.scale);
    result.canonicalize();
    return result;
}

/// The point in the units of the problem, variable j at j - 1.
inline std::vector<Rational> problemValues(const Model& model, const ExactPoint& point) {
    std::vector<Rational> values;
    for (std::size_t j = 0; j < model.columnCount(); ++j) {
        values.emplace_back(point.values[j], point.scale);
        values.back().canonicalize();
        values.back() /= model.columnScale[j];
    }
    return values;
}

} // namespace vantore::mip
