#pragma once

#include <functional>
#include <optional>
#include <string>

#include "routing/Distance/problem.h"

namespace vantore::distance {

/// The straight line on a grid times both factors, in the problem's dimension. Overflow beyond the double
/// range.
double linearDistance(const Problem& problem);

/// Takes a text for the user.
using Tell = std::function<void(const std::string&)>;

/// The full-circle arctangent of a over b, in radians from -pi to pi with pi to nine decimals; 0, and `tell`
/// has the reason, when both are 0.
double datan2(double a, double b, const Tell& tell);

/// The shortest line over the earth. Azimuths are the directions of travel at its two ends, in radians
/// clockwise from north.
struct Geodesic {
    double metres = 0;
    double originAzimuth = 0;
    double destinationAzimuth = 0;
};

/// The geodesic between two different places on the ellipsoid of Clarke (1866); nothing where the iteration
/// doesn't settle within 1000 passes, as for places nearly opposite each other. DivisionByZero where rounding
/// leaves no angle between the places.
/// Source: Vincenty, "Direct and inverse solutions of geodesics on the ellipsoid with application of nested
/// equations", Survey Review 23 (1975).
std::optional<Geodesic> geodesic(Place origin, Place destination, const Tell& tell);

/// The geodesic's length times both factors, in the problem's dimension, never negative; 0 between equal
/// places, nothing where `geodesic` gives nothing.
std::optional<double> earthDistance(const Problem& problem, const Tell& tell);

} // namespace vantore::distance
