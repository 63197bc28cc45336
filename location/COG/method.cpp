#include "location/COG/method.h"

#include <cmath>

#include "shell/base/arithmetic.h"
#include "shell/base/number.h"

namespace vantore::cog {

namespace {

constexpr double leastDistance = 0.000001;

double distance(const Problem& problem, Location from, const Point& to) {
    const Number dx = std::abs(from.x - to.x);
    const Number dy = std::abs(from.y - to.y);
    return power(dx * dx + dy * dy, problem.powerFactor);
}

} // namespace

double totalCost(const Problem& problem, Location at) {
    Number cost;
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Point& point = problem.points(i);
        cost += point.volume * point.rate * problem.mapFactor * distance(problem, at, point);
    }
    return cost;
}

std::optional<Location> centreOfGravity(const Problem& problem) {
    WeightedSums sums;
    for (const Point& point : problem.pointSpan()) sums.add(point);
    if (sums.weight == 0) return std::nullopt;
    return sums.mean();
}

Location nextLocation(const Problem& problem, Location current) {
    WeightedSums sums;
    for (const Point& point : problem.pointSpan()) {
        const double d = distance(problem, current, point);
        sums.add(point, d == 0 ? leastDistance : d);
    }
    return sums.mean();
}

} // namespace vantore::cog
