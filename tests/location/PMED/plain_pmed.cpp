#include "tests/location/PMED/plain_pmed.h"

#include <algorithm>

#include "tests/location/plain_page.h"

namespace vantore::pmed::tests {

namespace {

using vantore::tests::figure;
using vantore::tests::PlainPage;

/// Blanks off both ends.
std::string stripped(std::string text) {
    while (!text.empty() && text.front() == ' ') text.erase(0, 1);
    while (!text.empty() && text.back() == ' ') text.pop_back();
    return text;
}

void printNodes(PlainPage& page, const std::string& nodes) {
    if (nodes.size() < 46) {
        page.at(33, stripped(nodes));
        page.end();
        return;
    }
    std::size_t begin = 1; // positions count from 1
    for (std::size_t k = 1; begin <= nodes.size(); ++k) {
        std::size_t cut = nodes.size();
        if (nodes.size() - (begin - 1) > 45) {
            cut = 45 * k;
            if (nodes[cut - 1] != ' ') cut = 45 * k - 1;
            if (nodes[cut - 1] != ' ') cut = 45 * k - 2;
        }
        page.at(33, stripped(nodes.substr(begin - 1, cut - begin + 1)));
        page.end();
        begin = cut + 1;
    }
}

} // namespace

std::vector<std::string> plainReport(const Problem& problem, const Assignment& assignment) {
    PlainPage page;
    page.line(" SOLUTION RESULTS FOR P-MEDIAN PROBLEM");
    page.line("");
    page.line(" No. Facility name-      Volume Assigned node numbers");
    double total = 0;
    std::vector<int> done;
    for (int first = 1; first <= problem.rowCount; ++first) {
        const int site = assignment.servedBy(first);
        if (std::count(done.begin(), done.end(), site) > 0) continue;
        done.push_back(site);
        double volume = 0;
        std::string nodes;
        for (int i = 1; i <= problem.rowCount; ++i)
            if (assignment.servedBy(i) == site) {
                volume += problem.sites(i).volume;
                nodes += " " + std::to_string(i);
            }
        page.before(5, std::to_string(site));
        page.at(6, problem.sites(site).label.substr(0, 15));
        page.before(32, figure(volume, 0));
        printNodes(page, nodes);
        total += volume;
    }
    page.add("        Total");
    page.before(32, figure(total, 0));
    page.end();
    page.line("");
    page.line(" Total cost: $" + figure(assignment.totalCost, 2));
    return page.lines;
}

} // namespace vantore::pmed::tests
