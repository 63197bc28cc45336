#include "solvers/great_circle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantore {

namespace {

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

double haversine(double angle) {
    const double half = std::sin(angle / 2);
    return half * half;
}

} // namespace

double greatCircleMiles(EarthPlace a, EarthPlace b) {
    const double latitudeA = radians(a.latitude);
    const double latitudeB = radians(b.latitude);
    const double share = haversine(latitudeB - latitudeA) + std::cos(latitudeA) * std::cos(latitudeB) *
                                                                haversine(radians(b.longitude - a.longitude));
    return 2 * earthRadius * std::asin(std::sqrt(std::clamp(share, 0.0, 1.0)));
}

} // namespace vantore
