#include "location/MCOG/method.h"

#include <cmath>
#include <vector>

#include "shell/base/arithmetic.h"

namespace vantore::mcog {

namespace {

constexpr double beyondAnyCost = 1E+35;
constexpr int mostPasses = 100;
constexpr double leastCost = 0.0000001;
constexpr double leastImprovement = 0.000001; // of the cost
constexpr double leastCurvature = 1E-35;

double squaredDistance(const Point& point, Location from) {
    const double dx = point.x - from.x;
    const double dy = point.y - from.y;
    return finite(dx * dx + dy * dy);
}

/// The cost at a place, and how it changes there.
struct Slope {
    double cost = 0;
    double g1 = 0, g2 = 0;            // the first derivatives
    double hxx = 0, hyy = 0, hxy = 0; // the second ones
};

Slope slopeAt(std::span<const Point> points, Location at) {
    Slope slope;
    for (const Point& point : points) {
        const double dx = point.x - at.x;
        const double dy = point.y - at.y;
        const double r2 = dx * dx + dy * dy;
        if (r2 == 0) continue;
        const double r = std::sqrt(r2);
        const double t = point.weight() / r;
        slope.g1 -= t * dx;
        slope.g2 -= t * dy;
        const double u = t / r2;
        slope.hxx += u * (dy * dy);
        slope.hyy += u * (dx * dx);
        slope.hxy -= u * dx * dy;
        slope.cost += point.weight() * r;
    }
    for (const double sum : {slope.cost, slope.g1, slope.g2, slope.hxx, slope.hyy, slope.hxy}) finite(sum);
    return slope;
}

/// The change of the slope along the gradient or, where that is larger, across it.
double curvature(const Slope& s) {
    const Number g1 = s.g1;
    const Number g2 = s.g2;
    const double along = s.hxx * (g1 * g1) + 2 * s.hxy * g1 * g2 + s.hyy * (g2 * g2);
    const double across = s.hxx * (g2 * g2) - 2 * s.hxy * g1 * g2 + s.hyy * (g1 * g1);
    return std::abs(along) < std::abs(across) ? across : along;
}

Location stepDown(Location from, const Slope& slope, double curvature) {
    const Number step = (Number(slope.g1) * slope.g1 + Number(slope.g2) * slope.g2) / curvature;
    return {from.x - step * slope.g1, from.y - step * slope.g2};
}

Location weightedMean(std::span<const Point> points) {
    WeightedSums sums;
    for (const Point& point : points) sums.add(point);
    return sums.mean();
}

std::vector<Point> pointsOf(const Problem& problem, const Plan& plan, int facility) {
    std::vector<Point> points;
    for (int i = 1; i <= problem.rowCount; ++i)
        if (plan.assignedTo(i) == facility) points.push_back(problem.points(i));
    return points;
}

double totalCost(const Problem& problem, const Plan& plan) {
    Number total;
    for (int j = 1; j <= plan.facilityCount; ++j) total += problem.mapFactor * plan.facilities(j).cost;
    return total;
}

} // namespace

Facility singleFacility(std::span<const Point> points) {
    Facility facility{weightedMean(points), 0};
    if (points.size() == 1) return facility;
    Location& at = facility.location;
    Location previous = at;
    double best = beyondAnyCost;
    for (int pass = 1; pass <= mostPasses; ++pass) {
        const Slope slope = slopeAt(points, at);
        facility.cost = slope.cost;
        if (facility.cost > best) {
            const Location tooFar = at;
            at = {(previous.x + at.x) * 0.5, (previous.y + at.y) * 0.5};
            previous = tooFar;
            continue;
        }
        if (facility.cost == 0) facility.cost = leastCost;
        if ((best - facility.cost) / facility.cost <= leastImprovement) break;
        previous = at;
        best = facility.cost;
        const double bend = curvature(slope);
        if (bend < leastCurvature) break;
        at = stepDown(at, slope, bend);
    }
    return facility;
}

Plan seeded(const Problem& problem, int facilityCount) {
    Plan plan;
    plan.facilityCount = facilityCount;
    for (int i = 1; i <= problem.rowCount; ++i) plan.assignedTo(i) = (i - 1) % facilityCount + 1;
    return plan;
}

double relocate(const Problem& problem, Plan& plan) {
    for (int j = 1; j <= plan.facilityCount; ++j) {
        const std::vector<Point> points = pointsOf(problem, plan, j);
        if (points.empty()) {
            plan.facilities(j).cost = 0;
        } else {
            plan.facilities(j) = singleFacility(points);
        }
    }
    return totalCost(problem, plan);
}

void reallocate(const Problem& problem, Plan& plan) {
    for (int i = 1; i <= problem.rowCount; ++i) {
        double nearest = beyondAnyCost;
        for (int j = 1; j <= plan.facilityCount; ++j) {
            const double distance = squaredDistance(problem.points(i), plan.facilities(j).location);
            if (distance >= nearest) continue;
            nearest = distance;
            plan.assignedTo(i) = j;
        }
    }
}

Plan improved(const Problem& problem, Plan plan) {
    double best = beyondAnyCost;
    while (true) {
        plan.totalCost = relocate(problem, plan);
        reallocate(problem, plan);
        if (plan.totalCost >= best) return plan;
        best = plan.totalCost;
    }
}

Plan located(const Problem& problem, int facilityCount) {
    return improved(problem, seeded(problem, facilityCount));
}

void price(const Problem& problem, Plan& plan) {
    for (int j = 1; j <= plan.facilityCount; ++j) {
        Number cost;
        for (int i = 1; i <= problem.rowCount; ++i) {
            const Point& point = problem.points(i);
            if (plan.assignedTo(i) == j)
                cost += std::sqrt(squaredDistance(point, plan.facilities(j).location)) * point.volume *
                        point.rate;
        }
        plan.facilities(j).cost = cost;
    }
    plan.totalCost = totalCost(problem, plan);
}

} // namespace vantore::mcog
