#include "mathprog/LNPROG/Lnprog.h"

#include <algorithm>

#include "mathprog/LNPROG/report.h"
#include "mathprog/matrix_grid.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::lnprog {

namespace {

const ModuleWording lnprogWording = {.name = "LNPROG",
                                     .filePrefix = "FLP",
                                     .openTitle = "Open linear programming data file",
                                     .saveTitle = "Save linear programming data",
                                     .filter = "Linear programming (FLP*.dat)|FLP*.dat|"};

const ReportStyle reportStyle = {.title = {"Arial", 10, false}, .body = {"Courier New", 8, false}};

// The objective row under the constraints; the relation and the right-hand side behind the variables.
constexpr int roleRows = 1;
constexpr int roleColumns = 2;

constexpr double headingColumnWidth = 1000; // twips of the design
constexpr double columnWidth = 450;
constexpr std::size_t columnCharacters = 3;

} // namespace

Lnprog::Lnprog(Suite& suite) : ModuleFrame(suite, lnprogWording) {
    addFields();
    addSizes();
    addButtons();
}

void Lnprog::addFields() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1680, .boxWidth = 7500};
    FieldColumn rows{.left = 120, .top = 540, .captionWidth = 2080, .boxWidth = 800};
    FieldColumn columns{.left = 3400, .top = 540, .captionWidth = 1940, .boxWidth = 800};
    txtTitle = &addField(label, "txtTitle", "Problem label:");
    txtTitle->show("Enter label");
    txtRows = &addField(rows, "txtRows", "Number of constraints:");
    txtRows->show("1");
    txtRows->tip = "At most 50.  Press Resize before you change it.";
    txtCols = &addField(columns, "txtCols", "Number of variables:");
    txtCols->show("1");
    txtCols->tip = "At most 100.  Press Resize before you change it.";
    Grid = &addGrid("Grid", {120, 1000, 9360, 5330});
    Grid->onKey = [this](int code) { typeKey(code); };
    Grid->onEdit = [this] { fitColumns(); };
    Grid->holdsNumbers = [this](int col) { return col >= 1 && col != relationColumn(); };
    Grid->setRows(roleRows + 2);
    Grid->setCols(roleColumns + 2);
    shapeGrid(1, 1);
    addReport();
}

void Lnprog::addSizes() {
    const auto refuse = [] { throw RuntimeError(ErrorNumber::SubscriptOutOfRange); };
    const auto taken = [this] { return !sizesHeld_; };
    addSizeBox(*txtRows, {Grid},
               {.most = mostConstraints,
                .present = [this] { return constraintsShown(); },
                .shape = [this](int constraints) { shapeGrid(constraints, variablesShown()); },
                .onExcess = [this] { message("Maximum number of rows (50) has been exceeded"); },
                .onShort = refuse,
                .takes = taken});
    addSizeBox(*txtCols, {Grid},
               {.most = mostVariables,
                .present = [this] { return variablesShown(); },
                .shape = [this](int variables) { shapeGrid(constraintsShown(), variables); },
                .onExcess = [this] { message("Maximum number of columns (100) has been exceeded"); },
                .onShort = refuse,
                .takes = taken});
}

void Lnprog::addButtons() {
    addStart();
    addDataButtons({.arithmetic = "cmdColArith", .rows = false});
    auto& cmdResize =
        addButton("cmdResize", "Resi&ze", buttonPlace(1, 0), {View::Data}, [this] { sizesHeld_ = false; });
    cmdResize.tip = "Lets you change the number of constraints and of variables.";
    addOutcomeButtons({View::Report}, "cmdPrintOut");
}

// The table

/// Gives the grid room for that many constraints and variables; the cells keep their row and column, the
/// objective, the relations and the right-hand sides their role.
void Lnprog::shapeGrid(int constraints, int variables) {
    reshapeMatrix(*Grid, constraints + roleRows + 1, variables + roleColumns + 1, roleRows, roleColumns);
    showHeadings();
}

