#include "mathprog/MIPROG/MIPROG.h"

#include <algorithm>

#include "mathprog/MIPROG/exchange.h"
#include "mathprog/MIPROG/report.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/forms/keys.h"
#include "shell/report_file.h"

namespace vantore::miprog {

namespace {

const ModuleWording miprogWording = {.name = "MIPROG",
                                     .filePrefix = "ILP",
                                     .openTitle = "Open integer programming data file",
                                     .saveTitle = "Save integer programming data",
                                     .filter = "Integer programming (ILP*.dat)|ILP*.dat|"};

constexpr const char* solverProgram = "MIP.EXE";
constexpr const char* solverReport = "OUTPUT.Dat";

constexpr int roleRows = 2;    // variable types, objective coefficients
constexpr int roleColumns = 2; // relation, right-hand side
constexpr int space = 32;      // character code

// Widths in twips of the design.
constexpr double columnWidth = 700;
constexpr double rowHeadingWidth = 1000;
constexpr std::size_t columnCharacters = 4;
constexpr std::size_t rowHeadingCharacters = 5;

constexpr const char* question =
    "Note:\r\n\r\n"
    "Long running time, infeasible solution, or unbounded solution problems may be resolved by:\r\n"
    "1. Adjusting the problem constraints by changing their coefficients, often only slightly.\r\n"
    "2. Rescaling problem values to reduce their magnitude such as dividing each row by the largest value in "
    "the row and/or dividing each column by the largest absolute value in the column.\r\n"
    " 3. Checking the logic of the problem formulation.\r\n\r\n"
    "Press CTRL C to stop execution, if neccessary.\r\n\r\n"
    "Continue with execution?";

} // namespace

MIPROG::MIPROG(Suite& suite) : ModuleFrame(suite, miprogWording) {
    addFields();
    addObjective();
    addMatrix();
    addSizes();
    addButtons();
}

void MIPROG::addFields() {
    FieldColumn title{.left = 120, .top = 120, .captionWidth = 1460, .boxWidth = 4800};
    FieldColumn left{.left = 120, .top = 540, .captionWidth = 1460, .boxWidth = 900};
    FieldColumn right{.left = 3300, .top = 540, .captionWidth = 1480, .boxWidth = 900};
    txtTitle = &addField(title, "txtTitle", "Problem label:");
    txtTitle->show("Enter label");
    txtRows = &addField(left, "txtRows", "Constraints:");
    txtRows->show("1");
    txtCols = &addField(right, "txtCols", "Variables:");
    txtCols->show("1");
    left.boxWidth = right.boxWidth = 1600;
    txtConLabel = &addField(left, "txtConLabel", "Constraint label:");
    txtConLabel->tip = "Label of the selected constraint";
    txtVarLabel = &addField(right, "txtVarLabel", "Variable label:");
    txtConLabel->result = txtVarLabel->result = true; // the headings are the grid's
    txtVarLabel->tip = "Label of the selected variable. The solver's report leaves off its first character.";
}

void MIPROG::addObjective() {
    const auto& frame =
        addContainer("fraObjective", "OBJECTIVE", {6700, 90, 2700, 1185}, {View::Start, View::Data});
    optMax = &addOption("optMax", "Maximize", {6900, 400, 2300, 300}, frame);
    optMin = &addOption("optMin", "Minimize", {6900, 800, 2300, 300}, frame);
    optMax->selected = true;
}

void MIPROG::addMatrix() {
    Grid = &addGrid("Grid", {120, 1400, 9360, 4950});
    Grid->onKey = [this](int code) { cellKey(code); };
    Grid->onCellClick = [this](int row, int col) { cycleType(row, col); };
    Grid->onMove = [this] { showLabels(); };
    Grid->onEdit = [this] { fitColumns(); };
    Grid->holdsNumbers = [this](int col) {
        return col >= 1 && col <= rhsColumn() && col != relationColumn();
    };
    Grid->tip =
        "Click in the row \"Var. type\" for a continuous, an integer (INT) or a binary (0,1) variable.";
    Grid->setRows(1 + 1 + roleRows);
    Grid->setCols(1 + 1 + roleColumns);
    showHeadings();
}

void MIPROG::addSizes() {
    rowsBox_ =
        &addSizeBox(*txtRows, {Grid},
                    {.least = 1,
                     .most = mostRows,
                     .present = [this] { return m(); },
                     .shape = [this](int rows) { shape(rows, n()); },
                     .onExcess = [this] { message("Maximum number of rows (50) has been exceeded"); }});
    columnsBox_ =
        &addSizeBox(*txtCols, {Grid},
                    {.least = 1,
                     .most = mostColumns,
                     .present = [this] { return n(); },
                     .shape = [this](int cols) { shape(m(), cols); },
                     .onExcess = [this] { message("Maximum number of columns (99) has been exceeded"); }});
}

void MIPROG::addButtons() {
    addStart("cmdOpen", {1200, 1500, 7200, 4800});
    addDataButtons({.arithmetic = "cmdColArith",
                    .rows = false,
                    .arithmeticPlace = buttonPlace(1, 0),
                    .excelPlace = buttonPlace(1, 1)});
    auto& resize =
        addButton("cmdResize", "Resi&ze", buttonPlace(1, 2), {View::Data}, [this] { showSizes(); });
    resize.tip = "Brings the numbers of constraints and variables into line with the grid.";
    addReport();
    addOutcomeButtons({View::Report}, "cmdPrintOut");
}

// The grid's shape and headings

/// Puts the fixed headings where they belong, names the rows and columns that have no label, and fits the
/// widths.
void MIPROG::showHeadings() {
    Grid->setCell(0, 0, "Variable\\\r\nConstraint");
    for (int i = 1; i <= m(); ++i)
        if (Grid->cell(i, 0).empty()) Grid->setCell(i, 0, defaultRowLabel(i));
    for (int j = 1; j <= n(); ++j)
        if (Grid->cell(0, j).empty()) Grid->setCell(0, j, defaultColumnLabel(j));
    Grid->setCell(typeRow(), 0, "Var. type");
    Grid->setCell(objectiveRow(), 0, "Obj. coef.");
    Grid->setCell(0, relationColumn(), "Type,\r\n<, =, >");
    Grid->setCell(0, rhsColumn(), "RHS\r\nValue");
    Grid->setRowHeight(0, 2 * designRowHeight);
    for (int row = 1; row < Grid->rows(); ++row) Grid->setRowHeight(row, designRowHeight);
    fitColumns();
}

void MIPROG::fitColumns() {
    double widest = rowHeadingWidth;
    for (int row = 1; row < Grid->rows(); ++row)
        widest = std::max(widest, widthForText(Grid->cell(row, 0), rowHeadingCharacters, rowHeadingWidth));
    Grid->setColWidth(0, widest);
    for (int col = 1; col < Grid->cols(); ++col)
        Grid->setColWidth(col, widthForText(Grid->cell(0, col), columnCharacters, columnWidth));
}

void MIPROG::shape(int rows, int cols) {
    reshapeMatrix(*Grid, 1 + rows + roleRows, 1 + cols + roleColumns, roleRows, roleColumns);
    showHeadings();
}

/// The size boxes show the size that the grid has.
void MIPROG::showSizes() {
    rowsBox_->settle();
    columnsBox_->settle();
}

/// The label boxes show the headings of the selected constraint and variable.
void MIPROG::showLabels() {
    const int row = Grid->row();
    const int col = Grid->col();
    const bool constraint = row >= 1 && row <= m();
    const bool variable = col >= 1 && col <= n();
    txtConLabel->cell = constraint ? std::optional(CellReference{Grid, row, 0}) : std::nullopt;
    txtVarLabel->cell = variable ? std::optional(CellReference{Grid, 0, col}) : std::nullopt;
    txtConLabel->show(constraint ? Grid->cell(row, 0) : "");
    txtVarLabel->show(variable ? Grid->cell(0, col) : "");
}

// Typing

void MIPROG::cellKey(int code) {
    if (Grid->row() == typeRow() && code == space) return cycleType(Grid->row(), Grid->col());
    if (Grid->col() == relationColumn()) return relationKeyPress(*Grid, code);
    if (Grid->col() == rhsColumn() && code == keys::minus)
        return message("The minus (-) key is pressed.  A negative RHS value is not permitted.");
    cellKeyPress(*Grid, code);
}

void MIPROG::cycleType(int row, int col) {
    if (row != typeRow() || col < 1 || col > n()) return;
    Grid->setCell(row, col, nextType(Grid->cell(row, col)));
}

void MIPROG::computeColumn() {
    const int col = Grid->col();
    const std::string type = Grid->cell(typeRow(), col);
    ModuleFrame::computeColumn();
    // A highlight over the whole column takes in the variable's type, which is no number.
    Grid->setCell(typeRow(), col, type);
}

// The file

void MIPROG::readProblem(ItemReader& reader) {
    putProblem(read(reader));
}

void MIPROG::putProblem(const Problem& problem) {
    txtTitle->show(problem.label);
    optMax->selected = problem.maximize;
    optMin->selected = !problem.maximize;
    // Nothing of the problem before stays, in cells without a number either.
    for (int row = 1; row < Grid->rows(); ++row) Grid->clearRow(row);
    shape(problem.m, problem.n);
    for (int j = 1; j <= problem.n; ++j) {
        Grid->setCell(0, j, problem.columnLabel(j));
        Grid->setCell(typeRow(), j, problem.type(j));
        Grid->setCell(objectiveRow(), j, defaultText(problem.objCoef(j)));
    }
    for (int i = 1; i <= problem.m; ++i) {
        Grid->setCell(i, 0, problem.rowLabel(i));
        for (int j = 1; j <= problem.n; ++j) Grid->setCell(i, j, defaultText(problem.coef(i, j)));
        Grid->setCell(i, relationColumn(), problem.relation(i));
        Grid->setCell(i, rhsColumn(), defaultText(problem.rhs(i)));
    }
    fitColumns();
    showSizes();
    Grid->setCurrent(1, 1);
}

Problem MIPROG::readControls() const {
    Problem problem;
    problem.label = txtTitle->text();
    problem.maximize = optMax->selected;
    problem.m = m();
    problem.n = n();
    for (int j = 1; j <= problem.n; ++j) {
        problem.columnLabel(j) = trimmed(Grid->cell(0, j));
        problem.type(j) = Grid->cell(typeRow(), j);
        problem.objCoef(j) = val(Grid->cell(objectiveRow(), j));
    }
    for (int i = 1; i <= problem.m; ++i) {
        problem.rowLabel(i) = trimmed(Grid->cell(i, 0));
        for (int j = 1; j <= problem.n; ++j) problem.coef(i, j) = val(Grid->cell(i, j));
        problem.relation(i) = Grid->cell(i, relationColumn());
        problem.rhs(i) = val(Grid->cell(i, rhsColumn()));
    }
    return problem;
}

void MIPROG::fillBlankCells() {
    const auto fill = [this](int row, int col) {
        if (Grid->cell(row, col).empty()) Grid->setCell(row, col, "0");
    };
    for (int i = 1; i <= m(); ++i) {
        for (int j = 1; j <= n(); ++j) fill(i, j);
        fill(i, rhsColumn());
    }
    for (int j = 1; j <= n(); ++j) fill(objectiveRow(), j);
}

// Solve

void MIPROG::solve() {
    const std::optional<SolverInput> input = solverInput(readControls());
    if (!input) return message("Error in variable type.  Check input data.");
    const SolverJob job{solverProgram,
                        [&] { writeLines(suite().ioPath("TEMP.DAT"), temporaryLines(*input)); },
                        {solverReport}};
    if (!solver.writeInput(job)) return;
    if (!suite().asksYes(question, wording().name)) return;
    if (!solver.run(job)) return;
    std::vector<std::string> lines = readReport(suite().ioPath(solverReport));
    lines.insert(lines.begin(), resultsTitle);
    showReportLines(lines);
}

void MIPROG::printReport() {
    std::vector<std::string> lines = readReport(suite().ioPath(solverReport));
    lines.insert(lines.begin(), resultsTitle);
    printReportLines(lines);
}

void MIPROG::printData() {
    writeReportFile(inputPage(readControls()));
    showReportFile();
}

} // namespace vantore::miprog
