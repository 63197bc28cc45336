#include "mathprog/LNPROG/problem.h"

namespace vantore::lnprog {

namespace {

/// A row or column number from 1 to `most`.
int readIndex(ItemReader& reader, int most) {
    const int index = reader.readCount(most);
    checkIndex(index, 1, most);
    return index;
}

void readRows(Problem& problem, ItemReader& reader) {
    const int count = reader.readCount(mostConstraints);
    for (int line = 1; line <= count; ++line) {
        Row& row = problem.rows(readIndex(reader, problem.constraints));
        row.relation = reader.readString();
        row.rightSide = reader.readNumber();
    }
}

void readCoefficients(Problem& problem, ItemReader& reader) {
    while (!reader.atEnd()) {
        const int row = readIndex(reader, problem.objectiveRow());
        const int variable = readIndex(reader, problem.variables);
        problem.coefficients(row, variable) = reader.readNumber();
    }
}

} // namespace

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.constraints = 1;
    problem.variables = 1;
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    problem.label = reader.readString();
    problem.constraints = reader.readCount(mostConstraints);
    problem.variables = reader.readCount(mostVariables);
    readRows(problem, reader);
    readCoefficients(problem, reader);
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    writer.string(problem.label).number(problem.constraints).number(problem.variables).endLine();
    writer.number(problem.constraints).endLine();
    for (int i = 1; i <= problem.constraints; ++i) {
        const Row& row = problem.rows(i);
        writer.number(i).string(row.relation).number(row.rightSide).endLine();
    }
    for (int i = 1; i <= problem.objectiveRow(); ++i)
        for (int j = 1; j <= problem.variables; ++j)
            if (const auto& coefficient = problem.coefficients(i, j))
                writer.number(i).number(j).number(*coefficient).endLine();
}

} // namespace vantore::lnprog
