#include "demand/FORECAST/FORECAST.h"

#include "demand/FORECAST/plot.h"
#include "demand/FORECAST/report.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::forecast {

namespace {

const ModuleNames moduleNames = {.name = "FORECAST",
                                 .filePrefix = "FRC",
                                 .openTitle = "Open forecasting data file",
                                 .saveTitle = "Save forecasting data",
                                 .filter = "Time series forecasting (FRC*.dat)|FRC*.dat|",
                                 .saveFilter = ""};

// Places in twips of the design.
constexpr double fieldsTop = 540;
constexpr double fieldStep = 345;
constexpr Rect seriesPlace{5400, 540, 4080, 5790};
constexpr Rect modelsPlace{120, 4080, 5100, 2250};
constexpr double firstModelTop = 4400;
constexpr double modelStep = 360;
constexpr Rect plotPlace{120, 120, 9360, 6210};
constexpr Rect startLabelPlace{120, 5730, 9360, 600};

constexpr int labelColumn = 1;
constexpr int valueColumn = 2;

} // namespace

FORECAST::FORECAST(Suite& suite) : ModuleFrame(suite, moduleNames) {
    printFailure = "The form can't be printed.";
    addFields();
    addModels();
    addSeries();
    addButtons();
    addOutcomeButtons();
    showView(View::Start);
}

// Controls

TextBox& FORECAST::addField(const std::string& name, const std::string& prompt) {
    // Each field before it has added a label and a box, the problem's label first of all.
    const std::size_t fieldsBefore = controls().size() / 2 - 1;
    const double top = fieldsTop + fieldStep * static_cast<double>(fieldsBefore);
    addLabel("lbl" + name.substr(3), prompt, {120, top + 30, 4080, 270}, {View::Start, View::Data});
    return addTextBox(name, {4260, top, 960, 300});
}

void FORECAST::addFields() {
    addLabel("lblLabel", "Problem label:", {120, 150, 1700, 270}, {View::Start, View::Data});
    txtLabel = &addTextBox("txtLabel", {1860, 120, 7620, 300});
    txtNoPrds = &addField("txtNoPrds", "Number of data periods:");
    txtIni = &addField("txtIni", "Periods used for model initialization:");
    txtErrPrds = &addField("txtErrPrds", "Number of periods used to compute error statistics:");
    txtSearch = &addField("txtSearch", "Search for best smoothing constant (Y/N)?");
    txtSearch->onLeave = [this] { checkSearchAnswer(); };
    txtSearchInc = &addField("txtSearchInc", "Search increment:");
    txtLvlCons = &addField("txtLvlCons", "Level smoothing constant:");
    txtTrendCons = &addField("txtTrendCons", "Trend smoothing constant:");
    txtSeaCons = &addField("txtSeaCons", "Seasonal smoothing constant:");
    txtSeasLen = &addField("txtSeasLen", "Seasonal length (in periods):");
    txtForPrds = &addField("txtForPrds", "Number of periods to be forecast:");
}

void FORECAST::addModels() {
    auto& frame = add<Frame>("fraModel", modelsPlace);
    frame.caption = "Type of forecasting model";
    seenIn(frame, {View::Data});
    const std::array<std::pair<const char*, const char*>, 5> captions = {
        {{"optLevel", "Level only"},
         {"optLvlTrd", "Level - Trend"},
         {"optLvlSea", "Level - Seasonal"},
         {"optLvlTrdSea", "Level - Trend - Seasonal"},
         {"optDECOMP", "Time series decomposition"}}};
    double top = firstModelTop;
    for (std::size_t i = 0; i < captions.size(); ++i) {
        auto& option = add<Option>(captions.at(i).first, Rect{360, top, 4600, 300});
        option.caption = captions.at(i).second;
        option.frame = &frame;
        seenIn(option, {View::Data});
        models_.at(i) = &option;
        top += modelStep;
    }
}

void FORECAST::addSeries() {
    grdSeries = &addMainGrid("grdSeries", seriesPlace, mostPeriods);
    grdSeries->onInsertKey = [this] { changeRows([this] { insertKeyRow(suite(), *grdSeries, rowTitles); }); };
    countBox_ = std::make_unique<RowCountBox>(*txtNoPrds, std::vector{grdSeries}, [this] {
        message("Too many rows.  Limit is" + str(mostPeriods), rowTitles.limit);
    });
    grdSeries->setCols(3);
    const std::array<const char*, 3> captions = {"Prd\r\nno.", "Period label", "Time series\r\ndata, units"};
    const std::array<double, 3> widths = {560, 1800, 1400};
    for (int col = 0; col < 3; ++col) {
        grdSeries->setCell(0, col, captions.at(static_cast<std::size_t>(col)));
        grdSeries->setColWidth(col, widths.at(static_cast<std::size_t>(col)));
    }
    grdSeries->setRowHeight(0, 2 * designRowHeight);
    grfPlot = &add<Chart>("grfPlot", plotPlace);
    seenIn(*grfPlot, {View::Plot});
    addReport();
}

void FORECAST::addButtons() {
    addStart("cmdOpen", seriesPlace);
    // The text under the start picture needs the whole width.
    find("Image1")->design.height = startLabelPlace.top - seriesPlace.top - 120;
    find("lblStart")->design = startLabelPlace;
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    addButton("cmdColArith", "Colu&mn Arithmetic", buttonPlace(0, 4), {View::Data}, [this] {
        columnArithmetic(suite(), *grdSeries, arithmetic, [](int col) { return col == valueColumn; });
    });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    addButton("cmdAdd", "&Add row", buttonPlace(1, 0), {View::Data},
              [this] { changeRows([this] { addRow(); }); });
    addButton("cmdDelete", "&Delete row", buttonPlace(1, 1), {View::Data},
              [this] { changeRows([this] { deleteRow(); }); });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 3), {View::Data}, [this] { excelEdit(); });
}

