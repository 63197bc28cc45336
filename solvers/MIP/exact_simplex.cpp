#include "solvers/MIP/exact_simplex.h"

#include <algorithm>
#include <utility>

namespace vantore::mip {

namespace {

constexpr long patiencePerVariable = 10; // pivots before Bland's rule

} // namespace

ExactSimplex::ExactSimplex(const Model& model) : model_(model), box_(model.box) {
    const std::size_t n = model.columnCount();
    for (std::size_t j = 0; j < n; ++j) free_.push_back(j);
    for (std::size_t i = 0; i < model.rowCount(); ++i) {
        basic_.push_back(n + i);
        Line line(n);
        for (const Term& term : model.rows[i].terms) line[term.column] = term.factor;
        tableau_.push_back(std::move(line));
    }
    tableau_.push_back(model.costs);
    at_.resize(n);
    values_.resize(model.rowCount());
    patience_ = patiencePerVariable * static_cast<long>(n + model.rowCount());
}

const Range& ExactSimplex::rangeOf(std::size_t variable) const {
    const std::size_t n = model_.columnCount();
    return variable < n ? box_[variable] : model_.rows[variable - n].range;
}

bool ExactSimplex::canMove(std::size_t column, bool up) const {
    const Range& range = rangeOf(free_[column]);
    const auto& end = up ? range.upper : range.lower;
    return !end || (up ? at_[column] < *end : at_[column] > *end);
}

/// Puts each free variable at the nearer of its bounds, at 0 where it has none.
void ExactSimplex::placeAtBounds() {
    for (std::size_t j = 0; j < free_.size(); ++j) {
        const Range& range = rangeOf(free_[j]);
        if (range.lower && (!range.upper || at_[j] * 2 <= *range.lower + *range.upper))
            at_[j] = *range.lower;
        else
            at_[j] = range.upper ? *range.upper : Integer(0);
    }
}

void ExactSimplex::computeValues() {
    for (std::size_t i = 0; i < basic_.size(); ++i) {
        values_[i] = 0;
        for (std::size_t j = 0; j < free_.size(); ++j)
            if (at_[j] != 0 && tableau_[i][j] != 0) values_[i] += tableau_[i][j] * at_[j];
    }
}

/// The variables of a line and a column change places. All stays whole: each number of the tableau is a
/// determinant.
void ExactSimplex::pivot(std::size_t line, std::size_t column) {
    Line& own = tableau_[line];
    const Integer factor = own[column];
    for (std::size_t i = 0; i < tableau_.size(); ++i) {
        if (i == line) continue;
        Line& other = tableau_[i];
        const Integer share = other[column];
        for (std::size_t j = 0; j < free_.size(); ++j) {
            if (j == column) continue;
            other[j] *= factor;
            if (share != 0) mpz_submul(other[j].get_mpz_t(), share.get_mpz_t(), own[j].get_mpz_t());
            mpz_divexact(other[j].get_mpz_t(), other[j].get_mpz_t(), denominator_.get_mpz_t());
        }
    }
    for (Integer& number : own) number = -number;
    own[column] = denominator_;
    denominator_ = factor;
    if (denominator_ < 0) {
        denominator_ = -denominator_;
        for (Line& each : tableau_)
            for (Integer& number : each) number = -number;
    }
    std::swap(basic_[line], free_[column]);
    ++pivots_;
}

/// Pivots, and the variable that was basic is at this end of its range from now on.
void ExactSimplex::leaveAt(std::size_t line, std::size_t column, const Integer& end) {
    const Integer place = end;
    pivot(line, column);
    at_[column] = place;
    computeValues();
}

void ExactSimplex::takeIntoBasis(const std::vector<std::size_t>& columns) {
    for (const std::size_t variable : columns) {
        const auto column =
            static_cast<std::size_t>(std::find(free_.begin(), free_.end(), variable) - free_.begin());
        if (column == free_.size()) continue;
        for (std::size_t i = 0; i < basic_.size(); ++i) {
            if (basic_[i] < model_.columnCount() || tableau_[i][column] == 0) continue;
            pivot(i, column);
            break;
        }
    }
}

ExactResult ExactSimplex::solve(const Box& box) {
    box_ = box;
    pivots_ = 0;
    placeAtBounds();
    computeValues();
    ExactResult result;
    if (makeFeasible(result) && improve(result)) tellOptimum(result);
    return result;
}

// A feasible solution, by the steps of the dual simplex method where the costs allow it

Integer ExactSimplex::violation(std::size_t line) const {
    const Range& range = rangeOf(basic_[line]);
    if (range.lower && values_[line] < *range.lower * denominator_)
        return *range.lower * denominator_ - values_[line];
    if (range.upper && values_[line] > *range.upper * denominator_)
        return values_[line] - *range.upper * denominator_;
    return 0;
}

std::optional<std::size_t> ExactSimplex::violatedLine() const {
    std::optional<std::size_t> chosen;
    Integer most;
    for (std::size_t i = 0; i < basic_.size(); ++i) {
        const Integer size = violation(i);
        if (size == 0) continue;
        const bool preferred = usesBland() ? chosen && basic_[i] < basic_[*chosen] : size > most;
        if (chosen && !preferred) continue;
        chosen = i;
        most = size;
    }
    return chosen;
}

/// The free variable that can take the line's variable up, or down; the one whose cost rises least by it.
std::optional<std::size_t> ExactSimplex::columnToMend(std::size_t line, bool up) const {
    std::optional<std::size_t> chosen;
    const Line& own = tableau_[line];
    const Line& costs = tableau_[costLine()];
    for (std::size_t j = 0; j < free_.size(); ++j) {
        if (own[j] == 0 || !canMove(j, up == (own[j] > 0))) continue;
        if (chosen) {
            const Integer here = abs(costs[j] * own[*chosen]);
            const Integer there = abs(costs[*chosen] * own[j]);
            const bool preferred = usesBland() || here == there ? free_[j] < free_[*chosen] : here < there;
            if (!preferred) continue;
        }
        chosen = j;
    }
    return chosen;
}

/// The line says that its variable times the denominator is the sum of its terms. As multipliers of the rows
/// its numbers show that it never comes to what the range wants.
void ExactSimplex::explain(ExactResult& result, std::size_t line, bool tooLow) const {
    const std::size_t n = model_.columnCount();
    result.end = LinearEnd::Infeasible;
    result.multipliers.scale = 0;
    result.multipliers.rows.assign(model_.rowCount(), 0);
    const int sign = tooLow ? 1 : -1;
    if (basic_[line] >= n) result.multipliers.rows[basic_[line] - n] = sign * denominator_;
    for (std::size_t j = 0; j < free_.size(); ++j)
        if (free_[j] >= n) result.multipliers.rows[free_[j] - n] = -sign * tableau_[line][j];
}

bool ExactSimplex::makeFeasible(ExactResult& result) {
    while (const auto line = violatedLine()) {
        const Range& range = rangeOf(basic_[*line]);
        const bool tooLow = range.lower && values_[*line] < *range.lower * denominator_;
        const auto column = columnToMend(*line, tooLow);
        if (!column) {
            explain(result, *line, tooLow);
            return false;
        }
        leaveAt(*line, *column, tooLow ? *range.lower : *range.upper);
    }
    return true;
}

// The best solution from there, by the primal simplex method

std::optional<std::size_t> ExactSimplex::columnToImprove() const {
    std::optional<std::size_t> chosen;
    const Line& costs = tableau_[costLine()];
    for (std::size_t j = 0; j < free_.size(); ++j) {
        if (costs[j] == 0 || !canMove(j, costs[j] < 0)) continue;
        const bool preferred =
            chosen && (usesBland() ? free_[j] < free_[*chosen] : abs(costs[j]) > abs(costs[*chosen]));
        if (!chosen || preferred) chosen = j;
    }
    return chosen;
}

/// How far a free variable can go until it or a basic variable is at its bound; nothing when it can go for
/// ever.
std::optional<ExactSimplex::Step> ExactSimplex::longestStep(std::size_t column, bool up) const {
    std::optional<Step> longest;
    const Range& own = rangeOf(free_[column]);
    if (own.lower && own.upper) longest = Step{std::nullopt, *own.upper - *own.lower, 1};
    for (std::size_t i = 0; i < basic_.size(); ++i) {
        const Integer& factor = tableau_[i][column];
        if (factor == 0) continue;
        const Range& range = rangeOf(basic_[i]);
        const bool rises = (factor > 0) == up;
        const auto& end = rises ? range.upper : range.lower;
        if (!end) continue;
        Step step{i, abs(*end * denominator_ - values_[i]), abs(factor)};
        if (longest) {
            const int order = cmp(step.length * longest->over, longest->length * step.over);
            const bool earlier = longest->line && basic_[i] < basic_[*longest->line];
            if (order > 0 || (order == 0 && !earlier)) continue;
        }
        longest = std::move(step);
    }
    return longest;
}

void ExactSimplex::take(const Step& step, std::size_t column, bool up) {
    if (!step.line) {
        const Range& range = rangeOf(free_[column]);
        at_[column] = up ? *range.upper : *range.lower;
        computeValues();
        ++pivots_;
        return;
    }
    const Range& range = rangeOf(basic_[*step.line]);
    const bool rises = (tableau_[*step.line][column] > 0) == up;
    leaveAt(*step.line, column, rises ? *range.upper : *range.lower);
}

void ExactSimplex::tellDirection(ExactResult& result, std::size_t column, bool up) const {
    const std::size_t n = model_.columnCount();
    const int sign = up ? 1 : -1;
    result.end = LinearEnd::Unbounded;
    result.direction.assign(n, 0);
    if (free_[column] < n) result.direction[free_[column]] = sign * denominator_;
    for (std::size_t i = 0; i < basic_.size(); ++i)
        if (basic_[i] < n) result.direction[basic_[i]] = sign * tableau_[i][column];
}

bool ExactSimplex::improve(ExactResult& result) {
    while (const auto column = columnToImprove()) {
        const bool up = tableau_[costLine()][*column] < 0;
        const auto step = longestStep(*column, up);
        if (!step) {
            tellDirection(result, *column, up);
            return false;
        }
        take(*step, *column, up);
    }
    return true;
}

void ExactSimplex::tellOptimum(ExactResult& result) const {
    const std::size_t n = model_.columnCount();
    result.end = LinearEnd::Optimal;
    result.scale = denominator_;
    result.values.resize(n);
    result.multipliers.scale = denominator_;
    result.multipliers.rows.assign(model_.rowCount(), 0);
    for (std::size_t i = 0; i < basic_.size(); ++i)
        if (basic_[i] < n) result.values[basic_[i]] = values_[i];
    for (std::size_t j = 0; j < free_.size(); ++j)
        if (free_[j] < n)
            result.values[free_[j]] = at_[j] * denominator_;
        else
            result.multipliers.rows[free_[j] - n] = tableau_[costLine()][j];
}

} // namespace vantore::mip
