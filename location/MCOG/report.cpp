#include "location/MCOG/report.h"

#include "shell/base/number_text.h"

namespace vantore::mcog {

namespace {

constexpr std::size_t listWidth = 57; // characters of the point numbers in a line

/// What is allocated to a facility.
struct Allocation {
    double volume = 0;
    std::string points; ///< their numbers with commas between; empty where there are none
};

Allocation allocationOf(const Problem& problem, const Plan& plan, int facility) {
    Allocation allocation;
    for (int i = 1; i <= problem.rowCount; ++i) {
        if (plan.assignedTo(i) != facility) continue;
        allocation.volume += problem.points(i).volume;
        allocation.points += (allocation.points.empty() ? "" : ",") + std::to_string(i);
    }
    return allocation;
}

void printFacility(PrintLines& page, const Problem& problem, const Plan& plan, int number) {
    const Facility& facility = plan.facilities(number);
    const Allocation allocation = allocationOf(problem, plan, number);
    page.right(8, format(number, "###0"));
    if (allocation.points.empty()) {
        page.right(16, " ------").right(26, " ------");
        page.right(41, format(0, "###,###,##0")).right(59, format(0, "###,###,###.#0"));
    } else {
        page.right(16, format(facility.location.x, "##,###.#0"));
        page.right(26, format(facility.location.y, "##,###.#0"));
        page.right(41, format(allocation.volume, "###,###,#0"));
        page.right(59, format(Number(problem.mapFactor) * facility.cost, "###,###,###.#0"));
    }
    page.endLine();
}

void printAllocation(PrintLines& page, const Problem& problem, const Plan& plan, int number) {
    std::string points = allocationOf(problem, plan, number).points;
    page.right(8, format(number, "###0"));
    do {
        page.tab(11).text(points.substr(0, listWidth)).endLine();
        points.erase(0, listWidth);
    } while (!points.empty());
}

} // namespace

PrintLines reportOn(const Problem& problem, const Plan& plan) {
    PrintLines page;
    page.line(" MULTIPLE CENTER OF GRAVITY SOLUTION RESULTS").line("");
    page.line(" Problem label: " + problem.label);
    page.line("        X coor-   Y coor-");
    page.line(" Source  dinate    dinate         Volume              Cost");
    for (int j = 1; j <= plan.facilityCount; ++j) printFacility(page, problem, plan, j);
    page.line("  Total cost " + format(plan.totalCost, "###,###,###.#0")).line("");
    page.line(" Source  Allocated demand points to source points");
    for (int j = 1; j <= plan.facilityCount; ++j) printAllocation(page, problem, plan, j);
    return page;
}

PrintLines dataPage(const Problem& problem) {
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line(joined("Map scaling factor: ", problem.mapFactor)).line("");
    printPoints(page, problem.pointSpan());
    return page;
}

} // namespace vantore::mcog
