#pragma once

#include <CoinPackedMatrix.hpp>
#include <vector>

#include "solvers/MIP/certificates.h"
#include "solvers/MIP/model.h"

namespace vantore::mip {

/// The model without its integer requirements as the libraries take it: in doubles, no bound as
/// COIN_DBL_MAX, rows and objective multiplied by powers of two where their numbers are large. The libraries
/// refuse a matrix without any coefficient: such a problem gets a column that is 0 and a row about it.
struct LinearModel {
    CoinPackedMatrix matrix;
    std::vector<double> columnLower, columnUpper, objective;
    std::vector<double> rowLower, rowUpper;
    std::vector<long> rowPowers; ///< A row is that of the model times 2 to this power.
    long costPower = 0;          ///< the same for the objective
};

LinearModel linearModel(const Model& model);

/// A number times a power of two as the double next to it.
double scaledDouble(const Integer& value, long power);

/// A bound as the libraries take it.
double boundOf(const std::optional<Integer>& bound, double none, long power = 0);

/// A library's multipliers of the rows in the model's units: for a bound with the objective, or for a
/// contradiction without it.
Multipliers multipliersOf(const LinearModel& linear, const double* rows, bool withObjective);

} // namespace vantore::mip
