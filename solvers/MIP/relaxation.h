#pragma once

#include <vector>

#include "solvers/MIP/exact_simplex.h"
#include "solvers/MIP/model.h"

namespace vantore::mip {

/// The problem without its integer requirements, solved exactly, all in the problem's units. A reduced cost
/// and a dual value are what the objective value changes by for one unit more of the variable, of the
/// right-hand side.
struct Relaxation {
    LinearEnd end = LinearEnd::Infeasible;
    Rational objective;                                     ///< Optimal
    std::vector<Rational> values, reducedCosts, dualValues; ///< Optimal
    std::vector<int> conflict;  ///< Infeasible: constraints (from 1) that contradict each other
    std::vector<int> unlimited; ///< Unbounded: variables (from 1) along which the objective improves for ever
};

/// Solves it; each claim has been held against its certificate. std::logic_error where one doesn't hold. No
/// variable's bounds may be empty.
Relaxation relax(const Model& model);

} // namespace vantore::mip
