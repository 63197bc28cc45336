#include "routing/ROUTESEQ/points.h"

#include <cmath>
#include <limits>

namespace vantore::routeseq {

namespace {

double single(double value) {
    if (std::abs(value) > std::numeric_limits<float>::max()) throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<float>(value);
}

double distanceBetween(const Point& a, const Point& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return std::sqrt(dx * dx + dy * dy);
}

} // namespace

Points::Points(const StopSequencingProblem& problem) {
    points_(++count_) = {single(problem.depotX), single(problem.depotY)};
    for (int stop = 1; stop <= problem.stopCount; ++stop)
        points_(++count_) = {single(problem.stops(stop).x), single(problem.stops(stop).y)};
    for (int a = 1; a <= count_; ++a)
        for (int b = 1; b <= count_; ++b) distances_(a, b) = distanceBetween(points_(a), points_(b));
}

} // namespace vantore::routeseq
