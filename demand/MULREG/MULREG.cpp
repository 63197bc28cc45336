#include "demand/MULREG/MULREG.h"

#include <cmath>

#include "demand/MULREG/data_plot.h"
#include "demand/MULREG/transformation.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore::mulreg {

namespace {

const ModuleNames moduleNames = {.name = "MULREG",
                                 .filePrefix = "REG",
                                 .openTitle = "Open multiple regression data file",
                                 .saveTitle = "Save multiple regression data",
                                 .filter = "Multiple regression (REG*.dat)|REG*.dat|",
                                 .saveFilter = "Multiple regression analysis (REG*.dat)|REG*.dat|"};

constexpr const char* workingFile = "RGDAT.DAT";

// Twips of the design.
constexpr double fieldTop = 500;
constexpr double fieldStep = 380;
constexpr double boxHeight = 315;
constexpr double captionDrop = 30; // a caption beside a box
constexpr double captionHeight = 270;
constexpr double variableLeft = 1780;
constexpr double variableStep = 1540;
constexpr double variableWidth = 1480;
constexpr double variableTop = 1650;
constexpr double gridTop = 2720;
constexpr double gridBottom = 6330;

std::string variableCaption(const char* before, int column) {
    return before + std::to_string(column);
}

} // namespace

MULREG::MULREG(Suite& suite) : ModuleFrame(suite, moduleNames) {
    printFailure = "The form can't be printed.";
    arithmetic.oneColumn.title = "FORECAST";
    printQuestion.text =
        "Select YES to print.  For a higher resolution picture, choose NO. Then, paste, edit, and print the "
        "captured Windows' clipboard image from another program such as WORD or POWERPOINT";
    addFields();
    addVariableBoxes();
    addGrid();
    addButtons();
    addOutcome();
    showView(View::Start);
}

void MULREG::addFields() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblLabel", "Problem label:", {120, 150, 1600, captionHeight}, fields);
    txtLabel = &addTextBox("txtLabel", {variableLeft, 120, 7640, boxHeight});
    const auto field = [&](const char* name, const char* text, int row, bool right) {
        const double top = fieldTop + row * fieldStep;
        addLabel(std::string("lbl") + name, text,
                 {right ? 5200.0 : 120.0, top + captionDrop, 3000, captionHeight}, fields);
        return &addTextBox(std::string("txt") + name, {right ? 8360.0 : 3400.0, top, 1060, boxHeight});
    };
    txtNoObs = field("NoObs", "Number of observations:", 0, false);
    txtFenter = field("Fenter", "Incremental F-level for entering variable: ", 1, false);
    txtFleave = field("Fleave", "Incremental F-level for leaving variable: ", 2, false);
    txtStepwise = field("Stepwise", "Want a stepwise regression (Y/N)?", 0, true);
    txtErrorAnalysis = field("ErrorAnalysis", "Want an error analysis (Y/N)?", 1, true);
    txtFleave->tip =
        "Keep it at or below the F-level for entering, or variables may enter and leave by turns.";
}

void MULREG::addVariableBoxes() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblVariables", "Variable label:", {120, variableTop + 270 + captionDrop, 1600, captionHeight},
             fields);
    addLabel("lblTypes", "Type (D/I):", {120, variableTop + 620 + captionDrop, 1600, captionHeight}, fields);
    for (int column = 1; column <= columnCount; ++column) {
        const double left = variableLeft + (column - 1) * variableStep;
        addLabel(variableCaption("lblVariable", column), variableCaption("Var. #", column),
                 {left, variableTop, variableWidth, 250}, fields);
        txtLabels(column) = &addTextBox(variableCaption("txtLabel", column),
                                        {left, variableTop + 270, variableWidth, boxHeight});
        txtTypes(column) = &addTextBox(variableCaption("txtType", column),
                                       {left, variableTop + 620, variableWidth, boxHeight});
        txtTypes(column)->tip = "D for the dependent variable, I for an independent one, empty if not used.";
    }
}

