#include "routing/ROUTESEQ/report.h"

#include <cmath>

#include "routing/ROUTESEQ/points.h"
#include "routing/destring.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::routeseq {

namespace {

/// Number 0 is the depot.
Point placeOf(const StopSequencingProblem& problem, double number) {
    if (number == 0) return {problem.depotX, problem.depotY};
    const int stop = toInt32(number);
    checkIndex(stop, 1, problem.stopCount);
    return {problem.stops(stop).x, problem.stops(stop).y};
}

double straightLine(const Point& a, const Point& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return std::sqrt(finite(dx * dx + dy * dy));
}

} // namespace

double routeDistance(const StopSequencingProblem& problem, std::string_view sequence) {
    const Point depot = placeOf(problem, 0);
    Point at = depot;
    double distance = 0;
    const CountedTable<double> numbers = routing::destring(sequence);
    for (const double number : numbers.span()) {
        const Point next = placeOf(problem, number);
        distance += straightLine(at, next);
        at = next;
    }
    return problem.onTheRoad(distance + straightLine(at, depot));
}

std::vector<ReportLine> reportLines(const MeasuredSequence& sequence, Scale scale) {
    const Font font = {"Arial", 10 * scale.x, false};
    return {{"", font, colour::lightBlue},
            {"", font, colour::lightBlue},
            {" STOP SEQUENCE RESULTS", font, colour::lightBlue},
            {"Stop sequence is:", font},
            {"DEPOT" + sequence.text + " DEPOT", font},
            {"Total route distance =" + format(sequence.distance, "###,###,###.##0"), font}};
}

PrintLines dataPage(const StopSequencingProblem& problem) {
    constexpr const char* coordinateMask = "##,###.#0";
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line(joined("Circuity factor: ", problem.circuityFactor));
    page.line(joined("Map scaling factor: ", problem.mapFactor));
    page.line("Depot coordinates:");
    page.line(joined("  X coordinate = ", problem.depotX));
    page.line(joined("  Y coordinate = ", problem.depotY));
    page.line("Stop data:");
    page.line("                    X coor-     Y coor-");
    page.line("Point               dinate      dinate  ");
    for (int i = 1; i <= problem.stopCount; ++i) {
        const Stop& stop = problem.stops(i);
        page.text(stop.label).tab(21).text(format(stop.x, coordinateMask));
        page.tab(33).text(format(stop.y, coordinateMask)).endLine();
    }
    return page;
}

} // namespace vantore::routeseq
