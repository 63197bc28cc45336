#include "demand/MULREG/problem.h"

#include "shell/base/text.h"

namespace vantore::mulreg {

namespace {

std::optional<std::string> typeFault(const Problem& problem) {
    int independents = 0;
    int dependents = 0;
    for (int column = 1; column <= columnCount; ++column) {
        const std::string& type = problem.variables(column).type;
        if (type != role::independent && type != role::dependent && type != role::unused)
            return "Variable " + std::to_string(column) + " is not of type I, D, or blank.";
        independents += type == role::independent;
        dependents += type == role::dependent;
    }
    if (independents == 0) return "At least one variable must be declared an independent variable.";
    if (dependents == 0) return "At least one variable must be declared a dependent variable.";
    if (dependents > 1) return "Only one variable can be declared a dependent variable.";
    return std::nullopt;
}

bool isYesOrNo(const std::string& answer) {
    return answer == "Y" || answer == "N";
}

/// A label may not hold what ends an item of a file; its first such character is told.
std::optional<std::string> labelFault(const std::string& label, const std::string& subject) {
    const std::size_t at = label.find_first_of(",\"");
    if (at == std::string::npos) return std::nullopt;
    if (label[at] == ',') return subject + " has a comma (,) in it.  Remove it.";
    return subject + " has a double quote mark (\") in it.  Remove it.";
}

} // namespace

std::string skeleton() {
    Problem problem;
    problem.label = "Enter label";
    problem.stepwise = problem.errorAnalysis = "N";
    problem.enteringLevel = 4;
    problem.leavingLevel = 3.9;
    problem.observationCount = 1;
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem read(ItemReader& reader) {
    Problem problem;
    const std::span<const Field<Problem>> fields = boxFields;
    readFields(reader, problem, fields.first(1));
    for (Variable& variable : problem.variables.span()) variable.label = reader.readString();
    for (Variable& variable : problem.variables.span()) variable.type = reader.readString();
    readFields(reader, problem, fields.subspan(1));
    problem.observationCount = reader.readCount(mostObservations);
    for (int i = 1; i <= problem.observationCount; ++i)
        for (double& value : problem.data.row(i)) value = reader.readNumber();
    return problem;
}

void write(const Problem& problem, ItemWriter& writer) {
    const std::span<const Field<Problem>> fields = boxFields;
    writeFields(writer, problem, fields.first(1));
    for (const Variable& variable : problem.variables.span()) writer.string(variable.label);
    for (const Variable& variable : problem.variables.span())
        writer.string(variable.type.empty() ? role::unused : variable.type);
    writeFields(writer, problem, fields.subspan(1));
    writer.endLine().number(problem.observationCount).endLine();
    for (int i = 1; i <= problem.observationCount; ++i) {
        for (const double value : problem.data.row(i)) writer.number(value);
        writer.endLine();
    }
}

std::string variableName(const Problem& problem, int column) {
    const std::string& label = problem.variables(column).label;
    return label.empty() ? "Var. #" + std::to_string(column) : label;
}

std::optional<std::string> fault(const Problem& problem) {
    if (auto found = typeFault(problem)) return found;
    if (!isYesOrNo(problem.stepwise)) return "Response of stepwise analysis must be Y or N.";
    if (!isYesOrNo(problem.errorAnalysis)) return "Response to error analysis must be Y or N.";
    if (auto found = labelFault(problem.label, "Problem description")) return found;
    for (const Variable& variable : problem.variables.span())
        if (auto found = labelFault(variable.label, "Variable label")) return found;
    return std::nullopt;
}

std::vector<int> usedColumns(const Problem& problem) {
    std::vector<int> columns;
    for (const char* type : {role::independent, role::dependent})
        for (int column = 1; column <= columnCount; ++column)
            if (problem.variables(column).type == type) columns.push_back(column);
    return columns;
}

std::string observationsText(const Problem& problem) {
    const std::vector<int> columns = usedColumns(problem);
    ItemWriter writer;
    for (int i = 1; i <= problem.observationCount; ++i) {
        for (const int column : columns) writer.number(problem.data(i, column));
        writer.endLine();
    }
    return writer.text();
}

Observations readObservations(ItemReader& reader, int count, int variableCount) {
    checkIndex(count, 0, mostObservations);
    checkIndex(variableCount, 1, columnCount);
    Observations observations;
    observations.count = count;
    observations.variableCount = variableCount;
    for (int i = 1; i <= count; ++i)
        for (int k = 1; k <= variableCount; ++k) observations.x(i, k) = reader.readNumber();
    return observations;
}

} // namespace vantore::mulreg
