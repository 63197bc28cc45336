#include "routing/ROUTESEQ/report.h"

#include "shell/base/number_text.h"

namespace vantore::routeseq {

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
