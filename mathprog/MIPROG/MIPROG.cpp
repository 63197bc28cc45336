#include "mathprog/MIPROG/MIPROG.h"

#include <algorithm>
#include <array>

#include "mathprog/MIPROG/exchange.h"
#include "mathprog/MIPROG/report.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/report_file.h"

namespace vantore::miprog {

namespace {

const ModuleNames moduleNames = {.name = "MIPROG",
                                 .filePrefix = "ILP",
                                 .openTitle = "Open integer programming data file",
                                 .saveTitle = "Save integer programming data",
                                 .filter = "Integer programming (ILP*.dat)|ILP*.dat|",
                                 .saveFilter = ""};

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

MIPROG::MIPROG(Suite& suite) : ModuleFrame(suite, moduleNames) {
    addFields();
    addObjective();
    addGrid();
    addButtons();
    showView(View::Start);
}

void MIPROG::addFields() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblTitle", "Problem label:", {120, 150, 1500, 270}, fields);
    txtTitle = &addTextBox("txtTitle", {1640, 120, 4800, 315}, "Enter label");
    addLabel("lblRows", "Constraints:", {120, 570, 1500, 270}, fields);
    txtRows = &addTextBox("txtRows", {1640, 540, 900, 315}, "1");
    addLabel("lblCols", "Variables:", {3300, 570, 1500, 270}, fields);
    txtCols = &addTextBox("txtCols", {4840, 540, 900, 315}, "1");
    addLabel("lblConLabel", "Constraint label:", {120, 990, 1500, 270}, fields);
    txtConLabel = &addTextBox("txtConLabel", {1640, 960, 1600, 315});
    addLabel("lblVarLabel", "Variable label:", {3300, 990, 1500, 270}, fields);
    txtVarLabel = &addTextBox("txtVarLabel", {4840, 960, 1600, 315});
    txtRows->onChange = [this] { sizeTyped(*txtRows, mostRows, "rows"); };
    txtCols->onChange = [this] { sizeTyped(*txtCols, mostColumns, "columns"); };
    txtRows->onLeave = txtCols->onLeave = [this] { showSizes(); };
    txtConLabel->onChange = [this] { labelTyped(*txtConLabel); };
    txtVarLabel->onChange = [this] { labelTyped(*txtVarLabel); };
    txtConLabel->tip = "Label of the selected constraint";
    txtVarLabel->tip = "Label of the selected variable. The solver's report leaves off its first character.";
}

void MIPROG::addObjective() {
    auto& frame = add<Frame>("fraObjective", Rect{6700, 90, 2700, 1185});
    frame.caption = "OBJECTIVE";
    seenIn(frame, {View::Start, View::Data});
    const auto addOption = [&](const std::string& name, const std::string& text, double top) {
        auto& option = add<Option>(name, Rect{6900, top, 2300, 300});
        option.caption = text;
        option.frame = &frame;
        seenIn(option, {View::Start, View::Data});
        enabledByOpen(option);
        return &option;
    };
    optMax = addOption("optMax", "Maximize", 400);
    optMin = addOption("optMin", "Minimize", 800);
    optMax->selected = true;
}

void MIPROG::addGrid() {
    Grid = &addMainGrid("Grid", {120, 1400, 9360, 4950}, mostRows);
    Grid->onKey = [this](int code) { cellKey(code); };
    Grid->onInsertKey = {};
    Grid->onCellClick = [this](int row, int col) { cycleType(row, col); };
    Grid->onMove = [this] { showLabels(); };
    Grid->tip =
        "Click in the row \"Var. type\" for a continuous, an integer (INT) or a binary (0,1) variable.";
    Grid->setRows(1 + 1 + roleRows);
    Grid->setCols(1 + 1 + roleColumns);
    showHeadings();
}

void MIPROG::addButtons() {
    addStart("cmdOpen", {1200, 1500, 7200, 4800});
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    addButton("cmdColArith", "Colu&mn Arithmetic", buttonPlace(1, 0), {View::Data},
              [this] { arithmeticOnColumn(); });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 1), {View::Data}, [this] { excelEdit(); });
    auto& resize =
        addButton("cmdResize", "Resi&ze", buttonPlace(1, 2), {View::Data}, [this] { showSizes(); });
    resize.tip = "Brings the numbers of constraints and variables into line with the grid.";
    addReport();
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Report},
                             [this] { continueToData(); });
    addButton("cmdPrintOut", "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReport(); });
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
    history().clear();
    reshapeMatrix(*Grid, 1 + rows + roleRows, 1 + cols + roleColumns, roleRows, roleColumns);
    showHeadings();
}

