#include "location/MCOG/problem.h"

namespace vantore::mcog {

namespace {

constexpr PointRange positiveRate = {
    &Point::rate, 0.000001, 99999.9999,
    "No transport rate should be outside the range of 0.000001 to 99999.9999.", "Transport rate"};

} // namespace

std::string skeleton() {
    ItemWriter writer;
    write(newProblem<Problem>(), writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    return readWithPoints<Problem>(reader, scalarFields, mostPoints);
}

void write(const Problem& problem, ItemWriter& writer) {
    writeWithPoints<Problem>(problem, scalarFields, writer);
}

std::optional<Message> fault(const Problem& problem) {
    if (problem.mapFactor == 0)
        return Message{"No map scaling factor (K) has been specified.", "Map scaling factor"};
    if (problem.rowCount == 0)
        return Message{"At least one point is needed in the problem.", "Number of points"};
    return rangeFault(problem.pointSpan(), pointRanges(positiveRate));
}

} // namespace vantore::mcog
