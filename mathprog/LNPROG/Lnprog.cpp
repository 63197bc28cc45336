#include "mathprog/LNPROG/Lnprog.h"

#include <cmath>

#include "mathprog/LNPROG/report.h"
#include "mathprog/matrix_grid.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::lnprog {

namespace {

const ModuleNames moduleNames = {.name = "LNPROG",
                                 .filePrefix = "FLP",
                                 .openTitle = "Open linear programming data file",
                                 .saveTitle = "Save linear programming data",
                                 .filter = "Linear programming (FLP*.dat)|FLP*.dat|",
                                 .saveFilter = ""};

const ReportStyle reportStyle = {.title = {"Arial", 10, false}, .body = {"Courier New", 8, false}};

// The objective row under the constraints; the relation and the right-hand side behind the variables.
constexpr int roleRows = 1;
constexpr int roleColumns = 2;

constexpr double headingColumnWidth = 1000; // twips of the design
constexpr double columnWidth = 450;
constexpr std::size_t columnCharacters = 3;

} // namespace

Lnprog::Lnprog(Suite& suite) : ModuleFrame(suite, moduleNames) {
    addFields();
    addButtons();
    addReportButtons();
    showView(View::Start);
}

void Lnprog::addFields() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblTitle", "Problem label:", {120, 150, 1700, 270}, fields);
    txtTitle = &addTextBox("txtTitle", {1860, 120, 7500, 315}, "Enter label");
    addLabel("lblRows", "Number of constraints:", {120, 570, 2100, 270}, fields);
    txtRows = &addTextBox("txtRows", {2260, 540, 800, 315}, "1");
    txtRows->tip = "At most 50.  Press Resize before you change it.";
    txtRows->onChange = [this] { takeRows(); };
    txtRows->onLeave = [this] { showSizes(); };
    addLabel("lblCols", "Number of variables:", {3400, 570, 1950, 270}, fields);
    txtCols = &addTextBox("txtCols", {5400, 540, 800, 315}, "1");
    txtCols->tip = "At most 100.  Press Resize before you change it.";
    txtCols->onChange = [this] { takeColumns(); };
    txtCols->onLeave = [this] { showSizes(); };
    Grid = &add<DataGrid>("Grid", Rect{120, 1000, 9360, 5330});
    Grid->onKey = [this](int code) { typeKey(code); };
    seenIn(*Grid, {View::Data});
    setMainGrid(*Grid);
    Grid->setRows(roleRows + 2);
    Grid->setCols(roleColumns + 2);
    shapeGrid(1, 1);
    addReport();
}

void Lnprog::addButtons() {
    addStart();
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solveProblem(); });
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    auto& cmdResize =
        addButton("cmdResize", "Resi&ze", buttonPlace(1, 0), {View::Data}, [this] { sizesHeld_ = false; });
    cmdResize.tip = "Lets you change the number of constraints and of variables.";
    addButton("cmdColArith", "Colu&mn Arithmetic", buttonPlace(1, 2), {View::Data},
              [this] { computeColumn(); });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 3), {View::Data}, [this] { excelEdit(); });
}

void Lnprog::addReportButtons() {
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Report},
                             [this] { continueToData(); });
    addButton("cmdPrintOut", "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReportFile(); });
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
    history().clear();
    Grid->setRowHeight(0, 2 * designRowHeight);
    Grid->setCell(0, 0, "Variable\\\nContraint");
    Grid->setColWidth(0, headingColumnWidth);
    for (int j = 1; j <= variables; ++j) Grid->setCell(0, j, "X" + std::to_string(j));
    Grid->setCell(0, relationColumn(), "Type,\n<, =, >");
    Grid->setCell(0, rightSideColumn(), "RHS\nValue");
    for (int i = 1; i <= constraints; ++i) Grid->setCell(i, 0, std::to_string(i));
    Grid->setCell(constraints + 1, 0, "Obj. coef.");
    for (int col = 1; col < Grid->cols(); ++col) fitColumn(col);
}

