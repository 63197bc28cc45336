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
    problem.label = reader.readString();
    problem.circuityFactor = reader.readNumber();
    problem.mapFactor = reader.readNumber();
    problem.depotX = reader.readNumber();
    problem.depotY = reader.readNumber();
    problem.stopCount = reader.readCount(mostStops);
    for (int i = 1; i <= problem.stopCount; ++i) {
        Stop& stop = problem.stops(i);
        stop.label = reader.readString();
        stop.x = reader.readNumber();
        stop.y = reader.readNumber();
    }
    return problem;
}

void write(const StopSequencingProblem& problem, ItemWriter& writer) {
    writer.string(problem.label)
        .number(problem.circuityFactor)
        .number(problem.mapFactor)
        .number(problem.depotX)
        .number(problem.depotY)
        .endLine();
    writer.number(problem.stopCount).endLine();
    for (int i = 1; i <= problem.stopCount; ++i) {
        const Stop& stop = problem.stops(i);
        writer.label(stop.label).number(stop.x).number(stop.y).endLine();
    }
}

} // namespace vantore::routeseq
