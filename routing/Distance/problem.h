#pragma once

#include <optional>
#include <string>

namespace vantore::distance {

enum class CoordinateType { LinearGrid, LatitudeLongitude };
enum class Dimension { Miles, Kilometers };

/// A place: on a linear grid its vertical and horizontal coordinate, else its latitude (north positive) and
/// longitude (west positive) in degrees.
struct Place {
    double latitude = 0;
    double longitude = 0;

    bool operator==(const Place&) const = default;
};

struct Problem {
    CoordinateType type = CoordinateType::LinearGrid;
    Dimension dimension = Dimension::Miles;
    Place origin;
    Place destination;
    double circuityFactor = 0; ///< from the straight line to road, rail or street
    double mapFactor = 0;      ///< from coordinates to miles
};

/// What doesn't allow a distance over the earth: all four coordinates 0, as they are before anything is
/// typed.
std::optional<std::string> fault(const Problem& problem);

} // namespace vantore::distance
