#include "solvers/MIP/linear_model.h"

#include <CoinFinite.hpp>

#include "solvers/MIP/check.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

CoinPackedMatrix matrixOf(const SolverInput& input) {
    std::vector<int> rows, columns;
    std::vector<double> values;
    for (int j = 1; j <= input.n; ++j)
        for (int i = 1; i <= input.m; ++i) {
            if (input.coef(i, j) == 0) continue;
            rows.push_back(i - 1);
            columns.push_back(j - 1);
            values.push_back(input.coef(i, j));
        }
    CoinPackedMatrix matrix(true, rows.data(), columns.data(), values.data(),
                            static_cast<CoinBigIndex>(values.size()));
    matrix.setDimensions(input.m, input.n);
    return matrix;
}

void addPlaceholders(const SolverInput& input, LinearModel& model) {
    const double one = 1;
    model.matrix = CoinPackedMatrix(true, &input.m, &input.n, &one, 1);
    model.columnLower.push_back(0);
    model.columnUpper.push_back(0);
    model.objective.push_back(0);
    model.rowLower.push_back(0);
    model.rowUpper.push_back(0);
}

} // namespace

LinearModel linearModel(const SolverInput& input) {
    LinearModel model;
    model.matrix = matrixOf(input);
    for (int j = 1; j <= input.n; ++j) {
        const miprog::Bounds& bounds = input.bounds(j);
        model.columnLower.push_back(bounds.lower <= -largestNumber ? -COIN_DBL_MAX : bounds.lower);
        model.columnUpper.push_back(bounds.upper >= largestNumber ? COIN_DBL_MAX : bounds.upper);
        model.objective.push_back(modelSign(input) * input.objCoef(j));
    }
    for (int i = 1; i <= input.m; ++i) {
        model.rowLower.push_back(input.rowSense(i) > 0 ? -COIN_DBL_MAX : input.rhs(i));
        model.rowUpper.push_back(input.rowSense(i) < 0 ? COIN_DBL_MAX : input.rhs(i));
    }
    if (model.matrix.getNumElements() == 0) addPlaceholders(input, model);
    return model;
}

} // namespace vantore::mip
