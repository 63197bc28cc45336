#include "mathprog/MIPROG/problem.h"

#include "shell/base/text.h"

namespace vantore::miprog {

namespace {

/// "0,1" without its quotes is two items.
std::string readType(ItemReader& reader) {
    std::string type = reader.readString();
    return type == "0" ? type + "," + reader.readString() : type;
}

void readTypes(ItemReader& reader, Problem& problem) {
    const int count = reader.readCount(problem.n);
    for (int k = 1; k <= count; ++k) {
        const int column = reader.readCount(problem.n);
        checkIndex(column, 1, problem.n);
        problem.type(column) = readType(reader);
    }
}

void writeTypes(const Problem& problem, ItemWriter& writer) {
    int count = 0;
    for (int j = 1; j <= problem.n; ++j) count += problem.type(j).empty() ? 0 : 1;
    writer.number(count).endLine();
    for (int j = 1; j <= problem.n; ++j)
        if (!problem.type(j).empty()) writer.number(j).string(problem.type(j)).endLine();
}

} // namespace

std::string defaultRowLabel(int row) {
    return std::to_string(row);
}

std::string defaultColumnLabel(int column) {
    return "X" + std::to_string(column);
}

std::string nextType(const std::string& type) {
    if (type.empty()) return integerType;
    return type == integerType ? binaryType : "";
}

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.m = problem.n = 1;
    problem.rowLabel(1) = defaultRowLabel(1);
    problem.columnLabel(1) = defaultColumnLabel(1);
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    problem.label = reader.readString();
    problem.maximize = equalIgnoringCase(reader.readString(), "MAX");
    problem.m = reader.readCount(mostRows);
    problem.n = reader.readCount(mostColumns);
    for (int j = 1; j <= problem.n; ++j) problem.columnLabel(j) = reader.readString();
    readTypes(reader, problem);
    for (int i = 1; i <= problem.m; ++i) {
        problem.rowLabel(i) = reader.readString();
        for (int j = 1; j <= problem.n; ++j) problem.coef(i, j) = reader.readNumber();
        problem.relation(i) = reader.readString();
        problem.rhs(i) = reader.readNumber();
    }
    for (int j = 1; j <= problem.n; ++j) problem.objCoef(j) = reader.readNumber();
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    writer.string(problem.label).string(problem.maximize ? "MAX" : "MIN").endLine();
    writer.number(problem.m).number(problem.n).endLine();
    for (int j = 1; j <= problem.n; ++j) writer.label(problem.columnLabel(j));
    // An empty line would read as an item, so a problem without variables has no line for them.
    if (problem.n > 0) writer.endLine();
    writeTypes(problem, writer);
    for (int i = 1; i <= problem.m; ++i) {
        writer.label(problem.rowLabel(i));
        for (int j = 1; j <= problem.n; ++j) writer.number(problem.coef(i, j));
        writer.string(problem.relation(i)).number(problem.rhs(i)).endLine();
    }
    for (int j = 1; j <= problem.n; ++j) writer.number(problem.objCoef(j));
    if (problem.n > 0) writer.endLine();
}

} // namespace vantore::miprog
