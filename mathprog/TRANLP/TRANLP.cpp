#include "mathprog/TRANLP/TRANLP.h"

#include "mathprog/matrix_grid.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::tranlp {

namespace {

const ModuleNames moduleNames = {.name = "TRANLP",
                                 .filePrefix = "TRAN",
                                 .openTitle = "Open transportation method data file",
                                 .saveTitle = "Save transportation method data",
                                 .filter = "Transportation method (TRAN*.dat)|TRAN*.dat|",
                                 .saveFilter = ""};

constexpr int mostTypedRows = 100; // of the matrix, with the demand row; the same for columns
constexpr int mostAddedRows = 30;  // sources up to which a row may be added in the grid
constexpr int newSize = 5;
constexpr double nameWidth = 1500; // twips of the design
constexpr double resultNameWidth = 800;

} // namespace

TRANLP::TRANLP(Suite& suite) : ModuleFrame(suite, moduleNames) {
    arithmetic.oneColumn = {"Highlight only one column.", "Information"};
    arithmetic.menuTitle = "Column Arithmetic";
    arithmetic.menuDefault = "Enter selection";
    arithmetic.valueTitles.fill("Column Arithmetic");
    arithmetic.valueDefault = "Enter a value";
    addLabel("lblProbLabel", "Problem label:", {120, 150, 1700, 270}, {View::Start, View::Data});
    txtProbLabel = &addTextBox("txtProbLabel", {1860, 120, 7620, 315});
    addSizeBoxes();
    addLabelBoxes();
    addGrids();
    addDataButtons();
    addResultButtons();
    showView(View::Start);
}

void TRANLP::addSizeBoxes() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblRows", "No. of rows", {120, 570, 1700, 270}, fields);
    txtRows = &addTextBox("txtRows", {1860, 540, 900, 315}, defaultText(newSize));
    txtRows->tip = "No. of matrix rows including demand row";
    txtRows->onChange = [this] { resize(*txtRows, "Maximum number of rows (100) has been exceeded"); };
    addLabel("lblCols", "No. of columns", {4800, 570, 1700, 270}, fields);
    txtCols = &addTextBox("txtCols", {6540, 540, 900, 315}, defaultText(newSize));
    txtCols->tip = "No. of colums including supply column";
    txtCols->onChange = [this] { resize(*txtCols, "Maximum number of columns (100) has been exceeded"); };
}

void TRANLP::addLabelBoxes() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblRowLabel", "Row label", {120, 990, 1700, 270}, fields);
    txtRowLabel = &addTextBox("txtRowLabel", {1860, 960, 2800, 315});
    addLabel("lblColLabel", "Column label", {4800, 990, 1700, 270}, fields);
    txtColLabel = &addTextBox("txtColLabel", {6540, 960, 2940, 315});
}

void TRANLP::addGrids() {
    Grid = &addMainGrid("Grid", {120, 1400, 9360, 4930}, mostAddedRows);
    Grid->onInsertKey = [this] { addSourceRow(false); };
    Grid->onDoubleClick = [this] { addSourceRow(true); };
    Grid->onMove = [this] { showLabels(); };
    clearGrid();
    shapeGrid(newSize - 1, newSize - 1);
    addLabel("Label6", "Results", {120, 150, 3000, 270}, {View::Result});
    GridOut = &add<DataGrid>("GridOut", Rect{120, 450, 9360, 5350});
    seenIn(*GridOut, {View::Result});
    addLabel("Label7", "Total cost:", {120, 5970, 1500, 270}, {View::Result});
    txtTotalCost = &add<TextBox>("txtTotalCost", Rect{1860, 5940, 2800, 315});
    seenIn(*txtTotalCost, {View::Result});
    addReport();
}

void TRANLP::addDataButtons() {
    addStart("cmdOpen", {1200, 1400, 7200, 4800});
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    addButton("cmdColArith", "Colu&mn Arithmetic", buttonPlace(1, 2), {View::Data},
              [this] { columnArithmetic(suite(), *Grid, arithmetic, [](int col) { return col > 0; }); });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 3), {View::Data}, [this] { excelEdit(); });
}

void TRANLP::addResultButtons() {
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Result, View::Report},
                             [this] { continueToData(); });
    addButton("cmdReport", "&Report", buttonPlace(1, 1), {View::Result}, [this] { showReport(); });
    addButton("cmdPrintReport", "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReportFile(); });
}

