#include "mathprog/TRANLP/problem.h"

namespace vantore::tranlp {

namespace {

constexpr int newPlaces = 4; // sources and sinks of a new problem

/// A source's or sink's number in front of a cost.
int readPlace(ItemReader& reader, int most) {
    const int place = reader.readCount(most);
    checkIndex(place, 1, most);
    return place;
}

} // namespace

std::string defaultSourceName(int source) {
    return "F" + std::to_string(source);
}

std::string defaultSinkName(int sink) {
    return "T" + std::to_string(sink);
}

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.sources = problem.sinks = newPlaces;
    for (int place = 1; place <= newPlaces; ++place) {
        problem.sourceName(place) = defaultSourceName(place);
        problem.sinkName(place) = defaultSinkName(place);
    }
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

ProblemFile read(ItemReader& reader) {
    ProblemFile file;
    Problem& problem = file.problem;
    problem.label = reader.readString();
    problem.sources = reader.readCount(mostPlaces);
    problem.sinks = reader.readCount(mostPlaces);
    for (int i = 1; i <= problem.sources; ++i) {
        problem.sourceName(i) = reader.readString();
        problem.supply(i) = reader.readNumber();
    }
    for (int j = 1; j <= problem.sinks; ++j) {
        problem.sinkName(j) = reader.readString();
        problem.demand(j) = reader.readNumber();
    }
    while (!reader.atEnd()) {
        const int i = readPlace(reader, problem.sources);
        const int j = readPlace(reader, problem.sinks);
        problem.cost(i, j) = reader.readNumber();
        file.named(i, j) = 1;
    }
    return file;
}

void write(const Problem& problem, ItemWriter& writer) {
    writer.string(problem.label).endLine();
    writer.number(problem.sources).number(problem.sinks).endLine();
    for (int i = 1; i <= problem.sources; ++i)
        writer.label(problem.sourceName(i)).number(problem.supply(i)).endLine();
    for (int j = 1; j <= problem.sinks; ++j)
        writer.label(problem.sinkName(j)).number(problem.demand(j)).endLine();
    for (int i = 1; i <= problem.sources; ++i)
        for (int j = 1; j <= problem.sinks; ++j)
            if (problem.cost(i, j) != 0) writer.number(i).number(j).number(problem.cost(i, j)).endLine();
}

} // namespace vantore::tranlp
