#include "location/COG/problem.h"

#include <array>

#include "shell/base/number_text.h"

namespace vantore::cog {

namespace {

constexpr double largestCoordinate = 99999;
constexpr double largestVolume = 999999999;
constexpr double largestRate = 99999.9999;

struct Range {
    double Point::*value;
    double most;
    const char* text;
    const char* title;
};

constexpr std::array<Range, 4> ranges = {{
    {&Point::x, largestCoordinate,
     "No X coordinate should be outside the range of 0 to 99,999.  Check point ", "X coordinate"},
    {&Point::y, largestCoordinate,
     "No Y coordinate should be outside the range of 0 to 99,999.  Check point ", "Y coordinate"},
    {&Point::volume, largestVolume,
     "No volume should be outside the range of 0 to 999,999,999.  Check point ", "Point volume"},
    {&Point::rate, largestRate,
     "No transport rate should be outside the range of 0 to 99999.9999.  Check point ", "Transport rate"},
}};

} // namespace

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.powerFactor = .5;
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

std::optional<Message> scalarFault(const Problem& problem) {
    if (problem.powerFactor == 0) return Message{"No power factor (T) has been specified.", "COG"};
    if (problem.mapFactor == 0) return Message{"No map scaling factor (K) has been specified.", "COG"};
    if (problem.rowCount == 0) return Message{"At least one point is needed in the problem.", "COG"};
    return std::nullopt;
}

std::optional<Message> pointFault(const Problem& problem) {
    for (int i = 1; i <= problem.rowCount; ++i)
        for (const Range& range : ranges) {
            const double value = problem.points(i).*range.value;
            if (value < 0 || value > range.most) return Message{joined(range.text, i), range.title};
        }
    return std::nullopt;
}

} // namespace vantore::cog
