#pragma once

#include "routing/ROUTER/plan.h"
#include "solvers/OPTMZR/judgement.h"

namespace vantore::optmzr::tests {

/// The best plan that a search tells, and what the module's simulation says of it.
struct FoundPlan {
    router::Plan plan;
    Judgement judgement;
    int told = 0; ///< plans that the search has told, each better than the one before
};

/// Runs the search. Fails the test where a plan isn't whole or isn't better than the one before.
FoundPlan found(const router::Problem& problem);

/// The plan as text, as it stands in its file.
std::string textOf(const router::Plan& plan);

} // namespace vantore::optmzr::tests
