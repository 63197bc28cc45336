#include "tests/routing/Distance/plain_calculator.h"

#include <cmath>

#include "shell/base/number_text.h"

namespace vantore::distance::tests {

namespace {

double overEarth(const Place& from, const Place& to) {
    const double f = 1 / 294.9786982138;
    const double r = 1 - f;
    const double lat1 = from.latitude / 57.295779513;
    const double lat2 = to.latitude / 57.295779513;
    const double lon = -to.longitude / 57.295779513 + from.longitude / 57.295779513;
    const double t1 = r * std::sin(lat1) / std::cos(lat1);
    const double t2 = r * std::sin(lat2) / std::cos(lat2);
    const double c1 = 1 / std::sqrt(t1 * t1 + 1);
    const double s1 = c1 * t1;
    const double c2 = 1 / std::sqrt(t2 * t2 + 1);
    const double s = c1 * c2;
    const double b = s * t2;
    double x = lon;
    while (true) {
        const double sx = std::sin(x);
        const double cx = std::cos(x);
        const double u1 = c2 * sx;
        const double u2 = b - s1 * c2 * cx;
        const double sy = std::sqrt(u1 * u1 + u2 * u2);
        const double cy = s * cx + b * t1;
        const double y = std::atan(sy / cy) + (cy < 0 ? 3.141592653 : 0);
        const double sa = s * sx / sy;
        const double c2a = 1 - sa * sa;
        double cz = 2 * b * t1;
        if (c2a > 0) cz = cy - cz / c2a;
        const double e = 2 * cz * cz - 1;
        double c = ((4 - 3 * c2a) * f + 4) * c2a * f / 16;
        double d = x;
        x = (1 - c) * ((e * cy * c + cz) * sy * c + y) * sa * f + lon;
        if (std::abs(d - x) > 5E-14) continue;
        const double root = std::sqrt((1 / r / r - 1) * c2a + 1) + 1;
        const double q = (root - 2) / root;
        c = (q * q / 4 + 1) / (1 - q);
        d = (.375 * q * q - 1) * q;
        const double t = 1 - 2 * e;
        return ((((sy * sy * 4 - 3) * t * cz * d / 6 - e * cy) * d / 4 + cz) * sy * d + y) * c * 6378206.4 *
               r;
    }
}

std::string withoutComma(const std::string& text) {
    return text.substr(0, text.find(','));
}

} // namespace

void PlainCalculator::calculate(const Problem& problem) {
    const double kilometres = problem.dimension == Dimension::Kilometers ? 1.6094 : 1;
    if (problem.type == CoordinateType::LinearGrid) {
        const double d = std::hypot(problem.origin.latitude - problem.destination.latitude,
                                    problem.origin.longitude - problem.destination.longitude) *
                         problem.mapFactor * problem.circuityFactor * kilometres;
        total_ += d;
        distanceBox = format(d, "##,###.#0");
        totalBox = format(total_, "##,###.#0");
        return;
    }
    const double d = std::abs(overEarth(problem.origin, problem.destination) / 1609.34885 * kilometres *
                              problem.circuityFactor * problem.mapFactor);
    distanceBox = defaultText(std::floor(d * 100) / 100);
    totalBox = format(std::floor((val(withoutComma(totalBox)) + d) * 100) / 100, "##,###.#0");
}

} // namespace vantore::distance::tests