/// The size boxes show the size that the grid has.
void MIPROG::showSizes() {
    settingBoxes_ = true;
    txtRows->setText(std::to_string(m()));
    txtCols->setText(std::to_string(n()));
    settingBoxes_ = false;
}

void MIPROG::sizeTyped(TextBox& box, int most, const std::string& what) {
    if (settingBoxes_ || box.text().empty()) return;
    const double wanted = val(box.text());
    if (wanted < 1) return;
    if (wanted <= most) return reshapeTo(box, toInt32(wanted));
    message("Maximum number of " + what + " (" + std::to_string(most) + ") has been exceeded");
    if (&box == txtRows) reshapeTo(box, reshapeRows_.sizeBefore(*Grid, box.text()).rows - 1 - roleRows);
    if (&box == txtCols) reshapeTo(box, reshapeColumns_.sizeBefore(*Grid, box.text()).cols - 1 - roleColumns);
    showSizes();
}

/// Gives the grid the number of constraints or variables that was typed into its box.
void MIPROG::reshapeTo(const TextBox& box, int size) {
    history().clear();
    if (&box == txtRows)
        reshapeRows_(*Grid, box.text(), 1 + size + roleRows, Grid->cols(), roleRows, roleColumns);
    else
        reshapeColumns_(*Grid, box.text(), Grid->rows(), 1 + size + roleColumns, roleRows, roleColumns);
    showHeadings();
}

/// The label boxes show the headings of the selected constraint and variable.
void MIPROG::showLabels() {
    settingBoxes_ = true;
    const int row = Grid->row();
    const int col = Grid->col();
    const bool constraint = row >= 1 && row <= m();
    const bool variable = col >= 1 && col <= n();
    txtConLabel->cell = constraint ? std::optional(CellReference{Grid, row, 0}) : std::nullopt;
    txtVarLabel->cell = variable ? std::optional(CellReference{Grid, 0, col}) : std::nullopt;
    txtConLabel->setText(constraint ? Grid->cell(row, 0) : "");
    txtVarLabel->setText(variable ? Grid->cell(0, col) : "");
    settingBoxes_ = false;
}

void MIPROG::labelTyped(const TextBox& box) {
    if (settingBoxes_ || !box.cell) return;
    Grid->setCell(box.cell->row, box.cell->col, box.text());
    fitColumns();
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

void MIPROG::arithmeticOnColumn() {
    const auto holdsNumbers = [this](int col) {
        return col >= 1 && col <= rhsColumn() && col != relationColumn();
    };
    const int col = Grid->col();
    const std::string type = Grid->cell(typeRow(), col);
    history().clear();
    columnArithmetic(suite(), *Grid, arithmetic, holdsNumbers);
    // A highlight over the whole column takes in the variable's type, which is no number.
    Grid->setCell(typeRow(), col, type);
}

// The file

void MIPROG::readProblem(ItemReader& reader) {
    putProblem(read(reader));
}

void MIPROG::putProblem(const Problem& problem) {
    txtTitle->setText(problem.label);
    optMax->selected = problem.maximize;
    optMin->selected = !problem.maximize;
    reshapeRows_ = reshapeColumns_ = {};
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
        problem.columnLabel(j) = Grid->cell(0, j);
        problem.type(j) = Grid->cell(typeRow(), j);
        problem.objCoef(j) = val(Grid->cell(objectiveRow(), j));
    }
    for (int i = 1; i <= problem.m; ++i) {
        problem.rowLabel(i) = Grid->cell(i, 0);
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

void MIPROG::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
}

// Solve

void MIPROG::solve() {
    const std::optional<SolverInput> input = solverInput(readControls());
    if (!input) return message("Error in variable type.  Check input data.");
    const SolverJob job{solverProgram,
                        [&] { writeLines(suite().ioPath("TEMP.DAT"), temporaryLines(*input)); },
                        {solverReport}};
    if (!solver.writeInput(job)) return;
    if (!suite().asksYes(question, names().name)) return;
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
