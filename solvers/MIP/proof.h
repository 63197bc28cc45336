#pragma once

#include <functional>

#include "solvers/MIP/model.h"
#include "solvers/MIP/point.h"

namespace vantore::mip {

/// Whom a proof tells what it comes across.
struct ProofNews {
    std::function<void(const ExactPoint&)> betterSolution;
    std::function<void(long long nodes)> nodes;
};

/// Proves what the best solution of a model is, by branch and bound: when it returns, the last better
/// solution that it has told is the best one; when it has told none, none costs less than `best`, or there
/// is none at all where there was no `best`. No bound, no contradiction and no solution counts unless it
/// holds in exact arithmetic. The model without its integer requirements must not fall for ever.
/// Source: Cook, Koch, Steffy and Wolter, "A hybrid branch-and-bound approach for exact rational
/// mixed-integer programming" (2013).
void prove(const Model& model, std::optional<Rational> best, const ProofNews& news);

} // namespace vantore::mip
