#include "routing/Distance/method.h"

#include <cmath>
#include <numbers>

#include "shell/base/arithmetic.h"

namespace vantore::distance {

namespace {

constexpr double pi = 3.141592653; // of the arctangent's cases, to nine decimals
constexpr double degreesPerRadian = 57.295779513;
constexpr double semiMajorAxis = 6378206.4; // metres, Clarke 1866
constexpr double flattening = 1 / 294.9786982138;
constexpr double metresPerMile = 1609.34885;
constexpr double kilometresPerMile = 1.6094;
constexpr double convergence = 5E-14; // radians
constexpr int mostPasses = 1000;
constexpr double poleLatitude = 90; // degrees

double kilometresFactor(Dimension dimension) {
    return dimension == Dimension::Kilometers ? kilometresPerMile : 1;
}

double latitudeAngle(double degrees) {
    const double size = std::abs(degrees);
    const double angle = size == poleLatitude ? std::numbers::pi / 2 : size / degreesPerRadian;
    return degrees < 0 ? -angle : angle;
}

/// East is positive, as the formula has it.
double longitudeAngle(double degrees) {
    return -degrees / degreesPerRadian;
}

/// The latitude on the sphere that the ellipsoid is mapped to.
struct ReducedLatitude {
    double tangent, cosine, sine;

    explicit ReducedLatitude(double angle)
        : tangent((1 - flattening) * std::sin(angle) / std::cos(angle)),
          cosine(1 / std::sqrt(tangent * tangent + 1)), sine(cosine * tangent) {}
};

/// One pass of the inverse solution, for a difference x of the longitudes on the sphere.
class Pass {
  public:
    Pass(const ReducedLatitude& origin, const ReducedLatitude& destination, double x, const Tell& tell)
        : origin_(origin), destination_(destination), sinX_(std::sin(x)), cosX_(std::cos(x)),
          cosines_(origin.cosine * destination.cosine), b_(cosines_ * destination.tangent) {
        const double f = b_ * origin.tangent;
        const double u1 = destination.cosine * sinX_;
        const double u2 = b_ - origin.sine * destination.cosine * cosX_;
        sinArc_ = std::sqrt(u1 * u1 + u2 * u2);
        cosArc_ = cosines_ * cosX_ + f;
        arc_ = datan2(sinArc_, cosArc_, tell);
        sinAzimuth_ = divide(cosines_ * sinX_, sinArc_);
        cosSquared_ = 1 - sinAzimuth_ * sinAzimuth_;
        midpoint_ = cosSquared_ > 0 ? cosArc_ - (f + f) / cosSquared_ : f + f;
        e_ = 2 * midpoint_ * midpoint_ - 1;
    }

    /// The next difference of the longitudes, for `difference` on the ellipsoid.
    double nextX(double difference) const {
        const double c = ((4 - 3 * cosSquared_) * flattening + 4) * cosSquared_ * flattening / 16;
        const double x = ((e_ * cosArc_ * c + midpoint_) * sinArc_ * c + arc_) * sinAzimuth_;
        return (1 - c) * x * flattening + difference;
    }

    Geodesic geodesic(const Tell& tell) const {
        return {metres(),
                datan2(destination_.cosine * sinX_, b_ - origin_.sine * destination_.cosine * cosX_, tell),
                datan2(origin_.cosine * sinX_, b_ * cosX_ - origin_.sine * destination_.cosine, tell)};
    }

  private:
    double metres() const {
        constexpr double r = 1 - flattening;
        const double root = std::sqrt((1 / r / r - 1) * cosSquared_ + 1) + 1;
        const double x = (root - 2) / root;
        const double c = (x * x / 4 + 1) / (1 - x);
        const double d = (.375 * x * x - 1) * x;
        const double t = 1 - e_ - e_;
        const double inner = (sinArc_ * sinArc_ * 4 - 3) * t * midpoint_ * d / 6 - e_ * cosArc_;
        return ((inner * d / 4 + midpoint_) * sinArc_ * d + arc_) * c * semiMajorAxis * r;
    }

    const ReducedLatitude& origin_;
    const ReducedLatitude& destination_;
    double sinX_, cosX_;
    double cosines_, b_;
    double sinArc_, cosArc_, arc_; // between the places on the sphere
    double sinAzimuth_;            // where the geodesic crosses the equator
    double cosSquared_;            // of that azimuth
    double midpoint_;              // cosine of twice the arc from the equator to the geodesic's middle
    double e_;
};

} // namespace

double linearDistance(const Problem& problem) {
    const double vertical = problem.origin.latitude - problem.destination.latitude;
    const double horizontal = problem.origin.longitude - problem.destination.longitude;
    const double straight = std::sqrt(finite(vertical * vertical + horizontal * horizontal));
    const double factor = problem.mapFactor * problem.circuityFactor;
    return finite(straight * factor * kilometresFactor(problem.dimension));
}

double datan2(double a, double b, const Tell& tell) {
    if (a == 0 && b == 0) tell("Error in data entry.  Check whether coordinates are zero.");
    if (a == 0) return b < 0 ? pi : 0;
    if (b == 0) return a > 0 ? pi / 2 : -pi / 2;
    const double angle = std::atan(a / b);
    if (b > 0) return angle;
    return a > 0 ? angle + pi : angle - pi;
}

std::optional<Geodesic> geodesic(Place origin, Place destination, const Tell& tell) {
    const ReducedLatitude from(latitudeAngle(origin.latitude));
    const ReducedLatitude to(latitudeAngle(destination.latitude));
    const double difference = longitudeAngle(destination.longitude) - longitudeAngle(origin.longitude);
    double x = difference;
    for (int pass = 1; pass <= mostPasses; ++pass) {
        const Pass solution(from, to, x, tell);
        const double before = x;
        x = solution.nextX(difference);
        if (std::abs(before - x) <= convergence) return solution.geodesic(tell);
    }
    return std::nullopt;
}

std::optional<double> earthDistance(const Problem& problem, const Tell& tell) {
    if (problem.origin == problem.destination) return 0;
    const std::optional<Geodesic> line = geodesic(problem.origin, problem.destination, tell);
    if (!line) return std::nullopt;
    const double miles = line->metres / metresPerMile;
    const double shown = miles * kilometresFactor(problem.dimension);
    return std::abs(finite(shown * problem.circuityFactor * problem.mapFactor));
}

} // namespace vantore::distance
