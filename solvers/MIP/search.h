#pragma once

#include <functional>

#include "solvers/MIP/model.h"
#include "solvers/MIP/point.h"

namespace vantore::mip {

/// What the library's search comes to: within its tolerances, which prove nothing.
enum class SearchEnd { Optimal, Infeasible, Failed };

/// How far a search has come. `bound` is what the library takes for the least cost that can be.
struct SearchProgress {
    long long nodes = 0;
    long long iterations = 0;
    std::optional<Rational> bound;
};

/// Whom a search tells what it comes across: solutions that hold exactly, each better than the one before.
struct SearchNews {
    std::function<void(const ExactPoint&)> betterSolution;
    std::function<void(const SearchProgress&)> progress;
};

/// Searches for the best solution of a model by branch and cut. Optimal: the last solution that it has told
/// is as good as the library says that the best one is.
/// Source of the method: Land and Doig (1960), with the cutting planes and heuristics of the CBC library.
SearchEnd search(const Model& model, const SearchNews& news);

} // namespace vantore::mip
