#pragma once

#include "mathprog/TRANLP/problem.h"

namespace vantore::tests {

/// How the costs of a random problem are drawn.
enum class Costs {
    Whole,      ///< 1 to 1000
    Few,        ///< 1 to 4: ties everywhere
    Cents,      ///< .01 to 100.00
    Fractional, ///< any double from 0 to 1
    Signed,     ///< -50 to 50 in tenths
};

/// What is left over: nothing, supply or demand.
enum class Balance { Even, SupplyHeavy, DemandHeavy };

/// A problem that depends on nothing but the arguments. Supplies and demands are from 1 to 200, those of an
/// uneven problem in halves.
tranlp::Problem randomProblem(int sources, int sinks, Costs costs, Balance balance, unsigned seed);

} // namespace vantore::tests
