#include "demand/MULREG/MULREG.h"

#include <cmath>

#include "demand/MULREG/data_plot.h"
#include "demand/MULREG/transformation.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/printing.h"

namespace vantore::mulreg {

namespace {

const ModuleWording mulregWording = {
    .name = "MULREG",
    .filePrefix = "REG",
    .openTitle = "Open multiple regression data file",
    .saveTitle = "Save multiple regression data",
    .filter = "Multiple regression (REG*.dat)|REG*.dat|",
    .saveFilter = "Multiple regression analysis (REG*.dat)|REG*.dat|",
    .arithmetic = {.oneColumn = {"Highlight only one column.", "FORECAST"}},
    .printQuestion =
        {.text = "Select YES to print.  For a higher resolution picture, choose NO. Then, paste, edit, "
                 "and print the captured Windows' clipboard image from another program such as WORD or "
                 "POWERPOINT"},
    .printFailure = "The form can't be printed."};

constexpr const char* workingFile = "RGDAT.DAT";

// Twips of the design.
constexpr double fieldTop = 500;
constexpr double fieldStep = 380;
constexpr double boxHeight = 315;
constexpr double captionDrop = 30; // of a caption beside its box
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

MULREG::MULREG(Suite& suite) : ModuleFrame(suite, mulregWording) {
    addFields();
    addVariableBoxes();
    addObservations();
    addButtons();
}

void MULREG::addFields() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1600, .boxWidth = 7640};
    FieldColumn left{.left = 120, .top = fieldTop, .captionWidth = 3220, .boxWidth = 1060, .step = fieldStep};
    FieldColumn right{
        .left = 5200, .top = fieldTop, .captionWidth = 3100, .boxWidth = 1060, .step = fieldStep};
    auto& txtLabel = addField(label, "txtLabel", "Problem label:");
    txtNoObs = &addField(left, "txtNoObs", "Number of observations:");
    auto& txtFenter = addField(left, "txtFenter", "Incremental F-level for entering variable: ");
    auto& txtFleave = addField(left, "txtFleave", "Incremental F-level for leaving variable: ");
    auto& txtStepwise = addField(right, "txtStepwise", "Want a stepwise regression (Y/N)?");
    auto& txtErrorAnalysis = addField(right, "txtErrorAnalysis", "Want an error analysis (Y/N)?");
    txtFleave.tip =
        "Keep it at or below the F-level for entering, or variables may enter and leave by turns.";
    boxes_ = {boxFields, {&txtLabel, &txtStepwise, &txtFenter, &txtFleave, &txtErrorAnalysis}};
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

void MULREG::addObservations() {
    GridRows& rows = addRowGrid("grdObs", {120, gridTop, 9360, gridBottom - gridTop}, mostObservations);
    grdObs = &rows.grid();
    std::vector<ColumnHeading> headings = {{"Obs\r\nno.", 760}};
    for (int column = 1; column <= columnCount; ++column)
        headings.push_back({variableCaption("Data for\r\nvar. #", column), 1640});
    shapeColumns(*grdObs, headings);
    grdObs->holdsNumbers = [](int column) { return column > 0; };
    countBox_ = &addRowCountBox(*txtNoObs, rows,
                                [this] { message("Number of observations exceeds the allowed limit."); });
}

void MULREG::addButtons() {
    addStart("cmdOpen", {1200, gridTop, 7200, 3500});
    addDataButtons({});
    auto& cmdPlotData = addButton("cmdPlotData", "P&lot data", buttonPlace(0, 4), {View::Data, View::Report},
                                  [this] { plotData(); });
    setErrorPlace(cmdPlotData, " occurred in MULREG, cmdPlotData");
    addButton("cmdTransform", "&Transform", buttonPlace(1, 4), {View::Data}, [this] { transform(); });
    addReport();
    grfPlot = &add<Chart>("grfPlot", Rect{120, 120, 9360, 6135});
    seenIn(*grfPlot, {View::Plot});
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    addPrintPlot();
}

// The problem and the controls

void MULREG::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    boxes_.show(problem);
    for (int column = 1; column <= columnCount; ++column) {
        txtLabels(column)->show(problem.variables(column).label);
        txtTypes(column)->show(problem.variables(column).type);
    }
    setDataRows(*grdObs, problem.observationCount);
    countBox_->settle();
    for (int i = 1; i <= problem.observationCount; ++i)
        for (int column = 1; column <= columnCount; ++column)
            grdObs->setCell(i, column, defaultText(problem.data(i, column)));
}

Problem MULREG::readControls() const {
    Problem problem;
    boxes_.take(problem);
    for (int column = 1; column <= columnCount; ++column) {
        const std::string type = trimmed(txtTypes(column)->text());
        problem.variables(column) = {trimmed(txtLabels(column)->text()), type.empty() ? role::unused : type};
    }
    problem.observationCount = grdObs->rowCount();
    for (int i = 1; i <= problem.observationCount; ++i)
        for (int column = 1; column <= columnCount; ++column)
            problem.data(i, column) = val(grdObs->cell(i, column));
    return problem;
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
    std::vector<std::string> texts;
    for (int i = 1; i <= grdObs->rowCount(); ++i)
        texts.push_back(defaultText(transformed(val(grdObs->cell(i, *column)), *transformation, a)));
    int row = 1;
    for (std::string& text : texts) grdObs->setCell(row++, *column, std::move(text));
}

// Solve

void MULREG::solve() {
    const Problem problem = readControls();
    if (const auto found = fault(problem)) return backToData({*found, ""});
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
    print(dataJob(wording().name, "MULTIPLE REGRESSION DATA", page));
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
