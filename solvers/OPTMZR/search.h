#pragma once

#include <functional>

#include "routing/ROUTER/plan.h"
#include "routing/ROUTER/problem.h"

namespace vantore::optmzr {

/// Searches for the best plan and tells each one that is better than all before. Needs at least one stop and
/// one vehicle. The same problem gives the same plans: the effort is counted in steps, not in seconds.
void search(const router::Problem& problem, const std::function<void(const router::Plan&)>& betterPlan);

} // namespace vantore::optmzr
