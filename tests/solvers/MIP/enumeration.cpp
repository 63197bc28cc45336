#include "tests/solvers/MIP/enumeration.h"

#include <algorithm>
#include <cstdlib>

namespace vantore::mip::tests {

namespace {

using Point = std::vector<mpq_class>;

constexpr long mostPoints = 40000;
constexpr long farEnough = 15; // how far an unlimited variable is tried for any solution at all

/// coefs x <= right
struct HalfSpace {
    Point coefs;
    mpq_class right;

    mpq_class left(const Point& x) const {
        mpq_class sum;
        for (std::size_t j = 0; j < x.size(); ++j)
            if (coefs[j] != 0) sum += coefs[j] * x[j];
        return sum;
    }
};

/// All constraints and bounds as half spaces, and the objective to be maximised.
struct Polyhedron {
    std::vector<HalfSpace> sides;
    Point objective;
};

Point fractions(const std::vector<Decimal>& numbers, int sign) {
    Point result;
    for (const Decimal& number : numbers) result.emplace_back(sign * number.fraction());
    return result;
}

Polyhedron polyhedronOf(const TypedProblem& problem) {
    Polyhedron p{{}, fractions(problem.objective, problem.maximize ? 1 : -1)};
    for (std::size_t i = 0; i < problem.rows.size(); ++i) {
        if (problem.relations[i] != '>')
            p.sides.push_back({fractions(problem.rows[i], 1), problem.rhs[i].fraction()});
        if (problem.relations[i] != '<')
            p.sides.push_back({fractions(problem.rows[i], -1), -problem.rhs[i].fraction()});
    }
    for (std::size_t j = 0; j < problem.variables(); ++j) {
        Point unit(problem.variables());
        unit[j] = -1;
        p.sides.push_back({unit, 0});
        unit[j] = 1;
        if (j < problem.integers() && problem.binary[j]) p.sides.push_back({unit, 1});
    }
    return p;
}

bool contains(const Polyhedron& p, const Point& x) {
    return std::all_of(p.sides.begin(), p.sides.end(),
                       [&](const HalfSpace& side) { return side.left(x) <= side.right; });
}

mpq_class value(const Polyhedron& p, const Point& x) {
    return HalfSpace{p.objective, 0}.left(x);
}

/// The one solution of square linear equations (each row with its right side behind it), nothing when there
/// are none or many.
std::optional<Point> solved(std::vector<Point> rows) {
    const std::size_t n = rows.size();
    for (std::size_t k = 0; k < n; ++k) {
        std::size_t pivot = k;
        while (pivot < n && rows[pivot][k] == 0) ++pivot;
        if (pivot == n) return std::nullopt;
        std::swap(rows[pivot], rows[k]);
        for (std::size_t i = 0; i < n; ++i) {
            if (i == k || rows[i][k] == 0) continue;
            const mpq_class factor = rows[i][k] / rows[k][k];
            for (std::size_t j = k; j <= n; ++j) rows[i][j] -= factor * rows[k][j];
        }
    }
    Point x;
    for (std::size_t k = 0; k < n; ++k) x.emplace_back(rows[k][n] / rows[k][k]);
    return x;
}

/// Calls `use` with each choice of `count` sides.
template <class Use>
void eachChoice(const Polyhedron& p, std::size_t count, std::vector<std::size_t>& chosen, const Use& use) {
    if (chosen.size() == count) return use(chosen);
    for (std::size_t i = chosen.empty() ? 0 : chosen.back() + 1; i < p.sides.size(); ++i) {
        chosen.push_back(i);
        eachChoice(p, count, chosen, use);
        chosen.pop_back();
    }
}

std::vector<Point> vertices(const Polyhedron& p) {
    std::vector<Point> result;
    std::vector<std::size_t> chosen;
    eachChoice(p, p.objective.size(), chosen, [&](const std::vector<std::size_t>& sides) {
        std::vector<Point> rows;
        for (const std::size_t i : sides) {
            rows.push_back(p.sides[i].coefs);
            rows.back().push_back(p.sides[i].right);
        }
        const auto x = solved(std::move(rows));
        if (x && contains(p, *x)) result.push_back(*x);
    });
    return result;
}

/// The extreme directions in which the polyhedron has no end, each of coordinate sum 1: all variables are at
/// least 0, so they are the vertices of the directions of that sum.
std::vector<Point> rays(const Polyhedron& p) {
    Polyhedron directions = p;
    for (HalfSpace& side : directions.sides) side.right = 0;
    const Point ones(p.objective.size(), 1);
    Point minusOnes(p.objective.size(), -1);
    directions.sides.push_back({ones, 1});
    directions.sides.push_back({minusOnes, -1});
    return vertices(directions);
}

/// The best value with the whole numbers given, whatever the continuous variable is; nothing when they allow
/// none. `unbounded` is set where it has no end.
std::optional<mpq_class> bestWith(const Polyhedron& p, Point x, bool continuousLast, bool& unbounded) {
    if (!continuousLast) return contains(p, x) ? std::optional(value(p, x)) : std::nullopt;
    std::optional<mpq_class> low, high;
    x.emplace_back(0);
    for (const HalfSpace& side : p.sides) {
        const mpq_class room = side.right - side.left(x);
        const mpq_class& factor = side.coefs.back();
        if (factor == 0 && room < 0) return std::nullopt;
        if (factor == 0) continue;
        const mpq_class end = room / factor;
        if (factor > 0 && (!high || end < *high)) high = end;
        if (factor < 0 && (!low || end > *low)) low = end;
    }
    if (high && *high < *low) return std::nullopt; // 0 is a low end at least
    const bool up = p.objective.back() > 0;
    if (up && !high) unbounded = true;
    x.back() = up && high ? *high : *low;
    return value(p, x);
}

/// Tries all whole numbers from 0 up to these.
Answer triedUpTo(const Polyhedron& p, const std::vector<long>& most, bool continuousLast) {
    Answer answer{Truth::Infeasible, 0};
    bool unbounded = false;
    Point x(most.size());
    while (true) {
        const auto best = bestWith(p, x, continuousLast, unbounded);
        if (unbounded) return {Truth::Unbounded, 0};
        if (best && (answer.truth == Truth::Infeasible || *best > answer.objective))
            answer = {Truth::Optimal, *best};
        std::size_t j = 0;
        while (j < x.size() && x[j] == most[j]) x[j++] = 0;
        if (j == x.size()) return answer;
        x[j] += 1;
    }
}

long wholePart(const mpq_class& number) {
    const mpz_class whole = number.get_num() / number.get_den();
    return whole.fits_slong_p() ? whole.get_si() : mostPoints + 1;
}

bool fewEnough(const std::vector<long>& most) {
    long points = 1;
    for (const long each : most) {
        if (each >= mostPoints) return false;
        points *= each + 1;
        if (points > mostPoints) return false;
    }
    return true;
}

/// The most that each integer variable can be by one row alone whose other coefficients aren't negative;
/// nothing where no row tells.
std::optional<std::vector<long>> limitsByRows(const Polyhedron& p, std::size_t integers) {
    std::vector<long> most(integers, -1);
    for (const HalfSpace& side : p.sides) {
        if (std::any_of(side.coefs.begin(), side.coefs.end(), [](const mpq_class& c) { return c < 0; }))
            continue;
        for (std::size_t j = 0; j < integers; ++j) {
            if (side.coefs[j] == 0) continue;
            const long end = std::max(0L, wholePart(side.right / side.coefs[j]));
            most[j] = most[j] < 0 ? end : std::min(most[j], end);
        }
    }
    if (std::count(most.begin(), most.end(), -1) > 0) return std::nullopt;
    return most;
}

std::vector<long> limitsByVertices(const std::vector<Point>& corners, std::size_t integers) {
    std::vector<long> most(integers, 0);
    for (const Point& corner : corners)
        for (std::size_t j = 0; j < integers; ++j) most[j] = std::max(most[j], wholePart(corner[j]));
    return most;
}

/// Where some variable has no limit of its own: by the corners and endless directions of the polyhedron.
Answer byGeometry(Polyhedron p, std::size_t integers, bool continuousLast) {
    const std::vector<Point> corners = vertices(p);
    if (corners.empty()) return {Truth::Infeasible, 0};
    const std::vector<Point> directions = rays(p);
    if (directions.empty()) {
        const std::vector<long> most = limitsByVertices(corners, integers);
        return fewEnough(most) ? triedUpTo(p, most, continuousLast) : Answer{};
    }
    const std::vector<long> near(integers, farEnough);
    const Answer first = triedUpTo(p, near, continuousLast);
    const bool improving = std::any_of(directions.begin(), directions.end(),
                                       [&](const Point& ray) { return value(p, ray) > 0; });
    if (first.truth == Truth::Infeasible) return {};
    if (improving) return {Truth::Unbounded, 0};
    // Only what is at least as good as the best so far can matter.
    Point down = p.objective;
    for (mpq_class& coefficient : down) coefficient = -coefficient;
    p.sides.push_back({down, -first.objective});
    if (!rays(p).empty()) return {};
    const std::vector<long> most = limitsByVertices(vertices(p), integers);
    return fewEnough(most) ? triedUpTo(p, most, continuousLast) : Answer{};
}

} // namespace

double Decimal::typed() const {
    return std::strtod((std::to_string(mantissa) + "E" + std::to_string(power)).c_str(), nullptr);
}

mpq_class Decimal::fraction() const {
    mpz_class scale;
    mpz_ui_pow_ui(scale.get_mpz_t(), 10, static_cast<unsigned long>(std::abs(power)));
    mpq_class result = mpq_class(mpz_class(std::to_string(mantissa)));
    if (power < 0)
        result /= scale;
    else
        result *= scale;
    return result;
}

miprog::SolverInput TypedProblem::input() const {
    miprog::SolverInput input;
    input.objectiveFlag = maximize ? 1 : -1;
    input.m = static_cast<int>(rows.size());
    input.n = static_cast<int>(variables());
    for (std::size_t j = 0; j < variables(); ++j) {
        input.names.add(std::to_string(j + 1));
        input.objCoef.add(objective[j].typed());
        input.bounds.add({0, j < integers() && binary[j] ? 1 : miprog::noBound});
        if (j < integers()) input.intIndex.add(static_cast<int>(j) + 1);
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const int sense = relations[i] == '<' ? 1 : relations[i] == '=' ? 0 : -1;
        input.rowSense.add(sense);
        ++(sense > 0 ? input.lessCount : sense == 0 ? input.equalCount : input.greaterCount);
        input.rhs.add(rhs[i].typed());
        for (const Decimal& coefficient : rows[i]) input.coefs.add(coefficient.typed());
    }
    return input;
}

Answer enumerated(const TypedProblem& problem) {
    const Polyhedron p = polyhedronOf(problem);
    const auto most = limitsByRows(p, problem.integers());
    constexpr std::size_t geometryLimit = 3;
    Answer answer;
    if (most && fewEnough(*most))
        answer = triedUpTo(p, *most, problem.continuousLast);
    else if (!most && problem.variables() <= geometryLimit)
        answer = byGeometry(p, problem.integers(), problem.continuousLast);
    if (!problem.maximize) answer.objective = -answer.objective;
    return answer;
}

} // namespace vantore::mip::tests
