#include "solvers/MIP/certificates.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "solvers/MIP/check.h"

namespace vantore::mip {

using miprog::SolverInput;

namespace {

constexpr double rounding = 1E-09; // of the largest term: what is less counts as 0

double largest(const std::vector<double>& values) {
    double most = 0;
    for (const double value : values) most = std::max(most, std::abs(value));
    return most;
}

/// Makes what is only rounding exactly 0.
void cleanse(std::vector<double>& values) {
    const double least = rounding * largest(values);
    for (double& value : values)
        if (std::abs(value) <= least) value = 0;
}

std::vector<int> placesOfOthersThan0(const std::vector<double>& values) {
    std::vector<int> places;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (values[i] != 0) places.push_back(static_cast<int>(i) + 1);
    return places;
}

/// A sum together with its largest term.
struct Sum {
    double value = 0;
    double scale = 0;

    void add(double term) {
        value += term;
        scale = std::max(scale, std::abs(term));
    }
    bool isZero() const { return std::abs(value) <= rounding * scale; }
};

/// The most that the sum of the left sides under the multipliers may be; nothing when a multiplier's sign
/// doesn't go with its relation.
std::optional<Sum> mostOfRightSides(const SolverInput& input, const std::vector<double>& multipliers) {
    Sum most;
    for (int i = 1; i <= input.m; ++i) {
        const double multiplier = multipliers[static_cast<std::size_t>(i - 1)];
        if (multiplier * input.rowSense(i) < 0) return std::nullopt;
        most.add(multiplier * input.rhs(i));
    }
    return most;
}

/// The least that the same sum can be within the bounds; nothing when it has no least value.
std::optional<Sum> leastOfLeftSides(const SolverInput& input, const std::vector<double>& multipliers) {
    Sum least;
    const std::vector<int> rows = placesOfOthersThan0(multipliers);
    for (int j = 1; j <= input.n; ++j) {
        Sum factor;
        for (const int i : rows) factor.add(multipliers[static_cast<std::size_t>(i - 1)] * input.coef(i, j));
        if (factor.isZero()) continue;
        const double bound = factor.value > 0 ? input.bounds(j).lower : input.bounds(j).upper;
        if (std::abs(bound) >= largestNumber) return std::nullopt;
        least.add(factor.value * bound);
    }
    return least;
}

bool contradicts(const SolverInput& input, const std::vector<double>& multipliers) {
    const auto most = mostOfRightSides(input, multipliers);
    const auto least = leastOfLeftSides(input, multipliers);
    return most && least && least->value - most->value > rounding * std::max(most->scale, least->scale);
}

/// The bounds allow the direction, and so do the constraints.
bool neverEnds(const SolverInput& input, const std::vector<double>& ray) {
    for (int j = 1; j <= input.n; ++j) {
        const double direction = ray[static_cast<std::size_t>(j - 1)];
        if (direction > 0 && input.bounds(j).upper < largestNumber) return false;
        if (direction < 0 && input.bounds(j).lower > -largestNumber) return false;
    }
    for (int i = 1; i <= input.m; ++i) {
        Sum change;
        for (int j = 1; j <= input.n; ++j)
            change.add(input.coef(i, j) * ray[static_cast<std::size_t>(j - 1)]);
        if (change.isZero()) continue;
        if (input.rowSense(i) == 0 || change.value * input.rowSense(i) > 0) return false;
    }
    return true;
}

bool improves(const SolverInput& input, const std::vector<double>& ray) {
    const ObjectiveValue change = objectiveOf(input, ray);
    return change.value * input.objectiveFlag > rounding * change.scale;
}

} // namespace

std::vector<int> provenConflict(const SolverInput& input, std::vector<double> multipliers) {
    cleanse(multipliers);
    std::vector<double> negatives = multipliers;
    for (double& multiplier : negatives) multiplier = -multiplier;
    const bool proven = contradicts(input, multipliers) || contradicts(input, negatives);
    return proven ? placesOfOthersThan0(multipliers) : std::vector<int>();
}

std::vector<int> conflictInOneRow(const SolverInput& input) {
    std::vector<double> multipliers(static_cast<std::size_t>(input.m), 0);
    for (int i = 1; i <= input.m; ++i) {
        double& own = multipliers[static_cast<std::size_t>(i - 1)];
        for (own = -1; own <= 1; own += 2)
            if (contradicts(input, multipliers)) return {i};
        own = 0;
    }
    return {};
}

std::vector<int> provenRay(const SolverInput& input, std::vector<double> ray) {
    cleanse(ray);
    const bool proven = neverEnds(input, ray) && improves(input, ray);
    return proven ? placesOfOthersThan0(ray) : std::vector<int>();
}

} // namespace vantore::mip