void MULREG::addGrid() {
    grdObs = &addMainGrid("grdObs", {120, gridTop, 9360, gridBottom - gridTop}, mostObservations);
    grdObs->setCols(columnCount + 1);
    grdObs->setCell(0, 0, "Obs\r\nno.");
    grdObs->setColWidth(0, 760);
    for (int column = 1; column <= columnCount; ++column) {
        grdObs->setCell(0, column, variableCaption("Data for\r\nvar. #", column));
        grdObs->setColWidth(column, 1640);
    }
    grdObs->setRowHeight(0, 2 * designRowHeight);
    grdObs->onInsertKey = [this] {
        insertKeyRow(suite(), *grdObs, rowTitles);
        countBox_->settle();
    };
    countBox_ = std::make_unique<RowCountBox>(*txtNoObs, std::vector{grdObs}, [this] {
        message("Number of observations exceeds the allowed limit.");
    });
}

void MULREG::addButtons() {
    addStart("cmdOpen", {1200, gridTop, 7200, 3500});
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    auto& cmdPlotData = addButton("cmdPlotData", "P&lot data", buttonPlace(0, 4), {View::Data, View::Report},
                                  [this] { plotData(); });
    setErrorPlace(cmdPlotData, " occurred in MULREG, cmdPlotData");
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    addButton("cmdAdd", "&Add row", buttonPlace(1, 0), {View::Data}, [this] {
        addRow();
        countBox_->settle();
    });
    addButton("cmdDelete", "&Delete row", buttonPlace(1, 1), {View::Data}, [this] {
        deleteRow();
        countBox_->settle();
    });
    addButton("cmdArith", "Colu&mn Arithmetic", buttonPlace(1, 2), {View::Data}, [this] {
        columnArithmetic(suite(), *grdObs, arithmetic, [](int column) { return column > 0; });
    });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 3), {View::Data}, [this] { excelEdit(); });
    addButton("cmdTransform", "&Transform", buttonPlace(1, 4), {View::Data}, [this] { transform(); });
}

void MULREG::addOutcome() {
    addReport();
    grfPlot = &add<Chart>("grfPlot", Rect{120, 120, 9360, 6135});
    seenIn(*grfPlot, {View::Plot});
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Report, View::Plot},
                             [this] { continueToData(); });
    addButton("cmdPrintTB", "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReportFile(); });
    cmdPrintPlot =
        &addButton("cmdPrintPlot", "&Print", buttonPlace(1, 1), {View::Plot}, [this] { printPlotImage(); });
}

// The problem and the controls

void MULREG::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    txtLabel->setText(problem.label);
    for (int column = 1; column <= columnCount; ++column) {
        txtLabels(column)->setText(problem.variables(column).label);
        txtTypes(column)->setText(problem.variables(column).type);
    }
    txtStepwise->setText(problem.stepwise);
    txtFenter->setText(defaultText(problem.enteringLevel));
    txtFleave->setText(defaultText(problem.leavingLevel));
    txtErrorAnalysis->setText(problem.errorAnalysis);
    setDataRows(*grdObs, problem.observationCount);
    countBox_->settle();
    for (int i = 1; i <= problem.observationCount; ++i)
        for (int column = 1; column <= columnCount; ++column)
            grdObs->setCell(i, column, defaultText(problem.data(i, column)));
}

Problem MULREG::readControls() const {
    Problem problem;
    problem.label = txtLabel->text();
    for (int column = 1; column <= columnCount; ++column) {
        const std::string type = trimmed(txtTypes(column)->text());
        problem.variables(column) = {trimmed(txtLabels(column)->text()), type.empty() ? role::unused : type};
    }
    problem.stepwise = txtStepwise->text();
    problem.enteringLevel = val(txtFenter->text());
    problem.leavingLevel = val(txtFleave->text());
    problem.errorAnalysis = txtErrorAnalysis->text();
    problem.observationCount = grdObs->rowCount;
    for (int i = 1; i <= problem.observationCount; ++i)
        for (int column = 1; column <= columnCount; ++column)
            problem.data(i, column) = val(grdObs->cell(i, column));
    return problem;
}

void MULREG::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
}

void MULREG::fillBlankCells() {
    for (int i = 1; i < grdObs->rows() && i <= grdObs->rowCount; ++i)
        for (int column = 1; column <= columnCount; ++column)
            if (grdObs->cell(i, column).empty()) grdObs->setCell(i, column, "0");
}

// Transformation

std::optional<int> MULREG::columnToTransform() {
    const CellBlock& block = grdObs->selection();
    const bool selected = block.startRow > 0 && block.startCol > 0 && block.startCol == block.endCol;
    if (!selected && !suite().asksYes("Clicked on a variable column?", "Question?")) return std::nullopt;
    return grdObs->col() > 0 ? std::optional(grdObs->col()) : std::nullopt;
}

