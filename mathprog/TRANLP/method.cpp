#include "mathprog/TRANLP/method.h"

#include <algorithm>

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
    for (int i = 1; i <= problem.sources; ++i)
        for (int j = 1; j <= problem.sinks; ++j) {
            const double units = plan.alloc(i, j);
            plan.rowTotal(i) += units;
            plan.colTotal(j) += units;
            plan.totalCost = finite(plan.totalCost + finite(units * problem.cost(i, j)));
        }
}

} // namespace

Tableau balanced(const Problem& problem) {
    Tableau tableau;
    tableau.rows = problem.sources;
    tableau.cols = problem.sinks;
    tableau.chainLimit = problem.sources * problem.sinks;
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
