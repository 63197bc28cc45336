#include "location/LAYOUT/method.h"

#include <algorithm>

#include "shell/base/number.h"

namespace vantore::layout {

namespace {

constexpr double daysPerYear = 365;

double requiredSpace(const Product& product) {
    return Number(product.size) * product.sales / product.turns;
}

double cubePerOrder(const Product& product) {
    return Number(requiredSpace(product)) * daysPerYear / product.orders;
}

/// True when `a` is placed nearer the dock than `b`.
bool goesBefore(Rule rule, const RankedProduct& a, const RankedProduct& b) {
    switch (rule) {
    case Rule::Popularity: return a.product.orders > b.product.orders;
    case Rule::Size: return a.product.size < b.product.size;
    case Rule::CubePerOrder: break;
    }
    return a.cubePerOrder < b.cubePerOrder;
}

} // namespace

std::vector<RankedProduct> ranking(const Problem& problem) {
    std::vector<RankedProduct> ranked;
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Product& product = problem.products(i);
        ranked.push_back({product, 0, requiredSpace(product)});
        if (problem.rule == Rule::CubePerOrder) ranked.back().cubePerOrder = cubePerOrder(product);
    }
    std::ranges::stable_sort(ranked, [&](const RankedProduct& a, const RankedProduct& b) {
        return goesBefore(problem.rule, a, b);
    });
    return ranked;
}

} // namespace vantore::layout
