#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "routing/ROUTER/plot.h"
#include "routing/ROUTER/report.h"
#include "shell/base/text.h"
#include "tests/routing/ROUTER/random_problems.h"

namespace {

using namespace vantore;
using namespace vantore::router;

constexpr int stopCount = 12;
constexpr Rect surfacePlace{0, 0, 9600, 6420}; // twips of the design

void require(bool holds) {
    if (!holds) std::abort();
}

void reportAndDraw(const Problem& problem, const Plan& plan) {
    try {
        const Outcome outcome(problem, plan);
        require(!reportPage(outcome, {"Fuzz", {"01-02-2026", "12:00:00"}}).lines().empty());
    } catch (const RuntimeError&) {
        // An error that the user is told.
    }
    try {
        PictureSurface surface("picOut", surfacePlace, {});
        PlanMap(problem, plan).draw(surface, {}, {}, {.numbers = true, .zones = true});
    } catch (const RuntimeError&) {
        // Likewise.
    }
}

} // namespace

/// Reads a plan from any bytes, writes it and reads it again: it must be the same. Then reports and draws it.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Problem problem = vantore::router::tests::RandomProblems(1).next(stopCount);
    Plan plan;
    try {
        ItemReader reader(decoded({reinterpret_cast<const char*>(data), size}));
        plan = readPlan(reader);
    } catch (const RuntimeError&) {
        return 0;
    }
    if (plan.hasTooManyRoutes()) return 0;
    plan.remark = specifiedRemark;
    ItemWriter writer;
    writePlan(plan, writer);
    ItemReader reader(writer.text());
    ItemWriter again;
    writePlan(readPlan(reader), again);
    require(again.text() == writer.text());
    reportAndDraw(problem, plan);
    return 0;
}