void FORECAST::addOutcomeButtons() {
    cmdPlot = &addButton("cmdPlot", "P&lot data", buttonPlace(1, 2), {View::Data, View::Report},
                         [this] { plot(); });
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Report, View::Plot},
                             [this] { continueToData(); });
    cmdPrintTB =
        &addButton("cmdPrintTB", "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReportFile(); });
    cmdPrintPlot =
        &addButton("cmdPrintPlot", "&Print", buttonPlace(1, 1), {View::Plot}, [this] { printPlotImage(); });
}

void FORECAST::changeRows(const std::function<void()>& operation) {
    operation();
    countBox_->settle();
}

void FORECAST::checkSearchAnswer() {
    const std::string answer = upperCase(txtSearch->text());
    if (!answer.empty() && answer != "Y" && answer != "N") message("Enter Y or N only");
}

// Files

void FORECAST::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    setDataRows(*grdSeries, problem.dataPeriods);
    for (int t = 1; t <= problem.dataPeriods; ++t) {
        grdSeries->setCell(t, labelColumn, problem.periods(t).label);
        grdSeries->setCell(t, valueColumn, defaultText(problem.periods(t).value));
    }
    txtLabel->setText(problem.label);
    countBox_->settle();
    txtIni->setText(defaultText(problem.initialPeriods));
    txtErrPrds->setText(defaultText(problem.errorPeriods));
    for (std::size_t i = 0; i < models_.size(); ++i)
        models_.at(i)->selected = static_cast<int>(i) + 1 == static_cast<int>(problem.model);
    txtSearch->setText(problem.search);
    txtSearchInc->setText(defaultText(problem.searchIncrement));
    txtLvlCons->setText(defaultText(problem.levelConstant));
    txtTrendCons->setText(defaultText(problem.trendConstant));
    txtSeaCons->setText(defaultText(problem.seasonalConstant));
    txtSeasLen->setText(defaultText(problem.seasonalLength));
    txtForPrds->setText(defaultText(problem.forecastPeriods));
    forecast_.reset();
    cmdPlot->caption = "P&lot data";
}

void FORECAST::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
}

bool FORECAST::mayBeWritten() {
    if (chosenModel() != Model::None) return true;
    message("No forecasting model type selected.");
    return false;
}

Model FORECAST::chosenModel() const {
    for (std::size_t i = 0; i < models_.size(); ++i)
        if (models_.at(i)->selected) return static_cast<Model>(i + 1);
    return Model::None;
}

Problem FORECAST::readControls() const {
    const auto countOf = [](const TextBox* box) { return roundedCount(val(box->text())); };
    const auto constantOf = [](const TextBox* box) { return roundedConstant(val(box->text())); };
    Problem problem;
    problem.label = txtLabel->text();
    problem.dataPeriods = grdSeries->rowCount;
    problem.initialPeriods = countOf(txtIni);
    problem.errorPeriods = countOf(txtErrPrds);
    problem.model = chosenModel();
    problem.search = txtSearch->text();
    problem.searchIncrement = constantOf(txtSearchInc);
    problem.levelConstant = constantOf(txtLvlCons);
    problem.trendConstant = constantOf(txtTrendCons);
    problem.seasonalConstant = constantOf(txtSeaCons);
    problem.seasonalLength = countOf(txtSeasLen);
    problem.forecastPeriods = countOf(txtForPrds);
    for (int t = 1; t <= problem.dataPeriods; ++t) {
        problem.periods(t).label = trimmed(grdSeries->cell(t, labelColumn));
        problem.periods(t).value = val(grdSeries->cell(t, valueColumn));
    }
    return problem;
}

// Solve

bool FORECAST::passes(const Problem& problem) {
    const Verdict verdict = validate(problem);
    for (const std::string& text : verdict.texts) message(text);
    return !verdict.stops;
}

void FORECAST::solve() {
    const Problem problem = readControls();
    if (!passes(problem)) return continueToData();
    showView(View::Report);
    report->clear();
    cmdContinue->visible = cmdPrintTB->visible = cmdPlot->visible = false;
    forecast_.reset();
    cmdPlot->caption = "P&lot data";
    if (seasonIsTooLong(problem)) {
        suite().platform.display.beep();
        message("Initialization period must exceed seasonal length by at least 2 periods.");
        return continueToData();
    }
    const Busy busy(suite());
    Forecast result = forecast(problem);
    writeReportFile(reportOf(problem, result));
    showReportFile({.starredHeadings = true});
    forecast_ = std::move(result);
    cmdPlot->caption = "P&lot";
}

// Print and plot

void FORECAST::printData() {
    PrintLines title;
    title.line("").line("                           FORECASTING DATA").line("");
    PrintJob job{.title = names().name};
    printOn(job, title);
    printOn(job, dataLines(readControls()));
    print(job);
}

ChartData FORECAST::askedChart() {
    if (!forecast_) return dataChart(readControls());
    std::string answer;
    while (answer != "1" && answer != "2" && answer != "3")
        answer = suite().inputBx("Display:\r\n(1) Data only\r\n(2) Data and forecast\r\n(3) Forecast only",
                                 "FORECAST display", "1");
    return answer == "1" ? dataChart(readControls()) : forecastChart(*forecast_, answer == "2");
}

void FORECAST::plot() {
    grfPlot->data = askedChart();
    showView(View::Plot);
}

} // namespace vantore::forecast
