#pragma once

#include <gmpxx.h>
#include <optional>
#include <string>
#include <vector>

#include "mathprog/MIPROG/exchange.h"

namespace vantore::mip::tests {

/// A number as a user types it: mantissa x 10 ^ power.
struct Decimal {
    long long mantissa = 0;
    int power = 0;

    double typed() const; ///< what reading its text gives
    mpq_class fraction() const;
};

/// A small problem in typed numbers. Integer variables come first; at most one continuous one follows.
struct TypedProblem {
    bool maximize = true;
    std::vector<Decimal> objective;
    std::vector<std::vector<Decimal>> rows;
    std::string relations; ///< "<", "=" or ">" for each row
    std::vector<Decimal> rhs;
    std::vector<bool> binary; ///< which integer variables are 0-1 ones; the others have no upper bound
    bool continuousLast = false;

    std::size_t variables() const { return objective.size(); }
    std::size_t integers() const { return variables() - (continuousLast ? 1 : 0); }
    miprog::SolverInput input() const;
};

enum class Truth { Optimal, Infeasible, Unbounded, Unknown };

struct Answer {
    Truth truth = Truth::Unknown;
    mpq_class objective; ///< where the truth is Optimal
};

/// The answer found by trying all whole numbers that can matter, in exact fractions, plainly written as a
/// yardstick for the solver. Unknown where it would take too many.
Answer enumerated(const TypedProblem& problem);

} // namespace vantore::mip::tests
