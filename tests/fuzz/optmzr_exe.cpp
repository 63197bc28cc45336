#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "solvers/OPTMZR/instance.h"
#include "solvers/OPTMZR/judgement.h"
#include "solvers/OPTMZR/local_search.h"
#include "solvers/OPTMZR/plan_builder.h"
#include "solvers/OPTMZR/savings.h"

namespace {

using namespace vantore;

constexpr int mostSolvedStops = 12;
constexpr int mostSolvedVehicles = 6;

/// Whatever the figures are, each stop is visited once and the plan's cost is a number.
void plan(const router::Problem& problem) {
    const router::Travel travel(problem);
    const optmzr::Instance instance(problem, travel);
    constexpr optmzr::Penalties high{1000, 1000, 1000, 1000, 1000};
    optmzr::Solution solution = optmzr::savings(instance, high);
    optmzr::Dice dice(1);
    optmzr::LocalSearch(instance).improve(solution, high, dice);
    const router::Plan plan = optmzr::planOf(problem, travel, instance, solution);
    if (!optmzr::isWhole(problem, plan)) std::abort();
    if (!std::isfinite(optmzr::judged(problem, travel, plan).cost)) std::abort();
}

} // namespace

/// Reads any bytes as TEMP.DAT. What is a problem of few stops gets its routes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        ItemReader reader(decoded({reinterpret_cast<const char*>(data), size}));
        const router::Problem problem = router::read(reader);
        if (problem.stops.count() == 0 || problem.stops.count() > mostSolvedStops) return 0;
        if (problem.vehicles.count() == 0 || problem.vehicles.count() > mostSolvedVehicles) return 0;
        plan(problem);
    } catch (const RuntimeError&) {
        // No problem, or one with a leg that can't be driven.
    }
    return 0;
}
