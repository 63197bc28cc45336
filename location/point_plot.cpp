#include "location/point_plot.h"

#include <algorithm>
#include <string>

#include "shell/base/arithmetic.h"
#include "shell/base/number.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

constexpr double plotLeft = 240; // units of the design
constexpr double plotRight = 560;
constexpr double plotTop = 70;
constexpr double plotBottom = 390;
constexpr double plotSide = 320;
constexpr double gridStep = 32;
constexpr int gridLines = 11;
constexpr double tickFontSize = 7;

/// The unit in which an axis is labelled.
double divisorFor(double largest) {
    if (largest >= 10000 && largest < 100000) return 100;
    if (largest >= 1000 && largest < 10000) return 10;
    if (largest >= 1 && largest < 1000) return 1;
    if (largest >= .1 && largest < 1) return .1;
    if (largest >= .01 && largest < .1) return .01;
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

} // namespace

PlotPoint largestCoordinates(std::span<const PlotPoint> points) {
    PlotPoint largest;
    for (const PlotPoint& point : points)
        largest = {std::max(largest.x, point.x), std::max(largest.y, point.y)};
    return largest;
}

void drawAxes(PictureSurface& surface, Scale scale, PlotPoint largest) {
    surface.font.family = "Arial";
    drawGrid(surface, scale);
    surface.font.size = tickFontSize * scale.x;
    labelX(surface, scale, largest.x);
    labelY(surface, scale, largest.y);
}

PlotPoint plotPlace(PlotPoint point, PlotPoint largest) {
    const Number x = plotSide * point.x;
    const Number y = plotSide * point.y;
    return {wholePart(plotLeft + x / largest.x), wholePart(plotBottom - y / largest.y)};
}

} // namespace vantore
