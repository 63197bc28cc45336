#pragma once

namespace vantore {

/// A place on the earth in degrees. Whether west or east longitudes are positive doesn't matter, as long as
/// it is the same for all.
struct EarthPlace {
    double latitude = 0;
    double longitude = 0;
};

/// Statute miles.
constexpr double earthRadius = 3958.8;

/// The length in statute miles of the great circle between two places on a sphere of `earthRadius`, by the
/// haversine formula, which keeps its digits for places close to each other.
/// Source: Sinnott, "Virtues of the haversine", Sky and Telescope 68 (1984).
double greatCircleMiles(EarthPlace a, EarthPlace b);

} // namespace vantore
