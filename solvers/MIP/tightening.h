#pragma once

#include "mathprog/MIPROG/exchange.h"

namespace vantore::mip {

/// The problem with the same solutions, but with whole bounds for its integer variables and with the
/// coefficients of its 0-1 variables no larger than the other variables of their constraint need: the 10000
/// of "shipped <= 10000 x open" becomes the most that can be shipped. A fraction of such a variable then no
/// longer stands for next to nothing, which makes the search both faster and safer. Source: Savelsbergh,
/// "Preprocessing and probing techniques for mixed integer programming problems" (1994).
miprog::SolverInput tightened(const miprog::SolverInput& input);

/// What a fraction of an integer variable that counts as none may stand for, in units of the continuous and
/// of the integer variables of the same constraint. Beyond, what a search claims can be an error of rounding.
constexpr double mostHiddenUnits = 1E-03;
constexpr double mostHiddenWholeUnits = .5;

/// True when in some constraint a fraction `integerTolerance` of an integer variable stands for more than
/// that.
bool hidesFractions(const miprog::SolverInput& input, double integerTolerance);

} // namespace vantore::mip
