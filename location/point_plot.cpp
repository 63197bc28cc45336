#include "location/point_plot.h"

#include <algorithm>
#include <string>
#include <utility>

#include "shell/base/arithmetic.h"
#include "shell/base/number.h"
#include "shell/base/number_text.h"
#include "shell/base/print_lines.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

constexpr double plotLeft = 240; // units of the design
constexpr double plotRight = 560;
constexpr double plotTop = 70;
constexpr double plotBottom = 390;
constexpr double plotSide = 320;
constexpr double numberLeft = 244; // of the numbers of points at 0
constexpr double numberBottom = 384;
constexpr double gridStep = 32;
constexpr int gridLines = 11;
constexpr double titleFontSize = 10;
constexpr double tickFontSize = 7;
constexpr double margin = 8;
constexpr double lineHeight = 16;
constexpr double halfSquare = 3;
constexpr double facilityRadius = 6;
constexpr double leastLargest = 0.000001; // keeps the scaling from dividing by 0
constexpr std::size_t labelCharacters = 15;

/// The unit in which an axis is labelled.
double divisorFor(double largest) {
    if (largest >= 100000) return 1;
    if (largest >= 10000) return 100;
    if (largest >= 1000) return 10;
    if (largest >= 1) return 1;
    if (largest >= .1) return .1;
    if (largest >= .01) return .01;
    return 1;
}

std::string tickText(int tick, double ratio) {
    return format(tick * ratio / 10, ratio < 10 ? "#.0" : "##0");
}

std::string axisCaption(const char* text, double divisor) {
    return text + str(divisor) + "s";
}

void drawGrid(PictureSurface& surface, Scale scale) {
    for (int i = 1; i <= gridLines; ++i) {
        const double y = 38 + gridStep * i;
        surface.line(plotLeft * scale.x, y * scale.y, plotRight * scale.x, y * scale.y, colour::black);
        const double x = 208 + gridStep * i;
        surface.line(x * scale.x, plotTop * scale.y, x * scale.x, plotBottom * scale.y, colour::black);
    }
}

void labelX(PictureSurface& surface, Scale scale, double largest) {
    const double divisor = divisorFor(largest);
    for (int tick = 0; tick < gridLines; ++tick) {
        surface.moveTo((232 + 8 * 4 * tick + 5) * scale.x, 400 * scale.y);
        surface.print(tickText(tick, largest / divisor));
    }
    surface.moveTo(400 * scale.x, 416 * scale.y);
    surface.print(axisCaption("X coordinates in", divisor));
}

void labelY(PictureSurface& surface, Scale scale, double largest) {
    const double divisor = divisorFor(largest);
    for (int tick = 0; tick < gridLines; ++tick) {
        const std::string text = tickText(tick, largest / divisor);
        const auto characters = static_cast<double>(length(text));
        surface.moveTo((8 * (28 - characters) + 5) * scale.x, (384 - gridStep * tick) * scale.y);
        surface.print(text);
    }
    surface.moveTo(248 * scale.x, 48 * scale.y);
    surface.print(axisCaption("Y coordinates in", divisor));
}

/// The largest X and Y over the points, 0 where all are below it.
PlotPoint largestCoordinates(std::span<const PlotPoint> points) {
    PlotPoint largest;
    for (const PlotPoint& point : points)
        largest = {std::max(largest.x, point.x), std::max(largest.y, point.y)};
    return largest;
}

void drawAxes(PictureSurface& surface, Scale scale, PlotPoint largest) {
    surface.font.family = "Arial";
    surface.ink = colour::black;
    drawGrid(surface, scale);
    surface.font.size = tickFontSize * scale.x;
    labelX(surface, scale, largest.x);
    labelY(surface, scale, largest.y);
}

void printTitle(PictureSurface& surface, Scale scale, const std::string& fontFamily) {
    const std::string title = "LOCATION OF POINTS";
    surface.clear();
    surface.font = {fontFamily, titleFontSize * scale.x, true};
    surface.moveTo((80 - static_cast<double>(length(title))) * 8 / 2 * scale.x, 3.2 * scale.y);
    surface.print(title, colour::lightBlue);
}

