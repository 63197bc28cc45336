#include "routing/ROUTESEQ/method.h"

#include <algorithm>
#include <cmath>

#include "routing/ROUTESEQ/hull.h"
#include "routing/ROUTESEQ/insertion.h"
#include "routing/destring.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::routeseq {

namespace {

constexpr int depotPoint = 1;

/// Number 0 is the depot.
Point placeOf(const StopSequencingProblem& problem, double number) {
    if (number == 0) return {problem.depotX, problem.depotY};
    const int stop = toInt32(number);
    checkIndex(stop, 1, problem.stopCount);
    return {problem.stops(stop).x, problem.stops(stop).y};
}

double straightLine(const Point& a, const Point& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return std::sqrt(finite(dx * dx + dy * dy));
}

} // namespace

std::vector<int> shortSequence(const Points& points) {
    std::vector<int> tour = tourThroughAll(points, convexHull(points));
    std::ranges::rotate(tour, std::ranges::find(tour, depotPoint));
    std::vector<int> stops(tour.begin() + 1, tour.end());
    for (int& stop : stops) --stop;
    return stops;
}

std::optional<int> specifiedStop(std::string_view answer, int stopCount) {
    const double number = val(answer);
    if (number < 1 || number > stopCount) return std::nullopt;
    return toInt32(number);
}

std::string sequenceText(const std::vector<int>& stops) {
    std::string text;
    for (const int stop : stops) text += str(stop);
    return text;
}

double routeDistance(const StopSequencingProblem& problem, std::string_view sequence) {
    const Point depot = placeOf(problem, 0);
    Point at = depot;
    double distance = 0;
    const CountedTable<double> numbers = routing::destring(sequence);
    for (const double number : numbers.span()) {
        const Point next = placeOf(problem, number);
        distance += straightLine(at, next);
        at = next;
    }
    return problem.onTheRoad(distance + straightLine(at, depot));
}

} // namespace vantore::routeseq
