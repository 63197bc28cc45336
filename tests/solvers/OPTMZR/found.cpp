#include "tests/solvers/OPTMZR/found.h"

#include <gtest/gtest.h>

#include "solvers/OPTMZR/search.h"

namespace vantore::optmzr::tests {

FoundPlan found(const router::Problem& problem) {
    const router::Travel travel(problem);
    FoundPlan best;
    search(problem, [&](const router::Plan& plan) {
        EXPECT_TRUE(isWhole(problem, plan));
        const Judgement judgement = judged(problem, travel, plan);
        if (best.told > 0) {
            EXPECT_TRUE(isBetter(judgement, best.judgement));
        }
        best = {plan, judgement, best.told + 1};
    });
    EXPECT_GT(best.told, 0);
    return best;
}

std::string textOf(const router::Plan& plan) {
    ItemWriter writer;
    router::writePlan(plan, writer);
    return writer.text();
}

} // namespace vantore::optmzr::tests