void Lnprog::showHeadings() {
    const int constraints = constraintsShown();
    const int variables = variablesShown();
    Grid->setRowHeight(0, 2 * designRowHeight);
    Grid->setCell(0, 0, "Variable\\\nContraint");
    Grid->setColWidth(0, headingColumnWidth);
    for (int j = 1; j <= variables; ++j) Grid->setCell(0, j, "X" + std::to_string(j));
    Grid->setCell(0, relationColumn(), "Type,\n<, =, >");
    Grid->setCell(0, rightSideColumn(), "RHS\nValue");
    for (int i = 1; i <= constraints; ++i) Grid->setCell(i, 0, std::to_string(i));
    Grid->setCell(constraints + 1, 0, "Obj. coef.");
    fitColumns();
}

/// A column is as wide as its longest text needs.
void Lnprog::fitColumns() {
    for (int col = 1; col < Grid->cols(); ++col) {
        double widest = columnWidth;
        for (int row = 0; row < Grid->rows(); ++row)
            widest = std::max(widest, widthForText(Grid->cell(row, col), columnCharacters, columnWidth));
        Grid->setColWidth(col, widest);
    }
}

/// Relations take their three signs only; under the right-hand sides the objective has nothing.
void Lnprog::typeKey(int code) {
    const bool inObjective = Grid->row() == Grid->rows() - 1;
    if (inObjective && Grid->col() == rightSideColumn()) return;
    if (Grid->col() == relationColumn()) return relationKeyPress(*Grid, code);
    cellKeyPress(*Grid, code);
}

// The problem

void Lnprog::readProblem(ItemReader& reader) {
    sizesHeld_ = true;
    showProblem(read(reader));
}

void Lnprog::showProblem(const Problem& problem) {
    txtTitle->show(problem.label);
    txtRows->show(std::to_string(problem.constraints));
    txtCols->show(std::to_string(problem.variables));
    shapeGrid(problem.constraints, problem.variables);
    for (int row = 1; row < Grid->rows(); ++row) Grid->clearRow(row);
    for (int i = 1; i <= problem.constraints; ++i) {
        Grid->setCell(i, relationColumn(), problem.rows(i).relation);
        Grid->setCell(i, rightSideColumn(), defaultText(problem.rows(i).rightSide));
    }
    for (int i = 1; i <= problem.objectiveRow(); ++i)
        for (int j = 1; j <= problem.variables; ++j)
            if (const auto& coefficient = problem.coefficients(i, j))
                Grid->setCell(i, j, defaultText(*coefficient));
    fitColumns();
}

/// The problem of the sizes in the boxes. SubscriptOutOfRange when the grid has no such cells.
Problem Lnprog::readControls() const {
    Problem problem;
    problem.label = txtTitle->text();
    problem.constraints = toInt32(val(txtRows->text()));
    problem.variables = toInt32(val(txtCols->text()));
    checkIndex(problem.constraints, 0, mostConstraints);
    checkIndex(problem.variables, 0, mostVariables);
    for (int i = 1; i <= problem.objectiveRow(); ++i) readRow(problem, i);
    return problem;
}

void Lnprog::readRow(Problem& problem, int row) const {
    for (int j = 1; j <= problem.variables; ++j)
        if (const std::string& text = Grid->cell(row, j); !text.empty())
            problem.coefficients(row, j) = val(text);
    problem.rows(row).relation = Grid->cell(row, problem.variables + 1);
    problem.rows(row).rightSide = val(Grid->cell(row, problem.variables + 2));
}

// Solve

void Lnprog::solve() {
    const Busy busy(suite());
    const Problem problem = readControls();
    const Outcome outcome = lnprog::solve(simplex_, problem);
    writeReportFile(solveReport(problem.label, simplex_, outcome));
    showReportFile(reportStyle);
}

void Lnprog::printData() {
    const Problem problem = readControls();
    buildTableau(simplex_, problem);
    writeReportFile(setupReport(problem.label, simplex_));
    showReportFile(reportStyle);
}

} // namespace vantore::lnprog
