#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantore::mip {

/// When the search ends by itself.
struct Limits {
    double seconds = 60;
    int nodes = 1000000;
};

/// A solution that has passed the check. Variable j stands at j - 1, constraint i at i - 1.
struct Solution {
    double objective = 0;
    std::vector<double> values;
    std::vector<double> leftSides;
};

/// The optimum of the problem without its integer requirements. A reduced cost and a dual value are what the
/// objective value changes by for one unit more of the variable, of the right-hand side.
struct Relaxation {
    double objective = 0;
    std::vector<double> values;
    std::vector<double> reducedCosts;
    std::vector<double> dualValues;
};

enum class Status {
    Optimal,
    Infeasible,
    Unbounded,
    TimeLimit,
    NodeLimit,
    Interrupted,
    BrokenDown, ///< The library that searches has failed.
    Unproved,   ///< A solution, but the arithmetic does not bear out that it is the best.
    NotSolved,
};

/// All that is to be reported of a run.
struct Outcome {
    Status status = Status::NotSolved;
    std::string reason; ///< a sentence, where the status alone doesn't say why
    std::optional<Solution> solution;
    std::optional<Relaxation> relaxation;
    std::optional<double> bound; ///< No solution has a better objective value.
    std::vector<int> conflict;   ///< constraints that contradict each other
    std::vector<int> unlimited;  ///< variables along which the objective grows without limit
    int nodes = 0;
    int iterations = 0;
    double seconds = 0;
};

} // namespace vantore::mip
