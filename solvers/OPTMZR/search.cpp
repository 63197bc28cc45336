#include "solvers/OPTMZR/search.h"

#include <random>

#include "solvers/OPTMZR/instance.h"
#include "solvers/OPTMZR/local_search.h"
#include "solvers/OPTMZR/plan_builder.h"
#include "solvers/OPTMZR/savings.h"

namespace vantore::optmzr {

void search(const router::Problem& problem, const std::function<void(const router::Plan&)>& betterPlan) {
    const router::Travel travel(problem);
    const Instance instance(problem, travel);
    const Penalties penalties{100, 1, 100, 100, 100};
    Solution solution = savings(instance, penalties);
    std::mt19937 random(1);
    LocalSearch(instance).improve(solution, penalties, random);
    betterPlan(planOf(problem, travel, instance, solution));
}

} // namespace vantore::optmzr
