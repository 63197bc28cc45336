#include "location/PMED/problem.h"

#include <algorithm>

#include "shell/base/number_text.h"

namespace vantore::pmed {

namespace {

using Fault = std::optional<std::string>;

Fault facilityFault(double facilities) {
    if (facilities == 0) return "The number of sites for location is zero (0).";
    if (facilities > mostCandidates)
        return joined("The number of sites to be located exceeds the maximum of ", mostCandidates) + ".";
    return std::nullopt;
}

Fault scaleFault(const Problem& problem) {
    const bool degrees = problem.coordinates == Coordinates::Degrees;
    if (problem.hScale == 0) return "A horizontal map scaling factor has not been specified";
    if (degrees && problem.vScale < 1) return "A circuity factor of at least 1 has not been specified";
    if (problem.vScale == 0) return "A vertical map scaling factor has not been specified";
    return std::nullopt;
}

Fault pointFault(const Problem& problem) {
    if (problem.rowCount == 0) return "At least one point is needed in the problem";
    for (int i = 1; i <= problem.rowCount; ++i)
        if (const auto found = rangeFault(problem.sites(i), pointRanges())) return found->text;
    return std::nullopt;
}

Fault candidateFault(const Problem& problem) {
    const int candidates = problem.candidateCount();
    if (candidates > mostCandidates)
        return joined("The number of candidate sites exceeds the maximum of", mostCandidates);
    if (candidates == 0) return "At least one candidate site must be selected";
    return std::nullopt;
}

} // namespace

int Problem::candidateCount() const {
    const auto rows = sites.span().first(static_cast<std::size_t>(rowCount));
    return static_cast<int>(std::ranges::count(rows, true, &Site::candidate));
}

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.hScale = problem.vScale = 1;
    problem.rowCount = 1;
    problem.sites(1).label = "Enter label";
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    readFields<Problem>(reader, problem, scalarFields);
    const bool degrees = reader.readNumber() == static_cast<double>(Coordinates::Degrees);
    problem.coordinates = degrees ? Coordinates::Degrees : Coordinates::Linear;
    problem.rowCount = reader.readCount(mostPoints);
    for (int i = 1; i <= problem.rowCount; ++i) {
        readFields<Site>(reader, problem.sites(i), siteFields);
        problem.sites(i).candidate = reader.readNumber() != 0;
    }
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    writeFields<Problem>(writer, problem, scalarFields);
    writer.number(static_cast<double>(problem.coordinates)).endLine();
    writer.number(problem.rowCount).endLine();
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Site& site = problem.sites(i);
        writer.label(site.label).number(site.x).number(site.y).number(site.volume).number(site.rate);
        writer.number(site.fixedCost).number(site.candidate ? 1 : 0).endLine();
    }
}

std::optional<Message> fault(const Problem& problem, double facilities) {
    Fault found = facilityFault(facilities);
    if (!found) found = scaleFault(problem);
    if (!found) found = pointFault(problem);
    if (!found) found = candidateFault(problem);
    if (!found) return std::nullopt;
    return Message{*found, "PMED"};
}

} // namespace vantore::pmed
