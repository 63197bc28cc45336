#pragma once

#include <string>
#include <vector>

#include "location/point_plot.h"
#include "shell/base/item_stream.h"
#include "shell/forms/picture_surface.h"

namespace vantore {

/// Its file in the install folder.
inline constexpr const char* outlineMapFile = "MAP.DAT";

/// The outline map under the plots of the location modules: the file MAP.DAT of the install folder.

/// Degrees; north latitudes and west longitudes are positive.
struct GeoPoint {
    double latitude = 0;
    double longitude = 0;
};

using Polyline = std::vector<GeoPoint>;

struct OutlineMap {
    double west = 0, east = 0, north = 0, south = 0; ///< the bounds, hundredths of a degree
    std::vector<Polyline> outlines = {};
    std::string text = {}; ///< what the map shows and where it is from
    std::vector<Polyline> borders = {};
};

/// Reads the items of a map file: the bounds west, east, north, south and a fifth number, which is not used;
/// the count of the outline's polylines, and for each the count of its points and their latitudes and
/// longitudes; a text; the inner borders in the same form. InputPastEnd for a short file,
/// SubscriptOutOfRange for a count below 0 or above 10,000 polylines or 100,000 points.
OutlineMap readMap(ItemReader& reader);

/// Where on a surface the map lies: design units from its top left.
struct MapArea {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Where a point lies on the surface, in design units. Both axes are linear in hundredths of a degree, so
/// that a map is true to shape where its bounds are in the proportion of its area.
/// DivisionByZero where two bounds are the same, Overflow beyond the double range.
PlotPoint mapPlace(const OutlineMap& map, const MapArea& area, GeoPoint point);

/// Draws the borders, and the outline over them.
void drawMap(PictureSurface& surface, Scale scale, const OutlineMap& map, const MapArea& area);

/// Prints a text beside a place, in the surface's font and ink.
void printBeside(PictureSurface& surface, Scale scale, PlotPoint place, const std::string& text);

} // namespace vantore
