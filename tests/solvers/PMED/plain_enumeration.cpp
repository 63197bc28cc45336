#include "tests/solvers/PMED/plain_enumeration.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>

namespace vantore::pmed::tests {

namespace {

using Direction = std::array<long double, 3>;

/// The unit vector from the centre of the earth to a point.
Direction directionOf(const Site& site) {
    const long double degree = std::numbers::pi_v<long double> / 180;
    const long double latitude = site.y * degree;
    const long double longitude = site.x * degree;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
            std::sin(latitude)};
}

/// The angle between two directions, from the lengths of their difference and their sum.
long double angleBetween(const Direction& a, const Direction& b) {
    long double apart = 0;
    long double together = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        apart += (a[i] - b[i]) * (a[i] - b[i]);
        together += (a[i] + b[i]) * (a[i] + b[i]);
    }
    return 2 * std::atan2(std::sqrt(apart), std::sqrt(together));
}

using Distances = std::array<std::array<long double, mostPoints + 1>, mostPoints + 1>;

Distances distancesOf(const Problem& problem) {
    Distances distances{};
    for (int i = 1; i <= problem.rowCount; ++i)
        for (int j = 1; j <= problem.rowCount; ++j)
            distances[static_cast<std::size_t>(i)][static_cast<std::size_t>(j)] =
                plainDistance(problem, i, j);
    return distances;
}

PlainCost costOf(const Problem& problem, const Distances& distances, const std::vector<int>& sites) {
    PlainCost cost;
    for (const int site : sites) cost.fixed += problem.sites(site).fixedCost;
    for (int i = 1; i <= problem.rowCount; ++i) {
        long double nearest = std::numeric_limits<long double>::infinity();
        for (const int site : sites)
            nearest =
                std::min(nearest, distances[static_cast<std::size_t>(i)][static_cast<std::size_t>(site)]);
        cost.transport += static_cast<long double>(problem.sites(i).volume) * problem.sites(i).rate * nearest;
    }
    return cost;
}

} // namespace

long double plainDistance(const Problem& problem, int from, int to) {
    const Site& a = problem.sites(from);
    const Site& b = problem.sites(to);
    if (problem.coordinates == Coordinates::Degrees)
        return 3958.8L * problem.vScale * angleBetween(directionOf(a), directionOf(b));
    const long double dx = (static_cast<long double>(a.x) - b.x) * problem.hScale;
    const long double dy = (static_cast<long double>(a.y) - b.y) * problem.vScale;
    return std::sqrt(dx * dx + dy * dy);
}

PlainCost plainCost(const Problem& problem, const std::vector<int>& sites) {
    return costOf(problem, distancesOf(problem), sites);
}

PlainCost leastCost(const SolverInput& input) {
    std::vector<int> candidates;
    for (int i = 1; i <= input.problem.rowCount; ++i)
        if (input.problem.sites(i).candidate) candidates.push_back(i);
    const Distances distances = distancesOf(input.problem);
    PlainCost best{std::numeric_limits<long double>::infinity(), 0};
    for (unsigned pattern = 0; pattern < 1U << candidates.size(); ++pattern) {
        if (std::popcount(pattern) != static_cast<int>(input.sitesToLocate)) continue;
        std::vector<int> sites;
        for (std::size_t k = 0; k < candidates.size(); ++k)
            if ((pattern >> k & 1U) != 0) sites.push_back(candidates[k]);
        const PlainCost cost = costOf(input.problem, distances, sites);
        if (cost.total() < best.total()) best = cost;
    }
    return best;
}

} // namespace vantore::pmed::tests
