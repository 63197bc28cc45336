#pragma once

#include <optional>

#include "solvers/MIP/model.h"
#include "solvers/MIP/relaxation.h"
#include "solvers/MIP/search.h"
#include "solvers/watch/watch.h"

namespace vantore::mip {

/// Seconds of the stages of a run, one after another: the problem without its integer requirements, the
/// search for a solution, the proof that there is no better one.
struct StageSeconds {
    double relaxation = 0;
    double search = 0;
    double proof = 0;
};

/// When each stage is ended at the latest.
constexpr StageSeconds usualLimits{20, 60, 60};

enum class Status {
    // Proved in exact arithmetic:
    Optimal,
    Infeasible,
    Unbounded,
    // Claimed by the library that searches, not proved:
    OptimalWithinTolerances,
    NoneWithinTolerances,
    // Neither:
    Stopped,
};

enum class Stage { Relaxation, Search, Proof };

/// A stage that didn't come to its end.
struct Halt {
    Stage stage = Stage::Search;
    watch::End cause = watch::End::TimeLimit;
};

/// All that is to be reported of a run.
struct Outcome {
    Status status = Status::Stopped;
    std::optional<Halt> halt;              ///< why there is no more, unless the outcome is proved
    std::optional<int> withoutWholeNumber; ///< an integer variable (from 1) whose bounds hold none
    std::optional<Solution> solution;      ///< It holds exactly.
    std::optional<Relaxation> relaxation;  ///< It is proved.
    SearchProgress search;                 ///< its bound in the problem's units
    long long proofNodes = 0;
    StageSeconds used;
};

} // namespace vantore::mip
