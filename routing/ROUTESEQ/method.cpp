#include "routing/ROUTESEQ/method.h"

#include <algorithm>

#include "routing/ROUTESEQ/hull.h"
#include "routing/ROUTESEQ/insertion.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::routeseq {

namespace {

constexpr int depotPoint = 1;

} // namespace

std::vector<int> shortSequence(const Points& points) {
    std::vector<int> tour = tourThroughAll(points, convexHull(points));
    std::rotate(tour.begin(), std::find(tour.begin(), tour.end(), depotPoint), tour.end());
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

} // namespace vantore::routeseq
