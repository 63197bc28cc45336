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

/// Sums of w, w x and w y over the points.
struct WeightedSums {
    Number x;
    Number y;
    Number weight;

    Location mean() const { return {x / weight, y / weight}; }
};

/// `divisorOf` gives what each weight is divided by.
template <class Divisor>
WeightedSums sumsOf(const Problem& problem, Divisor divisorOf) {
    WeightedSums sums;
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Point& point = problem.points(i);
        const double divisor = divisorOf(point);
        sums.x += point.weight() * point.x / divisor;
        sums.weight += point.weight() / divisor;
        sums.y += point.weight() * point.y / divisor;
    }
    return sums;
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
    const WeightedSums sums = sumsOf(problem, [](const Point&) { return 1.0; });
    if (sums.weight == 0) return std::nullopt;
    return sums.mean();
}

Location nextLocation(const Problem& problem, Location current) {
    return sumsOf(problem,
                  [&](const Point& point) {
                      const double d = distance(problem, current, point);
                      return d == 0 ? leastDistance : d;
                  })
        .mean();
}

} // namespace vantore::cog