/// A column is as wide as its longest text needs.
void Lnprog::fitColumn(int col) {
    double widest = columnWidth;
    for (int row = 0; row < Grid->rows(); ++row)
        widest = std::max(widest, widthForText(Grid->cell(row, col), columnCharacters, columnWidth));
    Grid->setColWidth(col, widest);
}

/// The size typed into a box, where the grid is to take it. A size beyond the limit is refused with its
/// message, a negative one with SubscriptOutOfRange; the box then shows the grid's size again.
std::optional<int> Lnprog::sizeToTake(TextBox& box, int shown, int most, const std::string& exceeded) {
    if (sizesHeld_ || box.text().empty()) return std::nullopt;
    const double size = std::nearbyint(val(box.text()));
    if (size >= 0 && size <= most) return toInt32(size);
    if (size > most) message(exceeded);
    box.setText(std::to_string(shown));
    if (size < 0) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    return std::nullopt;
}

void Lnprog::takeRows() {
    const auto constraints = sizeToTake(*txtRows, constraintsShown(), mostConstraints,
                                        "Maximum number of rows (50) has been exceeded");
    if (!constraints) return;
    typedRows_(*Grid, txtRows->text(), *constraints + roleRows + 1, Grid->cols(), roleRows, roleColumns);
    showHeadings();
}

void Lnprog::takeColumns() {
    const auto variables = sizeToTake(*txtCols, variablesShown(), mostVariables,
                                      "Maximum number of columns (100) has been exceeded");
    if (!variables) return;
    typedColumns_(*Grid, txtCols->text(), Grid->rows(), *variables + roleColumns + 1, roleRows, roleColumns);
    showHeadings();
}

/// A size that was typed and not taken gives way to the grid's, so that it can't cut a Solve or a Save short.
void Lnprog::showSizes() {
    const std::string constraints = std::to_string(constraintsShown());
    const std::string variables = std::to_string(variablesShown());
    if (txtRows->text() != constraints) txtRows->setText(constraints);
    if (txtCols->text() != variables) txtCols->setText(variables);
}

/// Relations take their three signs only; under the right-hand sides the objective has nothing.
void Lnprog::typeKey(int code) {
    const bool inObjective = Grid->row() == Grid->rows() - 1;
    if (inObjective && Grid->col() == rightSideColumn()) return;
    if (Grid->col() == relationColumn()) return relationKeyPress(*Grid, code);
    cellKeyPress(*Grid, code);
    fitColumn(Grid->col());
}

void Lnprog::computeColumn() {
    columnArithmetic(suite(), *Grid, arithmetic,
                     [this](int col) { return col >= 1 && col != relationColumn(); });
    for (int col = 1; col < Grid->cols(); ++col) fitColumn(col);
}

// The problem

void Lnprog::readProblem(ItemReader& reader) {
    sizesHeld_ = true;
    showProblem(read(reader));
}

void Lnprog::showProblem(const Problem& problem) {
    txtTitle->setText(problem.label);
    txtRows->setText(std::to_string(problem.constraints));
    txtCols->setText(std::to_string(problem.variables));
    shapeGrid(problem.constraints, problem.variables);
    typedRows_ = typedColumns_ = {};
    for (int row = 1; row < Grid->rows(); ++row) Grid->clearRow(row);
    for (int i = 1; i <= problem.constraints; ++i) {
        Grid->setCell(i, relationColumn(), problem.rows(i).relation);
        Grid->setCell(i, rightSideColumn(), defaultText(problem.rows(i).rightSide));
    }
    for (int i = 1; i <= problem.objectiveRow(); ++i)
        for (int j = 1; j <= problem.variables; ++j)
            if (const auto& coefficient = problem.coefficients(i, j))
                Grid->setCell(i, j, defaultText(*coefficient));
    for (int col = 1; col < Grid->cols(); ++col) fitColumn(col);
}

void Lnprog::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
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

void Lnprog::solveProblem() {
    const Busy busy(suite());
    const Problem problem = readControls();
    const Outcome outcome = solve(simplex_, problem);
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
