#include "location/PMED/report.h"

#include <algorithm>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::pmed {

namespace {

constexpr std::size_t labelCharacters = 15;
constexpr std::size_t listWidth = 45; // characters of the node numbers in a line
constexpr int listColumn = 33;
constexpr int volumeEnd = 32; // the column behind the volumes

/// Where a list of numbers is cut for the k-th time, counted in characters: at the blank at or before 45 k.
std::size_t cutOf(const std::string& text, std::size_t k) {
    std::size_t cut = listWidth * k;
    while (text[cut - 1] != ' ') --cut;
    return cut;
}

/// The numbers of the points in pieces of a line each.
std::vector<std::string> piecesOf(const std::vector<int>& points) {
    std::string text;
    for (const int point : points) text += str(point);
    std::vector<std::string> pieces;
    std::size_t from = 0;
    while (text.size() - from > listWidth) {
        const std::size_t cut = cutOf(text, pieces.size() + 1);
        pieces.push_back(trimmed(text.substr(from, cut - from)));
        from = cut;
    }
    pieces.push_back(trimmed(text.substr(from)));
    return pieces;
}

void printSite(PrintLines& page, const Problem& problem, const ServingSite& site) {
    page.right(5, format(site.number, "##0"));
    page.tab(6).text(left(problem.sites(site.number).label, labelCharacters));
    page.right(volumeEnd, format(site.volume, "###,###,##0"));
    for (const std::string& piece : piecesOf(site.points)) page.tab(listColumn).text(piece).endLine();
}

} // namespace

std::vector<ServingSite> servingSites(const Problem& problem, const Assignment& assignment) {
    std::vector<ServingSite> serving;
    for (int i = 1; i <= problem.rowCount; ++i) {
        const int number = assignment.servedBy(i);
        auto site = std::ranges::find(serving, number, &ServingSite::number);
        if (site == serving.end()) site = serving.insert(site, {number, {}, 0});
        site->points.push_back(i);
        site->volume += problem.sites(i).volume;
    }
    return serving;
}

PrintLines reportOn(const Problem& problem, const Assignment& assignment) {
    PrintLines page;
    page.line(" SOLUTION RESULTS FOR P-MEDIAN PROBLEM").line("");
    page.line(" No. Facility name-      Volume Assigned node numbers");
    double volume = 0;
    for (const ServingSite& site : servingSites(problem, assignment)) {
        printSite(page, problem, site);
        volume += site.volume;
    }
    page.text("        Total").right(volumeEnd, format(volume, "###,###,##0")).endLine();
    page.line("").line(" Total cost: " + format(assignment.totalCost, "$###,###,###.#0"));
    return page;
}

PrintLines dataPage(const Problem& problem, const std::string& facilities) {
    const bool degrees = problem.coordinates == Coordinates::Degrees;
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line("Number of facilities to locate: " + facilities);
    page.line(joined("Horizontal scaling factor: ", problem.hScale));
    page.line(joined(degrees ? "Circuity factor: " : "Vertical scaling factor: ", problem.vScale)).line("");
    page.line("Point data:");
    page.line(degrees ? "                   Longi-     Lati-             Transport       Fixed Candidate"
                      : "                  X coor-   Y coor-             Transport       Fixed Candidate");
    page.line(degrees ? "Point                tude      tude      Volume      rate        cost     sites"
                      : "Point              dinate    dinate      Volume      rate        cost     sites");
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Site& site = problem.sites(i);
        page.text(left(site.label, labelCharacters));
        page.right(26, format(site.x, "##,###.#0")).right(36, format(site.y, "##,###.#0"));
        page.right(48, format(site.volume, "###,###,##0")).right(58, format(site.rate, "##,###.###0"));
        page.right(70, format(site.fixedCost, "###,###,##0"));
        if (site.candidate) page.right(80, "X");
        page.endLine();
    }
    return page;
}

} // namespace vantore::pmed
