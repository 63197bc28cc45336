#pragma once

#include "routing/ROUTESEQ/problem.h"

namespace vantore::routeseq {

constexpr int mostPoints = mostSolvedStops + 1;

/// What no length, area or coordinate of the method reaches.
constexpr double beyondAll = 9999999;

struct Point {
    double x = 0;
    double y = 0;

    bool operator==(const Point&) const = default;
};

/// The points of a tour: point 1 is the depot, point k + 1 is stop k. Coordinates are rounded to single
/// precision, so that points which can't be told apart in it are one place.
class Points {
  public:
    /// SubscriptOutOfRange for more than 50 stops, Overflow for a coordinate beyond single precision.
    explicit Points(const StopSequencingProblem& problem);

    int count() const { return count_; }
    const Point& operator()(int point) const { return points_(point); }

    /// The straight line between two points in the coordinates' unit.
    double distance(int a, int b) const { return distances_(a, b); }

    bool coincide(int a, int b) const { return points_(a) == points_(b); }

  private:
    int count_ = 0;
    Table<Point, 1, mostPoints> points_;
    Table2<double, 1, mostPoints, 1, mostPoints> distances_;
};

} // namespace vantore::routeseq
