#include "mathprog/TRANLP/method.h"

#include <algorithm>
#include <span>
#include <utility>

#include "shell/base/arithmetic.h"

namespace vantore::tranlp {

namespace {

/// Stores the whole units of `amounts` and gives their sum.
std::int32_t takeUnits(const PlaceTable<double>& amounts, int count, PlaceTable<std::int32_t>& units) {
    std::int32_t total = 0;
    for (int place = 1; place <= count; ++place) {
        units(place) = toInt32(wholePart(amounts(place) + .5));
        total = toUnits(std::int64_t{total} + units(place));
    }
    return total;
}

void addTotals(const Problem& problem, Plan& plan) {
    const std::span<double> colTotal = plan.colTotal.span();
    for (int i = 1; i <= problem.sources; ++i) {
        const auto alloc = plan.alloc.row(i);
        const auto cost = problem.cost.row(i);
        for (std::size_t j = 1; j <= static_cast<std::size_t>(problem.sinks); ++j) {
            const double units = alloc[j];
            plan.rowTotal(i) += units;
            colTotal[j] += units;
            plan.totalCost += units * cost[j];
        }
    }
    finite(plan.totalCost);
}

} // namespace

Tableau balanced(const Problem& problem) {
    Tableau tableau;
    tableau.rows = problem.sources;
    tableau.cols = problem.sinks;
    tableau.reduced = problem.cost;
    const std::int32_t supply = takeUnits(problem.supply, problem.sources, tableau.unitsLeft);
    const std::int32_t demand = takeUnits(problem.demand, problem.sinks, tableau.needLeft);
    const std::int32_t difference = toUnits(std::int64_t{supply} - demand);
    if (difference > 0) {
        tableau.needLeft(++tableau.cols) = difference;
        for (int i = 1; i <= tableau.rows; ++i) tableau.reduced(i, tableau.cols) = 0;
    } else if (difference < 0) {
        tableau.unitsLeft(++tableau.rows) = toUnits(-std::int64_t{difference});
        for (int j = 1; j <= tableau.cols; ++j) tableau.reduced(tableau.rows, j) = 0;
    }
    return tableau;
}

Plan cheapestPlan(const Problem& problem) {
    Tableau tableau = balanced(problem);
    std::int64_t supply = 0;
    std::int64_t demand = 0;
    for (int i = 1; i <= problem.sources; ++i) supply += tableau.unitsLeft(i);
    for (int j = 1; j <= problem.sinks; ++j) demand += tableau.needLeft(j);
    label(tableau);
    Plan plan;
    plan.totalAllocated = static_cast<double>(std::min(supply, demand));
    plan.alloc = std::move(tableau.alloc);
    addTotals(problem, plan);
    return plan;
}

} // namespace vantore::tranlp
