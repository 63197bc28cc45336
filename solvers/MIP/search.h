#pragma once

#include <optional>
#include <string>
#include <vector>

#include "mathprog/MIPROG/exchange.h"
#include "solvers/MIP/outcome.h"
#include "solvers/MIP/progress.h"
#include "solvers/MIP/relaxation.h"

namespace vantore::mip {

enum class SearchEnd { Optimal, Infeasible, TimeLimit, NodeLimit, Interrupted, Failed };

/// What an integer variable may be off a whole number and count as one.
constexpr double integerTolerance = 1E-09;

struct SearchResult {
    SearchEnd end = SearchEnd::Failed;
    std::vector<double>
        values;           ///< the best solution as the search has it, not checked; empty when there is none
    double objective = 0; ///< its value as the search has it
    std::optional<double> bound;
    int nodes = 0;
    int iterations = 0;
};

/// What the search is to do besides the problem itself.
struct SearchTask {
    Limits limits;
    Care care = Care::Usual;
    bool anySolution = false; ///< Leaves the objective out: the first solution will do.
};

/// Branch and cut. Solutions found on the way are checked and kept in `progress`.
/// Source of the method: Land and Doig (1960), with the cutting planes of the CBC library.
SearchResult branchAndCut(const miprog::SolverInput& input, const SearchTask& task, Progress& progress);

/// Keeps a solution as the best one so far when it is.
void keepBest(const miprog::SolverInput& input, const Solution& solution, Progress& progress);

} // namespace vantore::mip
