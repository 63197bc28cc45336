#include "mathprog/MIPROG/report.h"

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::miprog {

namespace {

constexpr int columnsOfPanel = 5;
constexpr std::size_t rowLabelCharacters = 14;
constexpr std::size_t columnCharacters = 11;
constexpr int firstColumnEnd = 27; // position behind the panel's first column
constexpr int columnStep = 12;

/// A column of the table: its heading and what it shows in the constraints, the type row and the objective
/// row.
struct Column {
    std::string heading;
    std::function<std::string(int i)> constraint;
    std::string type, objective;
};

std::vector<Column> columnsOf(const Problem& problem) {
    std::vector<Column> columns;
    for (int j = 1; j <= problem.n; ++j)
        columns.push_back({problem.columnLabel(j),
                           [&problem, j](int i) { return fitted(problem.coef(i, j), columnCharacters); },
                           problem.type(j), fitted(problem.objCoef(j), columnCharacters)});
    columns.push_back({"Type", [&problem](int i) { return problem.relation(i); }, "", ""});
    columns.push_back(
        {"RHS", [&problem](int i) { return fitted(problem.rhs(i), columnCharacters); }, "", ""});
    return columns;
}

using Panel = std::vector<Column>;

void printRow(PrintLines& page, const Panel& panel, const std::string& label,
              const std::function<std::string(const Column&)>& textOf) {
    page.text(left(label, rowLabelCharacters));
    int end = firstColumnEnd;
    for (const Column& column : panel) {
        const std::string text = left(textOf(column), columnCharacters);
        if (!text.empty()) page.right(end, text);
        end += columnStep;
    }
    page.endLine();
}

void printPanel(PrintLines& page, const Problem& problem, const Panel& panel) {
    page.line("");
    printRow(page, panel, "Variable/", [](const Column& column) { return column.heading; });
    page.line("Constraint");
    for (int i = 1; i <= problem.m; ++i)
        printRow(page, panel, problem.rowLabel(i),
                 [i](const Column& column) { return column.constraint(i); });
    printRow(page, panel, "Var. type", [](const Column& column) { return column.type; });
    printRow(page, panel, "Obj. coef.", [](const Column& column) { return column.objective; });
}

} // namespace

PrintLines inputPage(const Problem& problem) {
    PrintLines page;
    page.line("                         INPUT DATA");
    page.line("");
    page.line("Problem label: " + problem.label);
    page.line(std::string("Objective: ") + (problem.maximize ? "Maximize" : "Minimize"));
    const std::vector<Column> columns = columnsOf(problem);
    for (std::size_t first = 0; first < columns.size(); first += columnsOfPanel) {
        const std::size_t behind = std::min(first + columnsOfPanel, columns.size());
        printPanel(page, problem,
                   Panel(columns.begin() + static_cast<std::ptrdiff_t>(first),
                         columns.begin() + static_cast<std::ptrdiff_t>(behind)));
    }
    return page;
}

} // namespace vantore::miprog