// The shape of the grid

/// A size box has been typed in. The box that was refused shows the size that the grid still has.
void TRANLP::resize(TextBox& box, const char* excess) {
    if (showsSizes_ || box.text().empty()) return;
    try {
        const double size = val(box.text());
        if (size > mostTypedRows) {
            message(excess, "Warning");
            return showSizes();
        }
        const int places = toInt32(size - 1);
        checkIndex(places, 0, mostTypedRows);
        history().clear();
        TypedReshape& typed = &box == txtRows ? typedRows_ : typedColumns_;
        const int rows = &box == txtRows ? places + 2 : Grid->rows();
        const int cols = &box == txtCols ? places + 2 : Grid->cols();
        typed(*Grid, box.text(), rows, cols, 1, 1);
        nameHeadings();
    } catch (...) {
        showSizes();
        throw;
    }
}

/// Cells stay in their row and column, supplies and demands with their source and sink.
void TRANLP::shapeGrid(int newSources, int newSinks) {
    reshapeMatrix(*Grid, newSources + 2, newSinks + 2, 1, 1);
    nameHeadings();
}

/// Sources and sinks that are new get their default names.
void TRANLP::nameHeadings() {
    for (int i = 1; i <= sources(); ++i)
        if (Grid->cell(i, 0).empty()) Grid->setCell(i, 0, defaultSourceName(i));
    for (int j = 1; j <= sinks(); ++j)
        if (Grid->cell(0, j).empty()) Grid->setCell(0, j, defaultSinkName(j));
    Grid->setColWidth(0, nameWidth);
    Grid->rowCount = sources();
    showLabels();
}

/// Leaves nothing but the headings of the matrix.
void TRANLP::clearGrid() {
    shapeGrid(0, 0);
    Grid->setCell(0, 0, "From\\To");
    Grid->setCell(0, 1, "Supply");
    Grid->setCell(1, 0, "Demand");
    Grid->setCell(1, 1, "");
}

void TRANLP::showSizes() {
    showsSizes_ = true;
    txtRows->setText(defaultText(sources() + 1));
    txtCols->setText(defaultText(sinks() + 1));
    showsSizes_ = false;
}

/// The label boxes show the headings of the current row and column, and are empty on the heading line.
void TRANLP::showLabels() {
    txtRowLabel->cell.reset();
    txtColLabel->cell.reset();
    if (Grid->row() > 0) txtRowLabel->cell = {Grid, Grid->row(), 0};
    if (Grid->col() > 0) txtColLabel->cell = {Grid, 0, Grid->col()};
    txtRowLabel->setText(Grid->row() > 0 ? Grid->cell(Grid->row(), 0) : "");
    txtColLabel->setText(Grid->col() > 0 ? Grid->cell(0, Grid->col()) : "");
}

// Adding a source

/// Where a new source goes, 0 when it may not.
int TRANLP::insertPosition(bool asks) {
    if (asks && Grid->row() < 1) {
        message("Select a grid row before adding a record.", rowTitles.noRow);
        return 0;
    }
    if (sources() + 1 > mostAddedRows) {
        message("Too many rows.  Limit is" + str(mostAddedRows), rowTitles.limit);
        return 0;
    }
    if (!asks) return sources() + 1;
    const bool atEnd = suite().asksYes(
        "Insert at end of list?  If no, insertion is at the designated grid row.", rowTitles.module);
    return atEnd ? sources() + 1 : Grid->row();
}

/// A double click asks where the row goes, the Insert key appends it. The demand row stays the last.
void TRANLP::addSourceRow(bool asks) {
    const int position = insertPosition(asks);
    if (position == 0) return;
    history().clear();
    shapeGrid(sources() + 1, sinks());
    for (int row = sources(); row > position; --row)
        for (int col = 0; col < Grid->cols(); ++col) Grid->setCell(row, col, Grid->cell(row - 1, col));
    if (position < sources()) {
        Grid->clearRow(position);
        Grid->setCell(position, 0, defaultSourceName(position));
        renumberNames(position + 1);
    }
    showSizes();
    if (!asks) Grid->setCurrent(Grid->row(), 1);
    showLabels();
}

