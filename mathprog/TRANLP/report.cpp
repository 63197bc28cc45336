#include "mathprog/TRANLP/report.h"

#include <limits>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::tranlp {

namespace {

constexpr std::size_t nameCharacters = 15;
constexpr const char* unitsMask = "###,###,##0";
constexpr const char* costMask = "#,###,###.#0";

/// A value as a 32-bit float holds it.
double inSinglePrecision(double value) {
    const auto single = static_cast<float>(value);
    if (single > std::numeric_limits<float>::max() || single < std::numeric_limits<float>::lowest())
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<double>(single);
}

void cellLine(PrintLines& page, const Problem& problem, int source, int sink, std::int32_t units) {
    const double cost = problem.cost(source, sink);
    page.text(" ").text(left(problem.sourceName(source), nameCharacters));
    page.tab(18).text(left(problem.sinkName(sink), nameCharacters));
    page.right(43, format(cost, costMask)).right(59, format(units * cost, costMask));
    page.right(75, format(units, unitsMask)).endLine();
}

void sourceLines(PrintLines& page, const Problem& problem, const Plan& plan, int source) {
    double cost = 0;
    for (int sink = 1; sink <= problem.sinks; ++sink) {
        const std::int32_t units = plan.alloc(source, sink);
        cellLine(page, problem, source, sink, units);
        cost += inSinglePrecision(units * problem.cost(source, sink));
    }
    const double units = plan.rowTotal(source);
    const double slack = toInt32(problem.supply(source) - units);
    page.text("   Totals").right(59, format(cost, costMask)).right(75, format(units, unitsMask)).endLine();
    page.text(" Source capacity = ").right(30, format(problem.supply(source), unitsMask)).endLine();
    page.text(" Slack capacity  = ").right(30, format(slack, unitsMask)).endLine();
    page.line("");
}

} // namespace

PrintLines reportLines(const Problem& problem, const Plan& plan) {
    PrintLines page;
    page.line(" TRANSPORTATION METHOD RESULTS").line("");
    page.line(" Problem label: " + problem.label);
    page.line("                      OPTIMUM SUPPLY SCHEDULE");
    page.line(" ----------- Cell ------------        Unit            Cell           Units");
    page.line(" Source name     Sink name            cost            cost       allocated");
    for (int source = 1; source <= problem.sources; ++source) sourceLines(page, problem, plan, source);
    double demand = 0;
    for (int sink = 1; sink <= problem.sinks; ++sink) demand = finite(demand + problem.demand(sink));
    page.tab(45).text("Total allocated = ").right(75, format(plan.totalAllocated, unitsMask)).endLine();
    // Total demand, though it is called slack.
    page.tab(45).text("Slack required  = ").right(75, format(demand, unitsMask)).endLine();
    page.line("").line(" Total cost = " + format(plan.totalCost, "#,###,###,###.#0")).line("");
    return page;
}

PrintLines dataLines(const Problem& problem) {
    PrintLines page;
    page.line("Problem label: " + problem.label).line("");
    page.line("Cell data:");
    page.line("----------- Cell -------------          Unit                 Sink");
    page.line("Source name     Sink Name               cost         requirements");
    for (int i = 1; i <= problem.sources; ++i) {
        for (int j = 1; j <= problem.sinks; ++j) {
            page.text(left(problem.sourceName(i), nameCharacters));
            page.tab(17).text(left(problem.sinkName(j), nameCharacters));
            page.right(45, format(problem.cost(i, j), "###,###.#0"));
            page.right(66, format(problem.demand(j), "#,###,###,##0")).endLine();
        }
        page.line("Source capacity = " + format(problem.supply(i), "#,###,###,##0")).line("");
    }
    return page;
}

} // namespace vantore::tranlp
