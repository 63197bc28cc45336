#include "solvers/OPTMZR/solve.h"

#include <string>
#include <utility>

#include "shell/base/item_stream.h"
#include "solvers/OPTMZR/plan_builder.h"
#include "solvers/OPTMZR/search.h"
#include "solvers/watch/watch.h"

namespace vantore::optmzr {

using router::Plan;
using router::Problem;

namespace {

/// The best plan that a search has told.
class Best {
  public:
    Best(const Problem& problem, const OnBetterPlan& onBetter)
        : problem_(problem), travel_(problem), onBetter_(onBetter), plan_(oneRouteAStop(problem, travel_)),
          judgement_(judged(problem, travel_, plan_)) {}

    /// Takes a plan, in the form of its file, if it is whole and better.
    void hear(const std::string& text) {
        ItemReader reader(text);
        Plan plan = router::readPlan(reader);
        if (!isWhole(problem_, plan)) return;
        const Judgement judgement = judged(problem_, travel_, plan);
        if (!isBetter(judgement, judgement_)) return;
        plan_ = std::move(plan);
        judgement_ = judgement;
        onBetter_(plan_, judgement_);
    }

    Plan take() { return std::move(plan_); }

  private:
    const Problem& problem_;
    router::Travel travel_;
    const OnBetterPlan& onBetter_;
    Plan plan_;
    Judgement judgement_;
};

std::string textOf(const Plan& plan) {
    ItemWriter writer;
    router::writePlan(plan, writer);
    return writer.text();
}

} // namespace

Plan solve(const Problem& problem, double seconds, const OnBetterPlan& onBetter) {
    Plan none;
    none.remark = computedRemark;
    if (problem.stops.count() == 0) return none;
    if (problem.vehicles.count() == 0) throw Unsolvable("There is no vehicle for the routes.");
    Best best(problem, onBetter);
    const auto work = [&problem](const watch::Tell& tell) {
        search(problem, [&tell](const Plan& plan) { tell(textOf(plan)); });
    };
    watch::run(work, seconds, [&best](const std::string& text) { best.hear(text); });
    return best.take();
}

} // namespace vantore::optmzr
