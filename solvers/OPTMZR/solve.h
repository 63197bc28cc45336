#pragma once

#include <functional>
#include <stdexcept>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"
#include "solvers/OPTMZR/judgement.h"

namespace vantore::optmzr {

constexpr double usualSeconds = 60; ///< a last resort: the search ends by itself long before

/// A problem that no plan can be made for.
class Unsolvable : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Whom a run tells of each plan that is the best so far.
using OnBetterPlan = std::function<void(const router::Plan&, const Judgement&)>;

/// Searches for the best plan in a process of its own that is watched. Whatever becomes of it, the result is
/// a whole plan, judged by the module's own simulation: the best one that was found, or one route for each
/// stop. Unsolvable without a vehicle; errors as `simulate`.
router::Plan solve(const router::Problem& problem, double seconds, const OnBetterPlan& onBetter);

} // namespace vantore::optmzr
