#include "solvers/MIP/model.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

/// Exact numbers brought to whole ones without a common divisor, and what they were multiplied by.
struct Scaled {
    std::vector<Integer> numbers;
    Rational scale = 1;
};

Scaled scaled(const std::vector<Rational>& numbers) {
    Integer denominator = 1;
    for (const Rational& number : numbers) denominator = lcm(denominator, number.get_den());
    Integer divisor = 0;
    Scaled result;
    for (const Rational& number : numbers) {
        result.numbers.emplace_back(number.get_num() * (denominator / number.get_den()));
        divisor = gcd(divisor, result.numbers.back());
    }
    if (divisor == 0) divisor = 1;
    for (Integer& number : result.numbers) number /= divisor;
    result.scale = Rational(denominator, divisor);
    result.scale.canonicalize();
    return result;
}

bool hasLower(const miprog::Bounds& bounds) {
    return bounds.lower > -miprog::noBound;
}

bool hasUpper(const miprog::Bounds& bounds) {
    return bounds.upper < miprog::noBound;
}

/// The bounds of variable j, and what makes them whole where the variable is continuous.
void addVariable(Model& model, const SolverInput& input, int j) {
    const miprog::Bounds& bounds = input.bounds(j);
    const Rational lower = exact(bounds.lower);
    const Rational upper = exact(bounds.upper);
    Rational scale = 1;
    if (!model.whole[static_cast<std::size_t>(j - 1)]) {
        if (hasLower(bounds)) scale *= lower.get_den();
        if (hasUpper(bounds)) scale = lcm(scale.get_num(), upper.get_den());
    }
    Range range;
    if (hasLower(bounds))
        range.lower = ceilingOf(Integer(lower.get_num() * scale.get_num()), lower.get_den());
    if (hasUpper(bounds)) range.upper = floorOf(Integer(upper.get_num() * scale.get_num()), upper.get_den());
    model.box.push_back(range);
    model.columnScale.push_back(scale);
}

Row rowOf(const SolverInput& input, const Model& model, int i) {
    std::vector<Rational> numbers;
    for (int j = 1; j <= input.n; ++j)
        numbers.emplace_back(exact(input.coef(i, j)) / model.columnScale[static_cast<std::size_t>(j - 1)]);
    numbers.push_back(exact(input.rhs(i)));
    const Scaled whole = scaled(numbers);
    Row row;
    for (std::size_t j = 0; j < model.columnCount(); ++j)
        if (whole.numbers[j] != 0) row.terms.push_back({j, whole.numbers[j]});
    if (input.rowSense(i) <= 0) row.range.lower = whole.numbers.back();
    if (input.rowSense(i) >= 0) row.range.upper = whole.numbers.back();
    row.scale = whole.scale;
    return row;
}

bool keeps(const miprog::Bounds& bounds, const Rational& value) {
    return !(hasLower(bounds) && value < exact(bounds.lower)) &&
           !(hasUpper(bounds) && value > exact(bounds.upper));
}

bool keeps(const SolverInput& input, int i, const Rational& leftSide) {
    const Rational rhs = exact(input.rhs(i));
    return (input.rowSense(i) > 0 || leftSide >= rhs) && (input.rowSense(i) < 0 || leftSide <= rhs);
}

} // namespace

bool Model::hasWholeObjective() const {
    for (std::size_t j = 0; j < costs.size(); ++j)
        if (costs[j] != 0 && !whole[j]) return false;
    return true;
}

Model exactModel(const SolverInput& input) {
    Model model;
    model.whole.assign(static_cast<std::size_t>(input.n), false);
    for (const int j : input.intIndex.span()) model.whole[static_cast<std::size_t>(j - 1)] = true;
    for (int j = 1; j <= input.n; ++j) addVariable(model, input, j);
    for (int i = 1; i <= input.m; ++i) model.rows.push_back(rowOf(input, model, i));
    std::vector<Rational> costs;
    for (int j = 1; j <= input.n; ++j)
        costs.emplace_back(-input.objectiveFlag * exact(input.objCoef(j)) /
                           model.columnScale[static_cast<std::size_t>(j - 1)]);
    Scaled objective = scaled(costs);
    model.costs = std::move(objective.numbers);
    model.costScale = -input.objectiveFlag * objective.scale;
    return model;
}

std::optional<int> variableWithoutWholeNumber(const Model& model) {
    for (std::size_t j = 0; j < model.columnCount(); ++j) {
        const Range& range = model.box[j];
        if (range.lower && range.upper && *range.lower > *range.upper) return static_cast<int>(j) + 1;
    }
    return std::nullopt;
}

Model withoutObjective(Model model) {
    model.costs.assign(model.costs.size(), 0);
    return model;
}

std::optional<Solution> checked(const SolverInput& input, std::vector<Rational> values) {
    if (values.size() != static_cast<std::size_t>(input.n)) return std::nullopt;
    const auto value = [&values](int j) -> const Rational& {
        return values[static_cast<std::size_t>(j - 1)];
    };
    for (const int j : input.intIndex.span())
        if (!isWhole(value(j))) return std::nullopt;
    Solution solution;
    for (int j = 1; j <= input.n; ++j) {
        if (!keeps(input.bounds(j), value(j))) return std::nullopt;
        solution.objective += exact(input.objCoef(j)) * value(j);
    }
    for (int i = 1; i <= input.m; ++i) {
        Rational leftSide;
        for (int j = 1; j <= input.n; ++j)
            if (value(j) != 0 && input.coef(i, j) != 0) leftSide += exact(input.coef(i, j)) * value(j);
        if (!keeps(input, i, leftSide)) return std::nullopt;
        solution.leftSides.push_back(leftSide);
    }
    solution.values = std::move(values);
    return solution;
}

bool better(const SolverInput& input, const Rational& objective, const Rational& other) {
    return input.objectiveFlag > 0 ? objective > other : objective < other;
}

} // namespace vantore::mip
