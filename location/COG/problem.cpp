#include "location/COG/problem.h"

namespace vantore::cog {

std::string skeleton() {
    auto problem = newProblem<Problem>();
    problem.powerFactor = .5;
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    return readWithPoints<Problem>(reader, scalarFields, mostPoints);
}

void write(const Problem& problem, ItemWriter& writer) {
    writeWithPoints<Problem>(problem, scalarFields, writer);
}

std::optional<Message> scalarFault(const Problem& problem) {
    if (problem.powerFactor == 0) return Message{"No power factor (T) has been specified.", "COG"};
    if (problem.mapFactor == 0) return Message{"No map scaling factor (K) has been specified.", "COG"};
    if (problem.rowCount == 0) return Message{"At least one point is needed in the problem.", "COG"};
    return std::nullopt;
}

std::optional<Message> pointFault(const Problem& problem) {
    return rangeFault(problem.pointSpan(), pointRanges());
}

} // namespace vantore::cog