void MULREG::transform() {
    const std::optional<int> column = columnToTransform();
    if (!column) return;
    const auto transformation = transformationFor(suite().inputBx(
        "Transformation options:\r\n(1) A x Variable\r\n(2) Variable to POWER A\r\n"
        "(3) NATURAL LOG of Variable\r\n(4) A + Variable\r\n(5) Variable - A\r\n(6) Variable/A",
        "Variable transformation", ""));
    if (!transformation) return;
    double a = 0;
    if (const auto question = valueQuestion(*transformation)) {
        const std::string answer = suite().inputBx(*question, "Transformation variable", "");
        if (answer.empty()) return;
        a = numberFrom(answer);
    }
    // All values are computed before the first cell changes: a value that can't be leaves the column whole.
    std::vector<Edit> edits;
    for (int i = 1; i <= grdObs->rowCount; ++i) {
        const std::string& before = grdObs->cell(i, *column);
        edits.push_back({.grid = grdObs,
                         .row = i,
                         .col = *column,
                         .before = before,
                         .after = defaultText(transformed(val(before), *transformation, a))});
    }
    for (const Edit& edit : edits) grdObs->setCell(edit.row, edit.col, edit.after);
    history().recordStep(std::move(edits));
}

// Solve

void MULREG::solve() {
    const Problem problem = readControls();
    if (const auto found = fault(problem)) {
        message(*found);
        return continueToData();
    }
    const Busy busy(suite());
    const Observations observations = throughWorkingFile(problem);
    std::optional<Regression> regression;
    if (const auto moments = momentsOf(observations)) {
        const Criteria criteria{problem.enteringLevel, problem.leavingLevel, problem.stepwise == "Y"};
        regression = {*moments, regress(*moments, observations.count, observations.variableCount, criteria)};
    }
    writeReportFile(reportOn(problem, observations, regression));
    showReportFile();
}

Observations MULREG::throughWorkingFile(const Problem& problem) {
    const auto path = suite().ioPath(workingFile);
    writeLines(path, lines(observationsText(problem)));
    ItemReader reader(readTextFile(path));
    return readObservations(reader, problem.observationCount, static_cast<int>(usedColumns(problem).size()));
}

void MULREG::printData() {
    const Problem problem = readControls();
    PrintJob job = dataPrint("MULTIPLE REGRESSION DATA");
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line(joined("Number of observations: ", problem.observationCount));
    page.line("Want a stepwise regression (Y/N)? " + problem.stepwise);
    page.line(joined("Incremental F-level for entering variable: ", problem.enteringLevel));
    page.line(joined("Incremental F-level for leaving variable: ", problem.leavingLevel));
    page.line("Want an error analysis (Y/N)? " + problem.errorAnalysis);
    page.line("").line("Var.").line(" no. Type Label");
    for (int column = 1; column <= columnCount; ++column) {
        const Variable& variable = problem.variables(column);
        page.right(5, std::to_string(column)).tab(6).text(variable.type);
        page.tab(11).text(variableName(problem, column)).endLine();
    }
    page.line("");
    page.line("Obs      Data for     Data for     Data for     Data for     Data for");
    page.line(" no.       var. 1       var. 2       var. 3       var. 4       var. 5");
    for (int i = 1; i <= problem.observationCount; ++i) {
        page.right(5, std::to_string(i));
        for (int column = 1; column <= columnCount; ++column)
            page.right(5 + 13 * column, format(problem.data(i, column), "###,##0.0####"));
        page.endLine();
    }
    printOn(job, page);
    print(job);
}

// Plot

std::optional<int> MULREG::askColumn(const std::string& prompt) {
    while (true) {
        const std::string answer = suite().inputBx(prompt, "Enter number", "");
        if (answer.empty()) return std::nullopt;
        const double column = std::nearbyint(val(answer));
        if (column >= 1 && column <= columnCount) return static_cast<int>(column);
        message("Try again.");
    }
}

void MULREG::plotData() {
    const auto y = askColumn("Y variable\r\nVariable number (column) to plot on the vertical (Y) axis");
    if (!y) return;
    const auto x = askColumn("X variable\r\nVariable number (column) to plot on the horizontal (X) axis");
    if (!x) return;
    if (*x == *y) return message("Both variables are the same.  Plot is not meaningful.");
    grfPlot->data = dataPlot(readControls(), *y, *x);
    showView(View::Plot);
}

} // namespace vantore::mulreg
