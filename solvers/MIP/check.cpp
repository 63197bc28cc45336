#include "solvers/MIP/check.h"

#include <algorithm>
#include <cmath>

#include "shell/base/number_text.h"

namespace vantore::mip {

using miprog::Bounds;
using miprog::SolverInput;

namespace {

std::size_t at(int index) {
    return static_cast<std::size_t>(index - 1);
}

std::string constraintText(int i) {
    return "constraint " + std::to_string(i);
}

std::string variableText(const SolverInput& input, int j) {
    return "variable " + std::to_string(j) + " (" + input.names(j) + ")";
}

bool oversized(double value) {
    return !(std::abs(value) < largestNumber);
}

struct LeftSide {
    double value = 0;
    double scale = 1; ///< the largest term, at least 1
};

LeftSide leftSide(const SolverInput& input, int i, const std::vector<double>& values) {
    LeftSide side;
    for (int j = 1; j <= input.n; ++j) {
        const double term = input.coef(i, j) * values[at(j)];
        side.value += term;
        side.scale = std::max(side.scale, std::abs(term));
    }
    side.scale = std::max(side.scale, std::abs(input.rhs(i)));
    const double noise = roundingNoise * side.scale;
    if (std::abs(side.value) <= noise) side.value = 0;
    if (std::abs(side.value - input.rhs(i)) <= noise) side.value = input.rhs(i);
    return side;
}

/// A value next to 0 is 0, unless its variable has room for nothing else.
void takeOffNoise(const Bounds& bounds, double& value) {
    constexpr double leastRoom = 1E-06;
    if (std::abs(value) <= roundingNoise && bounds.upper - bounds.lower >= leastRoom) value = 0;
}

/// Takes a value that misses its bound by no more than the tolerance onto the bound; false for more.
bool takeOntoBounds(const Bounds& bounds, double& value) {
    const double scale = std::max(1.0, std::abs(value));
    const double taken = std::min(std::max(value, bounds.lower), bounds.upper);
    if (!(std::abs(taken - value) <= checkTolerance * scale)) return false;
    value = taken;
    return true;
}

bool holds(const SolverInput& input, int i, const LeftSide& side) {
    const double over = (side.value - input.rhs(i)) / side.scale;
    if (input.rowSense(i) >= 0 && !(over <= checkTolerance)) return false;
    return input.rowSense(i) > 0 || over >= -checkTolerance;
}

} // namespace

std::optional<std::string> oversizedNumber(const SolverInput& input) {
    const std::string why =
        " is too large: the solver takes numbers below " + defaultText(largestNumber) + ".";
    for (int j = 1; j <= input.n; ++j)
        if (oversized(input.objCoef(j)))
            return "The objective coefficient of " + variableText(input, j) + why;
    for (int i = 1; i <= input.m; ++i) {
        if (oversized(input.rhs(i))) return "The right-hand side of " + constraintText(i) + why;
        for (int j = 1; j <= input.n; ++j)
            if (oversized(input.coef(i, j)))
                return "The coefficient of " + variableText(input, j) + " in " + constraintText(i) + why;
    }
    return std::nullopt;
}

std::optional<std::string> integerWithoutWholeNumber(const SolverInput& input) {
    for (const int j : input.intIndex.span())
        if (std::ceil(input.bounds(j).lower) > std::floor(input.bounds(j).upper))
            return "No whole number is within the bounds of " + variableText(input, j) + ".";
    return std::nullopt;
}

Checked checked(const SolverInput& input, std::vector<double> values) {
    for (const int j : input.intIndex.span()) values[at(j)] = std::nearbyint(values[at(j)]);
    for (int j = 1; j <= input.n; ++j) {
        if (!std::isfinite(values[at(j)]))
            return {std::nullopt, "No number was found for " + variableText(input, j) + "."};
        takeOffNoise(input.bounds(j), values[at(j)]);
        if (!takeOntoBounds(input.bounds(j), values[at(j)]))
            return {std::nullopt, "The value " + defaultText(values[at(j)]) + " of " +
                                      variableText(input, j) + " is outside its bounds."};
    }
    // A bound between two whole numbers must not make an integer variable fractional.
    for (const int j : input.intIndex.span())
        if (values[at(j)] != std::nearbyint(values[at(j)]))
            return {std::nullopt, "The value " + defaultText(values[at(j)]) + " of " +
                                      variableText(input, j) + " is no whole number."};
    Solution solution;
    for (int i = 1; i <= input.m; ++i) {
        const LeftSide side = leftSide(input, i, values);
        if (!holds(input, i, side))
            return {std::nullopt, "The left side of " + constraintText(i) + " is " + defaultText(side.value) +
                                      ", its right side " + defaultText(input.rhs(i)) + "."};
        solution.leftSides.push_back(side.value);
    }
    solution.objective = objectiveOf(input, values).value;
    solution.values = std::move(values);
    return {std::move(solution), ""};
}

ObjectiveValue objectiveOf(const SolverInput& input, const std::vector<double>& values) {
    ObjectiveValue result;
    for (int j = 1; j <= input.n; ++j) {
        const double term = input.objCoef(j) * values[at(j)];
        result.value += term;
        result.scale = std::max(result.scale, std::abs(term));
    }
    if (std::abs(result.value) <= roundingNoise * result.scale) result.value = 0;
    return result;
}

bool better(const SolverInput& input, double objective, double other) {
    return input.objectiveFlag > 0 ? objective > other : objective < other;
}

} // namespace vantore::mip
