#include "solvers/MIP/propagation.h"

#include <algorithm>
#include <utility>

namespace vantore::mip {

namespace {

constexpr int mostPasses = 20; // Bounds may creep towards each other without end.

/// The least or the most that a sum of terms can come to, and how many terms have no such end.
struct Reach {
    Integer sum;
    int endless = 0;

    void add(const Integer& factor, const std::optional<Integer>& end) {
        if (end)
            sum += factor * *end;
        else
            ++endless;
    }

    /// The same without one of its terms.
    std::optional<Integer> without(const Integer& factor, const std::optional<Integer>& end) const {
        if (endless > (end ? 0 : 1)) return std::nullopt;
        return end ? Integer(sum - factor * *end) : sum;
    }
};

const std::optional<Integer>& leastEnd(const Term& term, const Box& box) {
    return term.factor > 0 ? box[term.column].lower : box[term.column].upper;
}

const std::optional<Integer>& mostEnd(const Term& term, const Box& box) {
    return term.factor > 0 ? box[term.column].upper : box[term.column].lower;
}

bool isEmpty(const Range& range) {
    return range.lower && range.upper && *range.lower > *range.upper;
}

/// A range as wide as this is not worth narrowing a continuous variable's further.
bool worthwhile(const Range& old, const std::optional<Integer>& end, const Integer& found, bool whole) {
    if (!end) return true;
    if (whole || !old.lower || !old.upper) return found != *end;
    constexpr int share = 8;
    return abs(found - *end) * share > *old.upper - *old.lower;
}

/// True when the range became narrower.
bool raiseLower(Range& range, const Integer& dividend, const Integer& divisor, bool whole) {
    const Integer found = whole ? ceilingOf(dividend, divisor) : floorOf(dividend, divisor);
    if ((range.lower && found <= *range.lower) || !worthwhile(range, range.lower, found, whole)) return false;
    range.lower = found;
    return true;
}

bool reduceUpper(Range& range, const Integer& dividend, const Integer& divisor, bool whole) {
    const Integer found = whole ? floorOf(dividend, divisor) : ceilingOf(dividend, divisor);
    if ((range.upper && found >= *range.upper) || !worthwhile(range, range.upper, found, whole)) return false;
    range.upper = found;
    return true;
}

} // namespace

Model divided(Model model) {
    for (Row& row : model.rows) {
        Integer divisor;
        for (const Term& term : row.terms)
            divisor = model.whole[term.column] ? Integer(gcd(divisor, term.factor)) : Integer(1);
        if (divisor <= 1) continue;
        for (Term& term : row.terms) term.factor /= divisor;
        if (row.range.lower) row.range.lower = ceilingOf(*row.range.lower, divisor);
        if (row.range.upper) row.range.upper = floorOf(*row.range.upper, divisor);
        row.scale /= divisor;
    }
    return model;
}

bool hasEmptyRange(const Box& box) {
    return std::any_of(box.begin(), box.end(), isEmpty);
}

Propagation::Propagation(const Model& model)
    : whole_(model.whole), rows_(model.rows), rowsOf_(model.columnCount()) {
    Row objective;
    for (std::size_t j = 0; j < model.columnCount(); ++j)
        if (model.costs[j] != 0) objective.terms.push_back({j, model.costs[j]});
    rows_.push_back(std::move(objective));
    for (std::size_t i = 0; i < rows_.size(); ++i)
        for (const Term& term : rows_[i].terms) rowsOf_[term.column].push_back(i);
}

bool Propagation::narrow(Box& box) const {
    return !hasEmptyRange(box) && narrow(box, std::vector<bool>(rows_.size(), true));
}

bool Propagation::narrow(Box& box, std::size_t column) const {
    std::vector<bool> waiting(rows_.size(), false);
    for (const std::size_t row : rowsOf_[column]) waiting[row] = true;
    return narrow(box, std::move(waiting));
}

bool Propagation::narrow(Box& box, std::vector<bool> waiting) const {
    for (int pass = 0; pass < mostPasses; ++pass) {
        bool any = false;
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            if (!waiting[i]) continue;
            any = true;
            waiting[i] = false;
            if (!narrowByRow(box, i, waiting)) return false;
        }
        if (!any) break;
    }
    return true;
}

bool Propagation::narrowByRow(Box& box, std::size_t row, std::vector<bool>& waiting) const {
    const Range& range = rows_[row].range;
    if (isEmpty(range)) return false;
    Reach least, most;
    for (const Term& term : rows_[row].terms) {
        least.add(term.factor, leastEnd(term, box));
        most.add(term.factor, mostEnd(term, box));
    }
    if (range.upper && least.endless == 0 && least.sum > *range.upper) return false;
    if (range.lower && most.endless == 0 && most.sum < *range.lower) return false;
    // The reaches are of the box as it was when the row was begun; what follows from them still holds.
    const Box& before = box;
    for (const Term& term : rows_[row].terms) {
        Range narrowed = box[term.column];
        const bool whole = whole_[term.column];
        bool changed = false;
        if (range.upper) {
            if (const auto others = least.without(term.factor, leastEnd(term, before))) {
                const Integer room = *range.upper - *others;
                changed |= term.factor > 0 ? reduceUpper(narrowed, room, term.factor, whole)
                                           : raiseLower(narrowed, room, term.factor, whole);
            }
        }
        if (range.lower) {
            if (const auto others = most.without(term.factor, mostEnd(term, before))) {
                const Integer need = *range.lower - *others;
                changed |= term.factor > 0 ? raiseLower(narrowed, need, term.factor, whole)
                                           : reduceUpper(narrowed, need, term.factor, whole);
            }
        }
        if (!changed) continue;
        if (isEmpty(narrowed)) return false;
        box[term.column] = std::move(narrowed);
        for (const std::size_t other : rowsOf_[term.column])
            if (other != row) waiting[other] = true;
    }
    return true;
}

} // namespace vantore::mip