/// Sources that have moved down by one and bear no name of their own get that of their new row.
void TRANLP::renumberNames(int from) {
    for (int row = from; row <= sources(); ++row)
        if (Grid->cell(row, 0) == defaultSourceName(row - 1)) Grid->setCell(row, 0, defaultSourceName(row));
}

// Files

void TRANLP::readProblem(ItemReader& reader) {
    const ProblemFile file = read(reader);
    txtProbLabel->setText(file.problem.label);
    clearGrid();
    typedRows_ = typedColumns_ = {};
    shapeGrid(file.problem.sources, file.problem.sinks);
    putInCells(file);
    showSizes();
    showLabels();
}

void TRANLP::putInCells(const ProblemFile& file) {
    const Problem& problem = file.problem;
    for (int i = 1; i <= problem.sources; ++i) {
        Grid->setCell(i, 0, problem.sourceName(i));
        Grid->setCell(i, problem.sinks + 1, defaultText(problem.supply(i)));
        for (int j = 1; j <= problem.sinks; ++j)
            if (file.named(i, j) != 0) Grid->setCell(i, j, defaultText(problem.cost(i, j)));
    }
    for (int j = 1; j <= problem.sinks; ++j) {
        Grid->setCell(0, j, problem.sinkName(j));
        Grid->setCell(problem.sources + 1, j, defaultText(problem.demand(j)));
    }
}

void TRANLP::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
}

/// The corner of supplies and demands stays as it is.
void TRANLP::fillBlankCells() {
    for (int row = 1; row <= sources() + 1; ++row)
        for (int col = 1; col <= sinks() + 1; ++col) {
            const bool corner = row == sources() + 1 && col == sinks() + 1;
            if (!corner && Grid->cell(row, col).empty()) Grid->setCell(row, col, "0");
        }
}

Problem TRANLP::readControls() const {
    Problem problem;
    problem.label = txtProbLabel->text();
    problem.sources = sources();
    problem.sinks = sinks();
    for (int j = 1; j <= problem.sinks; ++j) {
        problem.sinkName(j) = trimmed(Grid->cell(0, j));
        problem.demand(j) = val(Grid->cell(problem.sources + 1, j));
    }
    for (int i = 1; i <= problem.sources; ++i) {
        problem.sourceName(i) = trimmed(Grid->cell(i, 0));
        problem.supply(i) = val(Grid->cell(i, problem.sinks + 1));
        for (int j = 1; j <= problem.sinks; ++j) problem.cost(i, j) = val(Grid->cell(i, j));
    }
    return problem;
}

// Solve, report and print

void TRANLP::solve() {
    const Busy busy(suite());
    solution_.reset();
    Problem problem = readControls();
    Plan plan = cheapestPlan(problem);
    solution_ = {std::move(problem), std::move(plan)};
    showView(View::Result);
    showPlan();
}

void TRANLP::showPlan() {
    const auto& [problem, plan] = *solution_;
    const int lastRow = problem.sources + 1;
    const int lastCol = problem.sinks + 1;
    GridOut->setRows(lastRow + 1);
    GridOut->setCols(lastCol + 1);
    GridOut->setColWidth(0, resultNameWidth);
    for (int row = 0; row <= lastRow; ++row) GridOut->setCell(row, 0, Grid->cell(row, 0));
    for (int col = 0; col <= lastCol; ++col) GridOut->setCell(0, col, Grid->cell(0, col));
    for (int i = 1; i <= problem.sources; ++i) {
        for (int j = 1; j <= problem.sinks; ++j) GridOut->setCell(i, j, defaultText(plan.alloc(i, j)));
        GridOut->setCell(i, lastCol, defaultText(plan.rowTotal(i)));
    }
    for (int j = 1; j <= problem.sinks; ++j) GridOut->setCell(lastRow, j, defaultText(plan.colTotal(j)));
    GridOut->setCell(lastRow, lastCol, "");
    txtTotalCost->setText(defaultText(plan.totalCost));
}

void TRANLP::showReport() {
    if (!solution_) return;
    writeReportFile(reportLines(solution_->problem, solution_->plan));
    showReportFile();
}

void TRANLP::printData() {
    PrintJob job = dataPrint("********* TRANLP INPUT DATA *********");
    printOn(job, dataLines(readControls()));
    print(job);
}

} // namespace vantore::tranlp
