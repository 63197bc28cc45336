#include "location/PMED/exchange.h"

#include <cmath>

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::pmed {

namespace {

/// The items of a file in which nothing but numbers may stand where numbers should.
class StrictReader {
  public:
    explicit StrictReader(ItemReader& reader) : reader_(reader) {}

    std::string string() { return reader_.readString(); }

    double number(const std::string& what) {
        const std::string item = reader_.readString();
        try {
            return numberFrom(item);
        } catch (const RuntimeError& error) {
            throw MalformedInput(what + " is no number: " + error.what() + ".");
        }
    }

    double numberFromOn(double least, const std::string& what) {
        const double value = number(what);
        if (value < least) throw MalformedInput(what + " is below " + defaultText(least) + ".");
        return value;
    }

    int whole(int least, int most, const std::string& what) {
        const double value = number(what);
        if (value != std::floor(value) || value < least || value > most)
            throw MalformedInput(what + " is no whole number from " + std::to_string(least) + " to " +
                                 std::to_string(most) + ".");
        return static_cast<int>(value);
    }

  private:
    ItemReader& reader_;
};

Site readSite(StrictReader& reader, int number) {
    const std::string of = " of point " + std::to_string(number);
    Site site;
    site.label = reader.string();
    site.x = reader.number("X" + of);
    site.y = reader.number("Y" + of);
    site.volume = reader.numberFromOn(0, "The volume" + of);
    site.rate = reader.numberFromOn(0, "The rate" + of);
    site.fixedCost = reader.number("The fixed cost" + of);
    site.candidate = reader.whole(0, 1, "The candidate's mark" + of) == 1;
    return site;
}

SolverInput readItems(StrictReader reader) {
    SolverInput input;
    Problem& problem = input.problem;
    problem.label = reader.string();
    problem.hScale = reader.number("The horizontal scaling factor");
    problem.vScale = reader.number("The vertical scaling factor");
    problem.coordinates = static_cast<Coordinates>(reader.whole(1, 2, "The kind of coordinates"));
    problem.rowCount = reader.whole(1, mostPoints, "The count of points");
    for (int i = 1; i <= problem.rowCount; ++i) problem.sites(i) = readSite(reader, i);
    const int candidates = problem.candidateCount();
    if (candidates == 0) throw MalformedInput("There is no candidate site.");
    if (candidates > mostCandidates)
        throw MalformedInput("There are more than " + std::to_string(mostCandidates) + " candidate sites.");
    input.sitesToLocate = reader.whole(1, mostCandidates, "The number of sites to locate");
    if (input.sitesToLocate > candidates)
        throw MalformedInput("More sites are to be located than the " + std::to_string(candidates) +
                             " that are candidates.");
    return input;
}

} // namespace

std::string inputText(const SolverInput& input) {
    ItemWriter writer;
    write(input.problem, writer);
    writer.number(input.sitesToLocate).number(input.problem.candidateCount()).endLine();
    return writer.text();
}

std::string pointsText(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

SolverInput readInput(ItemReader& reader) {
    try {
        return readItems(StrictReader(reader));
    } catch (const RuntimeError& error) {
        throw MalformedInput(error.what() + std::string("."));
    }
}

std::string assignmentText(const Assignment& assignment, int pointCount) {
    ItemWriter writer;
    writer.number(pointCount).endLine();
    for (int i = 1; i <= pointCount; ++i) writer.number(i).number(assignment.servedBy(i)).endLine();
    return writer.number(assignment.totalCost).endLine().text();
}

Assignment readAssignment(ItemReader& reader, int pointCount) {
    Assignment assignment;
    for (int left = reader.readCount(mostPoints); left > 0; --left) {
        const int point = toInt32(reader.readNumber());
        assignment.servedBy(point) = toInt32(reader.readNumber());
    }
    for (int i = 1; i <= pointCount; ++i) checkIndex(assignment.servedBy(i), 1, pointCount);
    assignment.totalCost = reader.readNumber();
    return assignment;
}

} // namespace vantore::pmed
