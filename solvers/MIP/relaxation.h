#pragma once

#include <vector>

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"
#include "solvers/MIP/progress.h"

namespace vantore::mip {

enum class LinearStatus { Optimal, Infeasible, Unbounded, Stopped, Failed };

struct LinearResult {
    LinearStatus status = LinearStatus::Failed;
    Relaxation relaxation; ///< where the status is Optimal
    std::vector<int>
        conflict; ///< Infeasible: constraints that contradict each other, where a proof was found
    std::vector<int> unlimited; ///< Unbounded: variables along a ray that was found
    int iterations = 0;
};

/// How carefully to compute.
enum class Care { Usual, Strict };

/// Solves the problem without its integer requirements by the simplex method, for at most `seconds`.
/// Infeasible and Unbounded are proved; what can't be proved is Failed.
LinearResult solveRelaxation(const miprog::SolverInput& input, double seconds, Care care,
                             const Progress& progress);

/// The best continuous variables for the integer variables as they are in `values`, rounded. `values` itself,
/// rounded, when none are found within `seconds`.
std::vector<double> withIntegersFixed(const miprog::SolverInput& input, std::vector<double> values,
                                      double seconds);

} // namespace vantore::mip
