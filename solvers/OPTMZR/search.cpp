#include "solvers/OPTMZR/search.h"

#include <cmath>
#include <optional>
#include <tuple>

#include "shell/base/runtime_error.h"
#include "solvers/OPTMZR/exhaustive_search.h"
#include "solvers/OPTMZR/genetic_search.h"
#include "solvers/OPTMZR/instance.h"
#include "solvers/OPTMZR/judgement.h"
#include "solvers/OPTMZR/plan_builder.h"

namespace vantore::optmzr {

using router::Plan;
using router::Problem;

namespace {

constexpr int mostFleetsTriedOut = 8; // with every order of the stops

/// Picks the best plan out of all that the search comes across. What looks better there is made a plan and
/// judged by the module's simulation.
class Best {
  public:
    Best(const Problem& problem, const router::Travel& travel, const Instance& instance,
         const std::function<void(const Plan&)>& betterPlan)
        : problem_(problem), travel_(travel), instance_(instance), betterPlan_(betterPlan) {}

    bool hasBrokenLimits() const { return !best_ || best_->violations > 0; }

    /// Takes a solution that the search knows to be the best.
    void take(const Solution& solution) { take(planOf(problem_, travel_, instance_, solution), {}); }

    void consider(const Found& found) {
        const Rank rank = rankOf(found);
        if (found.isStrict && !wasStrict_) rank_.reset();
        wasStrict_ = found.isStrict;
        if (rank_ && !isBefore(rank, *rank_)) return;
        try {
            take(planOf(problem_, travel_, instance_, found.solution), rank);
        } catch (const RuntimeError&) {
            // A plan with a leg that can't be driven is none.
        }
    }

  private:
    using Rank = std::tuple<int, double, double>; ///< limits broken, by how much, cost, as the search sees it

    static Rank rankOf(const Found& found) {
        const RouteValue& total = found.total;
        if (found.isStrict)
            return {total.misses.count + found.missingVehicles, total.misses.excess + found.missingVehicles,
                    total.cost};
        return {found.violations, found.violations == 0 ? 0 : total.excess(), total.cost};
    }

    static bool isBefore(const Rank& a, const Rank& b) {
        constexpr double leastGain = 1E-10;
        if (std::get<0>(a) != std::get<0>(b)) return std::get<0>(a) < std::get<0>(b);
        if (std::abs(std::get<1>(a) - std::get<1>(b)) > leastGain) return std::get<1>(a) < std::get<1>(b);
        return std::get<2>(a) < std::get<2>(b) - leastGain;
    }

    void take(const Plan& plan, const Rank& rank) {
        const Judgement judgement = judged(problem_, travel_, plan);
        const bool seemsFeasible = std::get<0>(rank) == 0;
        if (!seemsFeasible || judgement.violations == 0) rank_ = rank;
        if (best_ && !isBetter(judgement, *best_)) return;
        best_ = judgement;
        betterPlan_(plan);
    }

    const Problem& problem_;
    const router::Travel& travel_;
    const Instance& instance_;
    const std::function<void(const Plan&)>& betterPlan_;
    std::optional<Rank> rank_;
    bool wasStrict_ = false;
    std::optional<Judgement> best_;
};

} // namespace

void search(const Problem& problem, const std::function<void(const Plan&)>& betterPlan) {
    const router::Travel travel(problem);
    const Instance instance(problem, travel);
    Best best(problem, travel, instance, betterPlan);
    if (instance.stopCount <= mostStopsTriedOut && instance.fleetCount() <= mostFleetsTriedOut)
        return best.take(ExhaustiveSearch(instance).best());
    GeneticSearch genetic(instance, [&best](const Found& found) { best.consider(found); });
    genetic.run();
    if (best.hasBrokenLimits()) genetic.runStrictly();
}

} // namespace vantore::optmzr
