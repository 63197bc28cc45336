#include "location/outline_map.h"

#include "shell/base/arithmetic.h"
#include "shell/base/number.h"

namespace vantore {

namespace {

constexpr int mostPolylines = 10000;
constexpr int mostPoints = 100000;  // of one polyline
constexpr double labelDistance = 6; // units of the design

std::vector<Polyline> readPolylines(ItemReader& reader) {
    std::vector<Polyline> polylines;
    for (int left = reader.readCount(mostPolylines); left > 0; --left) {
        Polyline& polyline = polylines.emplace_back();
        for (int points = reader.readCount(mostPoints); points > 0; --points) {
            const double latitude = reader.readNumber();
            polyline.push_back({latitude, reader.readNumber()});
        }
    }
    return polylines;
}

/// How far a coordinate lies between two bounds, from 0 at the first to 1 at the second.
Number share(double first, double second, double degrees) {
    return (first - Number(wholePart(Number(degrees) * 100))) / (Number(first) - second);
}

void drawPolylines(PictureSurface& surface, Scale scale, const OutlineMap& map, const MapArea& area,
                   const std::vector<Polyline>& polylines, int colour) {
    for (const Polyline& polyline : polylines)
        for (std::size_t i = 1; i < polyline.size(); ++i) {
            const PlotPoint from = mapPlace(map, area, polyline[i - 1]);
            const PlotPoint to = mapPlace(map, area, polyline[i]);
            surface.line(from.x * scale.x, from.y * scale.y, to.x * scale.x, to.y * scale.y, colour);
        }
}

} // namespace

OutlineMap readMap(ItemReader& reader) {
    OutlineMap map;
    map.west = reader.readNumber();
    map.east = reader.readNumber();
    map.north = reader.readNumber();
    map.south = reader.readNumber();
    reader.readNumber();
    map.outlines = readPolylines(reader);
    map.text = reader.readString();
    map.borders = readPolylines(reader);
    return map;
}

PlotPoint mapPlace(const OutlineMap& map, const MapArea& area, GeoPoint point) {
    return {area.left + share(map.west, map.east, point.longitude) * area.width,
            area.top + share(map.north, map.south, point.latitude) * area.height};
}

void drawMap(PictureSurface& surface, Scale scale, const OutlineMap& map, const MapArea& area) {
    drawPolylines(surface, scale, map, area, map.borders, colour::white);
    drawPolylines(surface, scale, map, area, map.outlines, colour::grey);
}

void printBeside(PictureSurface& surface, Scale scale, PlotPoint place, const std::string& text) {
    surface.moveTo((place.x + labelDistance) * scale.x, (place.y - labelDistance) * scale.y);
    surface.print(text);
}

} // namespace vantore
