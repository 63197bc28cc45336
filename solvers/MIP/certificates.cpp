#include "solvers/MIP/certificates.h"

namespace vantore::mip {

namespace {

/// The end of a range where a factor of this sign makes the product least; nothing where there is none.
const std::optional<Integer>& cheapestEnd(const Range& range, const Integer& factor) {
    return factor > 0 ? range.lower : range.upper;
}

bool keeps(const Range& range, const Integer& value, const Integer& scale) {
    return !(range.lower && value < *range.lower * scale) && !(range.upper && value > *range.upper * scale);
}

/// True when a change of this sign stays within the range for ever.
bool allows(const Range& range, const Integer& change) {
    return change == 0 || !(change > 0 ? range.upper : range.lower);
}

} // namespace

std::optional<SafeBound> safeBound(const Model& model, const Box& box, const Multipliers& multipliers) {
    SafeBound bound;
    for (const Integer& cost : model.costs) bound.reducedCosts.emplace_back(cost * multipliers.scale);
    for (std::size_t i = 0; i < model.rowCount(); ++i) {
        const Integer& factor = multipliers.rows[i];
        if (factor == 0) continue;
        const auto& end = cheapestEnd(model.rows[i].range, factor);
        if (!end) continue;
        bound.cost += factor * *end;
        for (const Term& term : model.rows[i].terms) bound.reducedCosts[term.column] -= factor * term.factor;
    }
    for (std::size_t j = 0; j < box.size(); ++j) {
        const Integer& factor = bound.reducedCosts[j];
        if (factor == 0) continue;
        const auto& end = cheapestEnd(box[j], factor);
        if (!end) return std::nullopt;
        bound.cost += factor * *end;
    }
    return bound;
}

bool contradict(const Model& model, const Box& box, std::vector<Integer> multipliers) {
    const auto bound = safeBound(model, box, {std::move(multipliers), 0});
    return bound && bound->cost > 0;
}

bool keepsAll(const Model& model, const ExactPoint& point) {
    for (std::size_t j = 0; j < model.columnCount(); ++j)
        if (!keeps(model.box[j], point.values[j], point.scale)) return false;
    for (const Row& row : model.rows) {
        Integer leftSide;
        for (const Term& term : row.terms) leftSide += term.factor * point.values[term.column];
        if (!keeps(row.range, leftSide, point.scale)) return false;
    }
    return true;
}

bool fallsForEver(const Model& model, const std::vector<Integer>& direction) {
    Integer costChange;
    for (std::size_t j = 0; j < model.columnCount(); ++j) {
        if (!allows(model.box[j], direction[j])) return false;
        costChange += model.costs[j] * direction[j];
    }
    for (const Row& row : model.rows) {
        Integer change;
        for (const Term& term : row.terms) change += term.factor * direction[term.column];
        if (!allows(row.range, change)) return false;
    }
    return costChange < 0;
}

} // namespace vantore::mip
