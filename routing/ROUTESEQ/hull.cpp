#include "routing/ROUTESEQ/hull.h"

#include <bitset>
#include <cmath>

namespace vantore::routeseq {

namespace {

constexpr double leastDifference = .0000001; // what is smaller counts as 0

double difference(double a, double b) {
    return std::abs(a - b) < leastDifference ? 0 : a - b;
}

/// The leftmost point, of several the lowest, of several at one place the first.
int startingPoint(const Points& points) {
    int start = 0;
    Point least = {beyondAll, beyondAll};
    for (int c = 1; c <= points.count(); ++c) {
        const Point& point = points(c);
        if (point.x > least.x || (point.x == least.x && point.y >= least.y)) continue;
        least = point;
        start = c;
    }
    checkIndex(start, 1, points.count());
    return start;
}

/// On which side of a line a point lies: positive or negative, 0 on the line.
class SideOfLine {
  public:
    SideOfLine(const Point& p, const Point& q) : p_(p), dx_(difference(p.x, q.x)) {
        if (dx_ == 0) return;
        const double dy = difference(p.y, q.y);
        slope_ = dy / dx_;
        intercept_ = dy == 0 ? p.y : (q.y * p.x - p.y * q.x) / dx_;
    }

    double operator()(const Point& r) const {
        if (dx_ == 0) return difference(p_.x, r.x);
        return difference(r.y, r.x * slope_ + intercept_);
    }

  private:
    Point p_;
    double dx_;
    double slope_ = 0;
    double intercept_ = 0;
};

/// True when no two of the other points lie on different sides of the line through p and q.
bool allOnOneSide(const Points& points, int p, int q) {
    const SideOfLine side(points(p), points(q));
    bool above = false;
    bool below = false;
    for (int r = 1; r <= points.count(); ++r) {
        if (points.coincide(r, p) || points.coincide(r, q)) continue;
        const double where = side(points(r));
        above = above || where > 0;
        below = below || where < 0;
        if (above && below) return false;
    }
    return true;
}

} // namespace

std::vector<int> convexHull(const Points& points) {
    std::bitset<mostPoints + 1> onHull;
    std::vector<int> hull;
    // The starting point closes the hull; like any point on it, it can't come next.
    for (int next = startingPoint(points); next != 0;) {
        const int current = next;
        hull.push_back(current);
        onHull.set(static_cast<std::size_t>(current));
        next = 0;
        double nearest = beyondAll;
        for (int c = 1; c <= points.count(); ++c) {
            if (onHull.test(static_cast<std::size_t>(c))) continue;
            const double d = points.distance(c, current);
            const bool here = points.coincide(c, current);
            if (!here && (d >= nearest || !allOnOneSide(points, current, c))) continue;
            nearest = d;
            next = c;
        }
    }
    return hull;
}

} // namespace vantore::routeseq