void printLabel(PictureSurface& surface, Scale scale, const PlotHeading& heading) {
    surface.moveTo(margin * scale.x, heading.labelTop * scale.y);
    surface.print("Problem: ", colour::lightBlue).print(left(heading.label, labelCharacters), colour::black);
}

std::string facilityLine(const ListedFacility& facility) {
    const auto& location = facility.location;
    PrintLines line;
    line.text(format(facility.number, "##0")).text("-");
    line.right(15, location ? format(location->x, "##,###.#0") : "------").text(",");
    line.right(27, location ? format(location->y, "##,###.#0") : "------");
    return line.endLine().lines().front();
}

} // namespace

PlotPoint plotPlace(PlotPoint point, PlotPoint largest) {
    const Number x = plotSide * point.x;
    const Number y = plotSide * point.y;
    return {wholePart(plotLeft + x / largest.x), wholePart(plotBottom - y / largest.y)};
}

void printPlotHeading(PictureSurface& surface, Scale scale, const PlotHeading& heading) {
    printTitle(surface, scale, heading.fontFamily);
    surface.font.size = tickFontSize * scale.x;
    printLabel(surface, scale, heading);
}

PointPlot drawPlotFrame(PictureSurface& surface, Scale scale, const PlotHeading& heading,
                        std::vector<PlotPoint> points) {
    printTitle(surface, scale, heading.fontFamily);
    PlotPoint largest = largestCoordinates(points);
    drawAxes(surface, scale, largest);
    printLabel(surface, scale, heading);
    if (largest.x == 0) largest.x = leastLargest;
    if (largest.y == 0) largest.y = leastLargest;
    return {std::move(points), largest};
}

PlotPoint PointPlot::numberPlaceOf(PlotPoint point) const {
    return {numberLeft + plotSide * point.x / largest.x, numberBottom - plotSide * point.y / largest.y};
}

std::vector<PlotPoint> PointPlot::numberPlaces() const {
    std::vector<PlotPoint> places;
    for (const PlotPoint& point : points) places.push_back(numberPlaceOf(point));
    return places;
}

void printNumbers(PictureSurface& surface, Scale scale, std::span<const PlotPoint> places) {
    int number = 0;
    for (const PlotPoint& place : places) {
        surface.moveTo(place.x * scale.x, place.y * scale.y);
        surface.print(str(++number) + " ", colour::black);
    }
}

void drawPoint(PictureSurface& surface, Scale scale, PlotPoint place) {
    surface.box((place.x - halfSquare) * scale.x, (place.y - halfSquare) * scale.y,
                (place.x + halfSquare) * scale.x, (place.y + halfSquare) * scale.y, colour::black, true);
}

void drawFacility(PictureSurface& surface, Scale scale, PlotPoint place) {
    surface.circle(place.x * scale.x, place.y * scale.y, facilityRadius * scale.x, colour::lightRed, true);
}

void drawService(PictureSurface& surface, Scale scale, PlotPoint point, PlotPoint facility) {
    surface.line(point.x * scale.x, point.y * scale.y, facility.x * scale.x, facility.y * scale.y,
                 colour::lightRed);
}

void listFacilities(PictureSurface& surface, Scale scale, double top,
                    std::span<const ListedFacility> facilities, const std::string& totalCost) {
    const auto nextLine = [&] {
        surface.moveTo(margin * scale.x, top * scale.y);
        top += lineHeight;
    };
    nextLine();
    surface.print("Facility X, Y", colour::lightBlue);
    nextLine();
    surface.print("coordinates are:", colour::lightBlue);
    for (const ListedFacility& facility : facilities) {
        nextLine();
        surface.print(facilityLine(facility), colour::black);
    }
    nextLine();
    surface.print("Total cost = ", colour::lightBlue).print(totalCost, colour::black);
}

} // namespace vantore
