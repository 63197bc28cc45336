#include "mathprog/LNPROG/report.h"

#include <cmath>
#include <string_view>

#include "shell/base/number_text.h"

namespace vantore::lnprog {

namespace {

constexpr int columnsOfPanel = 5;
constexpr int columnWidth = 15; // character positions

std::string variableText(int number) {
    return "X(" + format(number, "##0") + ")";
}

// The tableau

/// The columns that stand side by side.
struct Panel {
    int first = 0;
    int last = 0;

    bool isFirst() const { return first == 1; }
    int tab(int column) const { return (column - first + 1) * columnWidth; }
};

void printPanelHeadings(PrintLines& page, const Panel& panel) {
    for (int column = panel.first; column <= panel.last; ++column)
        page.tab(panel.tab(column)).text("Col-" + format(column, "##0"));
    page.endLine().text(" Row");
    if (panel.isFirst()) page.tab(7).text("BASIS");
    for (int column = panel.first; column <= panel.last; ++column)
        page.tab(panel.tab(column)).text(column == 1 ? "VALUES" : variableText(column - 1));
    page.endLine();
}

void printRow(PrintLines& page, const Simplex& simplex, const Panel& panel, int row) {
    page.text(" " + format(row, "##0"));
    if (panel.isFirst())
        page.tab(7).text(row == simplex.objectiveRow() ? "Z" : variableText(simplex.basis(row)));
    for (int column = panel.first; column <= panel.last; ++column)
        page.tab(panel.tab(column)).text(format(simplex.tableau(row, column), "######0.####"));
    page.endLine();
}

/// `PrintTableau`: the constraint rows and the objective row, panel by panel. The last panel takes a sixth
/// column rather than leave it alone.
void printTableau(PrintLines& page, const Simplex& simplex) {
    for (int first = 1; first <= simplex.lastColumn;) {
        Panel panel{first, first + columnsOfPanel - 1};
        if (simplex.lastColumn - 1 <= panel.last) panel.last = simplex.lastColumn;
        printPanelHeadings(page, panel);
        for (int row = 1; row <= simplex.objectiveRow(); ++row) printRow(page, simplex, panel, row);
        page.endLine();
        first = panel.last + 1;
    }
}

// The outcomes

/// One line of the summary, its items at the four columns.
void printColumns(PrintLines& page, std::string_view basis, std::string_view activity,
                  std::string_view nonbasis, std::string_view opportunity) {
    page.tab(3).text(basis).tab(16).text(activity).tab(25).text(nonbasis).tab(38).text(opportunity).endLine();
}

void printVariable(PrintLines& page, const Simplex& simplex, int variable) {
    const std::string name = variableText(variable);
    if (const std::optional<int> row = basicRow(simplex, variable))
        return printColumns(page, name, defaultText(simplex.tableau(*row, 1)), "--", "--");
    const double cost = simplex.tableau(simplex.objectiveRow(), variable + 1);
    printColumns(page, "--", "--", name, defaultText(cost));
}

void printOutcome(PrintLines& page, const Simplex& simplex, const Optimal& /*outcome*/) {
    page.line("").line("SUMMARY OF RESULTS").line("");
    printColumns(page, "Basis", "Activity", "Nonbasis", "Opportunity");
    printColumns(page, "variables", "level", "variables", "cost");
    for (int variable = 1; variable <= simplex.lastColumn - 1; ++variable)
        printVariable(page, simplex, variable);
    const double objective = std::abs(simplex.tableau(simplex.objectiveRow(), 1));
    page.line("").line(joined("Objective function value (Z) = ", objective));
}

void printOutcome(PrintLines& page, const Simplex& simplex, const Infeasible& /*outcome*/) {
    page.line("").line("Artificial variables cannot be suppressed.");
    page.line("Check initial tableau for correct problem statement.");
    page.line(std::string(20, ' ') + "Termination iteration for error analysis.");
    printTableau(page, simplex);
}

void printOutcome(PrintLines& page, const Simplex& simplex, const Unbounded& outcome) {
    page.line("No positive A(I,J) could be found in column " + std::to_string(outcome.column) +
              " of iteration number " + std::to_string(outcome.iteration) + " --");
    page.line("Solution is unbounded").line("Current iteration is:");
    printTableau(page, simplex);
}

} // namespace

PrintLines solveReport(const std::string& label, const Simplex& simplex, const Outcome& outcome) {
    PrintLines page;
    page.line(" LINEAR PROGRAMMING RESULTS").line("").line("Problem label: " + label);
    std::visit([&](const auto& ending) { printOutcome(page, simplex, ending); }, outcome);
    return page;
}

PrintLines setupReport(const std::string& label, const Simplex& simplex) {
    PrintLines page;
    page.line(std::string(31, ' ') + "LINEAR PROGRAMMING").line("");
    page.line("Problem label: " + label).line(" ").line("PROBLEM SETUP");
    printTableau(page, simplex);
    return page;
}

} // namespace vantore::lnprog
