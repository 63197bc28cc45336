#include "mathprog/TRANLP/TRANLP.h"

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/printing.h"

namespace vantore::tranlp {

namespace {

const ModuleWording tranlpWording = {
    .name = "TRANLP",
    .filePrefix = "TRAN",
    .openTitle = "Open transportation method data file",
    .saveTitle = "Save transportation method data",
    .filter = "Transportation method (TRAN*.dat)|TRAN*.dat|",
    .arithmetic = {
        .oneColumn = {"Highlight only one column.", "Information"},
        .menuTitle = "Column Arithmetic",
        .menuDefault = "Enter selection",
        .valueTitles = {"Column Arithmetic", "Column Arithmetic", "Column Arithmetic", "Column Arithmetic"},
        .valueDefault = "Enter a value"}};

constexpr int mostTypedRows = 100; // of the matrix, with the demand row; the same for columns
constexpr int mostAddedRows = 30;  // sources up to which a row may be added in the grid
constexpr int newSize = 5;
constexpr double nameWidth = 1500; // twips of the design
constexpr double resultNameWidth = 800;

} // namespace

TRANLP::TRANLP(Suite& suite) : ModuleFrame(suite, tranlpWording) {
    addFields();
    addGrids();
    addSizeBoxes();
    addDataButtons();
    addResultButtons();
}

void TRANLP::addFields() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1680, .boxWidth = 7620};
    FieldColumn left{.left = 120, .top = 540, .captionWidth = 1680, .boxWidth = 900};
    FieldColumn right{.left = 4800, .top = 540, .captionWidth = 1680, .boxWidth = 900};
    txtProbLabel = &addField(label, "txtProbLabel", "Problem label:");
    txtRows = &addField(left, "txtRows", "No. of rows");
    txtRows->show(defaultText(newSize));
    txtRows->tip = "No. of matrix rows including demand row";
    txtCols = &addField(right, "txtCols", "No. of columns");
    txtCols->show(defaultText(newSize));
    txtCols->tip = "No. of colums including supply column";
    left.boxWidth = 2800;
    right.boxWidth = 2940;
    txtRowLabel = &addField(left, "txtRowLabel", "Row label");
    txtColLabel = &addField(right, "txtColLabel", "Column label");
    txtRowLabel->result = txtColLabel->result = true; // the headings are the grid's
}

void TRANLP::addGrids() {
    Grid = &addGrid("Grid", {120, 1400, 9360, 4930});
    Grid->onKey = [this](int code) { typeKey(code); };
    Grid->onInsertKey = [this] { addSourceRow(false); };
    Grid->onDoubleClick = [this] { addSourceRow(true); };
    Grid->onMove = [this] { showLabels(); };
    Grid->holdsNumbers = [](int col) { return col > 0; };
    clearGrid();
    shapeGrid(newSize - 1, newSize - 1);
    addLabel("Label6", "Results", {120, 150, 3000, 270}, {View::Result});
    GridOut = &add<DataGrid>("GridOut", Rect{120, 450, 9360, 5350});
    GridOut->holdsNumbers = Grid->holdsNumbers;
    auto& label = addLabel("Label7", "Total cost:", {120, 5970, 1500, 270}, {View::Result});
    txtTotalCost = &add<TextBox>("txtTotalCost", Rect{1860, 5940, 2800, 315});
    label.buddy = txtTotalCost;
    for (Control* result : {static_cast<Control*>(GridOut), static_cast<Control*>(txtTotalCost)}) {
        seenIn(*result, {View::Result});
        result->result = true;
    }
    addReport();
}

/// The sizes of the matrix with its demand row and its supply column.
void TRANLP::addSizeBoxes() {
    const auto refuse = [] { throw RuntimeError(ErrorNumber::SubscriptOutOfRange); };
    rowsBox_ = &addSizeBox(
        *txtRows, {Grid},
        {.least = 1,
         .most = mostTypedRows,
         .present = [this] { return sources() + 1; },
         .shape = [this](int rows) { shapeGrid(rows - 1, sinks()); },
         .onExcess = [this] { message("Maximum number of rows (100) has been exceeded", "Warning"); },
         .onShort = refuse});
    columnsBox_ = &addSizeBox(
        *txtCols, {Grid},
        {.least = 1,
         .most = mostTypedRows,
         .present = [this] { return sinks() + 1; },
         .shape = [this](int columns) { shapeGrid(sources(), columns - 1); },
         .onExcess = [this] { message("Maximum number of columns (100) has been exceeded", "Warning"); },
         .onShort = refuse});
}

void TRANLP::addDataButtons() {
    addStart("cmdOpen", {1200, 1400, 7200, 4800});
    ModuleFrame::addDataButtons({.arithmetic = "cmdColArith", .rows = false});
}

void TRANLP::addResultButtons() {
    addOutcomeButtons({View::Result, View::Report}, "cmdPrintReport");
    addButton("cmdReport", "&Report", buttonPlace(1, 1), {View::Result}, [this] { showReport(); });
}

// The shape of the grid

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

void TRANLP::typeKey(int code) {
    if (sources() <= 0) return message("Add a row before entering data.", "Information");
    cellKeyPress(*Grid, code);
}

/// The label boxes show the headings of the current row and column, and are empty on the heading line.
void TRANLP::showLabels() {
    txtRowLabel->cell.reset();
    txtColLabel->cell.reset();
    if (Grid->row() > 0) txtRowLabel->cell = {Grid, Grid->row(), 0};
    if (Grid->col() > 0) txtColLabel->cell = {Grid, 0, Grid->col()};
    txtRowLabel->show(Grid->row() > 0 ? Grid->cell(Grid->row(), 0) : "");
    txtColLabel->show(Grid->col() > 0 ? Grid->cell(0, Grid->col()) : "");
}

// Adding a source

/// Where a new source goes, 0 when it may not.
int TRANLP::insertPosition(bool asks) {
    if (asks && Grid->row() < 1) {
        message("Select a grid row before adding a record.", wording().rows.noRow);
        return 0;
    }
    if (sources() + 1 > mostAddedRows) {
        message("Too many rows.  Limit is" + str(mostAddedRows), wording().rows.limit);
        return 0;
    }
    if (!asks) return sources() + 1;
    const bool atEnd = suite().asksYes(
        "Insert at end of list?  If no, insertion is at the designated grid row.", wording().rows.question);
    return atEnd ? sources() + 1 : Grid->row();
}

/// A double click asks where the row goes, the Insert key appends it. The demand row stays the last.
void TRANLP::addSourceRow(bool asks) {
    const int position = insertPosition(asks);
    if (position == 0) return;
    shapeGrid(sources() + 1, sinks());
    for (int row = sources(); row > position; --row)
        for (int col = 0; col < Grid->cols(); ++col) Grid->setCell(row, col, Grid->cell(row - 1, col));
    if (position < sources()) {
        Grid->clearRow(position);
        Grid->setCell(position, 0, defaultSourceName(position));
        renumberNames(position + 1);
    }
    rowsBox_->settle();
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
    txtProbLabel->show(file.problem.label);
    clearGrid();
    shapeGrid(file.problem.sources, file.problem.sinks);
    putInCells(file);
    rowsBox_->settle();
    columnsBox_->settle();
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
    txtTotalCost->show(defaultText(plan.totalCost));
}

void TRANLP::showReport() {
    if (!solution_) return;
    writeReportFile(reportLines(solution_->problem, solution_->plan));
    showReportFile();
}

void TRANLP::printData() {
    print(dataJob(wording().name, "********* TRANLP INPUT DATA *********", dataLines(readControls())));
}

} // namespace vantore::tranlp
