#include "routing/ROUTESEQ/problem.h"

#include "shell/base/arithmetic.h"

namespace vantore::routeseq {

namespace {

double orOne(double factor) {
    return factor == 0 ? 1 : factor;
}

} // namespace

double StopSequencingProblem::onTheRoad(double distance) const {
    return finite(distance * orOne(circuityFactor) * orOne(mapFactor));
}

std::string skeleton() {
    StopSequencingProblem problem;
    problem.label = "Enter label";
    problem.stopCount = 1;
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

StopSequencingProblem read(ItemReader& reader) {
    StopSequencingProblem problem;
    readFields<StopSequencingProblem>(reader, problem, scalarFields);
    problem.stopCount = reader.readCount(mostStops);
    for (int i = 1; i <= problem.stopCount; ++i) readFields<Stop>(reader, problem.stops(i), stopFields);
    return problem;
}

void write(const StopSequencingProblem& problem, ItemWriter& writer) {
    writeFields<StopSequencingProblem>(writer, problem, scalarFields);
    writer.endLine().number(problem.stopCount).endLine();
    for (int i = 1; i <= problem.stopCount; ++i) writeRow<Stop>(writer, problem.stops(i), stopFields);
}

} // namespace vantore::routeseq
