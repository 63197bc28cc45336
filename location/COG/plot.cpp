#include "location/COG/plot.h"

#include <string>
#include <vector>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::cog {

namespace {

constexpr double margin = 8; // units of the design
constexpr double halfSquare = 3;
constexpr double facilityRadius = 6;
constexpr double leastLargest = 0.000001; // keeps the scaling from dividing by 0
constexpr std::size_t labelCharacters = 15;

void plotFacility(PictureSurface& surface, Scale scale, const Problem& problem, PlotPoint largest,
                  const Facility& facility) {
    const PlotPoint f = plotPlace({facility.location.x, facility.location.y}, largest);
    surface.circle(f.x * scale.x, f.y * scale.y, facilityRadius * scale.x, colour::lightRed, true);
    for (int i = 1; i <= problem.rowCount; ++i) {
        const PlotPoint p = plotPlace({problem.points(i).x, problem.points(i).y}, largest);
        surface.line(p.x * scale.x, p.y * scale.y, f.x * scale.x, f.y * scale.y, colour::lightRed);
    }
}

void printFacility(PictureSurface& surface, Scale scale, const Facility& facility) {
    surface.moveTo(margin * scale.x, 64 * scale.y);
    surface.print("Facility coordinates are:", colour::lightBlue);
    surface.moveTo(margin * scale.x, 80 * scale.y);
    surface.print("X = ", colour::lightBlue).print(format(facility.location.x, "##,###.#0"), colour::black);
    surface.print(" Y = ", colour::lightBlue).print(format(facility.location.y, "##,###.#0"), colour::black);
    surface.moveTo(margin * scale.x, 96 * scale.y);
    surface.print("Total cost = ", colour::lightBlue);
    surface.print(format(facility.totalCost, "###,###,###,###.#0"), colour::black);
}

} // namespace

PlotPoint plotFrame(PictureSurface& surface, Scale scale, const Problem& problem) {
    const std::string title = "LOCATION OF POINTS";
    surface.clear();
    surface.font = {"MS Sans Serif", 10 * scale.x, true};
    surface.moveTo((80 - static_cast<double>(length(title))) * 8 / 2 * scale.x, 3.2 * scale.y);
    surface.print(title, colour::lightBlue);
    surface.ink = colour::black;
    std::vector<PlotPoint> points;
    for (int i = 1; i <= problem.rowCount; ++i) points.push_back({problem.points(i).x, problem.points(i).y});
    PlotPoint largest = largestCoordinates(points);
    drawAxes(surface, scale, largest);
    surface.moveTo(margin * scale.x, 32 * scale.y);
    surface.print("Problem: ", colour::lightBlue).print(left(problem.label, labelCharacters), colour::black);
    if (largest.x == 0) largest.x = leastLargest;
    if (largest.y == 0) largest.y = leastLargest;
    return largest;
}

void plotNumbers(PictureSurface& surface, Scale scale, const Problem& problem, PlotPoint largest) {
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Point& point = problem.points(i);
        surface.moveTo((244 + 320 * point.x / largest.x) * scale.x,
                       (384 - 320 * point.y / largest.y) * scale.y);
        surface.print(str(i) + " ", colour::black);
    }
}

void plotPoints(PictureSurface& surface, Scale scale, const Problem& problem, PlotPoint largest,
                const Facility& facility) {
    for (int i = 1; i <= problem.rowCount; ++i) {
        const PlotPoint p = plotPlace({problem.points(i).x, problem.points(i).y}, largest);
        surface.box((p.x - halfSquare) * scale.x, (p.y - halfSquare) * scale.y, (p.x + halfSquare) * scale.x,
                    (p.y + halfSquare) * scale.y, colour::black, true);
    }
    if (facility.location.x == 0 && facility.location.y == 0 && facility.totalCost == 0) return;
    plotFacility(surface, scale, problem, largest, facility);
    printFacility(surface, scale, facility);
}

} // namespace vantore::cog
