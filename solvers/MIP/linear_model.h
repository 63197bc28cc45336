#pragma once

#include <CoinPackedMatrix.hpp>
#include <vector>

#include "mathprog/MIPROG/exchange.h"

namespace vantore::mip {

/// The problem without its integer requirements, always minimised, as the libraries take it: indices from 0,
/// no bound as COIN_DBL_MAX. The libraries refuse a matrix without any coefficient: such a problem gets a
/// column that is 0 and a row about it at the end.
struct LinearModel {
    CoinPackedMatrix matrix;
    std::vector<double> columnLower, columnUpper, objective;
    std::vector<double> rowLower, rowUpper;
};

LinearModel linearModel(const miprog::SolverInput& input);

/// 1 when the problem is minimised, -1 when it is maximised: what a value of the model is to be multiplied
/// by.
inline double modelSign(const miprog::SolverInput& input) {
    return input.objectiveFlag > 0 ? -1 : 1;
}

} // namespace vantore::mip
