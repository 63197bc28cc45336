#include "location/MCOG/problem.h"

namespace vantore::mcog {

namespace {

constexpr PointRange positiveRate = {
    &Point::rate, 0.000001, 99999.9999,
    "No transport rate should be outside the range of 0.000001 to 99999.9999.", "Transport rate"};

} // namespace

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.mapFactor = 1;
    problem.rowCount = 1;
    problem.points(1).label = "Enter label";
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    readFields<Problem>(reader, problem, scalarFields);
    problem.rowCount = reader.readCount(mostPoints);
    for (int i = 1; i <= problem.rowCount; ++i) readFields<Point>(reader, problem.points(i), pointFields);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    writeFields<Problem>(writer, problem, scalarFields);
    writer.endLine().number(problem.rowCount).endLine();
    for (int i = 1; i <= problem.rowCount; ++i) writeRow<Point>(writer, problem.points(i), pointFields);
}

std::optional<Message> fault(const Problem& problem) {
    if (problem.mapFactor == 0)
        return Message{"No map scaling factor (K) has been specified.", "Map scaling factor"};
    if (problem.rowCount == 0)
        return Message{"At least one point is needed in the problem.", "Number of points"};
    return rangeFault(problem.pointSpan(), pointRanges(positiveRate));
}

} // namespace vantore::mcog
