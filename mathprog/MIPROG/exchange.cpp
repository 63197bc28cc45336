#include "mathprog/MIPROG/exchange.h"

#include <cmath>
#include <string_view>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::miprog {

namespace {

std::optional<int> senseOf(const std::string& relation) {
    if (relation == "<") return 1;
    if (relation == "=") return 0;
    if (relation == ">") return -1;
    return std::nullopt;
}

void countSense(SolverInput& input, int sense) {
    if (sense > 0) ++input.lessCount;
    if (sense == 0) ++input.equalCount;
    if (sense < 0) ++input.greaterCount;
}

template <class Table, class TextOf>
std::string joinedByCommas(const Table& table, TextOf textOf) {
    std::string line;
    for (const auto& item : table.span()) line.append(line.empty() ? "" : ",").append(textOf(item));
    return line;
}

/// A name in single quotes. An apostrophe before a comma would end it: there it is a typographic one.
std::string quotedName(const std::string& name) {
    std::string text = "'";
    for (std::size_t at = 0; at < name.size(); ++at) {
        const std::size_t next = name.find_first_not_of(' ', at + 1);
        const bool ends = name[at] == '\'' && next != std::string::npos && name[next] == ',';
        ends ? text.append("\u2019") : text.append(1, name[at]);
    }
    return text + "'";
}

std::string coefficientLine(const SolverInput& input, int i) {
    std::string line;
    for (int j = 1; j <= input.n; ++j) line.append(j == 1 ? "" : ",").append(defaultText(input.coef(i, j)));
    return line;
}

} // namespace

std::optional<SolverInput> solverInput(const Problem& problem) {
    SolverInput input;
    input.objectiveFlag = problem.maximize ? 1 : -1;
    input.m = problem.m;
    input.n = problem.n;
    for (int j = 1; j <= problem.n; ++j) {
        const bool binary = problem.type(j) == binaryType;
        if (binary || problem.type(j) == integerType) input.intIndex.add(j);
        input.names.add(withoutFirst(trimmed(problem.columnLabel(j)), 1));
        input.objCoef.add(problem.objCoef(j));
        input.bounds.add({0, binary ? 1 : noBound});
    }
    for (int i = 1; i <= problem.m; ++i) {
        const std::optional<int> sense = senseOf(problem.relation(i));
        if (!sense) return std::nullopt;
        countSense(input, *sense);
        input.rowSense.add(*sense);
        input.rhs.add(problem.rhs(i));
        for (int j = 1; j <= problem.n; ++j) input.coefs.add(problem.coef(i, j));
    }
    return input;
}

std::vector<std::string> temporaryLines(const SolverInput& input) {
    const auto whole = [](int value) { return std::to_string(value); };
    std::vector<std::string> lines = {whole(input.objectiveFlag)};
    lines.push_back(whole(input.m) + "," + whole(input.n) + "," + whole(input.lessCount) + "," +
                    whole(input.equalCount) + "," + whole(input.greaterCount));
    lines.push_back(joinedByCommas(input.names, quotedName));
    for (int i = 1; i <= input.m; ++i) lines.push_back(coefficientLine(input, i));
    lines.push_back(joinedByCommas(input.rhs, defaultText));
    lines.push_back(joinedByCommas(input.rowSense, whole));
    lines.push_back(joinedByCommas(input.objCoef, defaultText));
    lines.push_back(joinedByCommas(input.bounds, [](const Bounds& bounds) {
        return defaultText(bounds.lower) + "," + defaultText(bounds.upper);
    }));
    lines.push_back(whole(input.intCount()));
    lines.push_back(joinedByCommas(input.intIndex, whole));
    return lines;
}

} // namespace vantore::miprog
