#pragma once

#include <string>

#include "location/COG/method.h"
#include "shell/forms/picture_surface.h"

namespace vantore::cog {

/// The report on the picture surface, line by line as the user goes through the cycles.

/// Clears the surface and prints the heading and the problem's label.
void printHeading(PictureSurface& surface, Scale scale, const std::string& label);

/// The heading of the cycles' table.
void printTableHeading(PictureSurface& surface, Scale scale);

/// One cycle of the computed path.
struct Cycle {
    int number = 0; ///< 0 is the simple centre of gravity
    Location location;
    double cost = 0;
};

/// The row of a cycle. The table has room for 19 rows behind row 0; from there on each row takes the place
/// of the one before it, which is wiped by printing it in the paper's colour. A cost too long for its column
/// stands behind the coordinates.
void printCycle(PictureSurface& surface, Scale scale, const Cycle& cycle, const Cycle& previous);

/// The location that the user has specified, its coordinates as typed, and its cost.
void printSpecified(PictureSurface& surface, Scale scale, const std::string& x, const std::string& y,
                    double cost);

} // namespace vantore::cog
