#include "demand/FORECAST/FORECAST.h"

#include "demand/FORECAST/plot.h"
#include "demand/FORECAST/report.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/printing.h"

namespace vantore::forecast {

namespace {

const ModuleWording forecastWording = {.name = "FORECAST",
                                       .filePrefix = "FRC",
                                       .openTitle = "Open forecasting data file",
                                       .saveTitle = "Save forecasting data",
                                       .filter = "Time series forecasting (FRC*.dat)|FRC*.dat|",
                                       .printFailure = "The form can't be printed."};

// Places in twips of the design.
constexpr Rect seriesPlace{5400, 540, 4080, 5790};
constexpr Rect modelsPlace{120, 4080, 5100, 2250};
constexpr double firstModelTop = 4400;
constexpr double modelStep = 360;
constexpr Rect plotPlace{120, 120, 9360, 6210};
constexpr Rect startLabelPlace{120, 5730, 9360, 600};

} // namespace

FORECAST::FORECAST(Suite& suite) : ModuleFrame(suite, forecastWording) {
    addFields();
    addModels();
    addSeries();
    addButtons();
}

// Controls

void FORECAST::addFields() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1680, .boxWidth = 7620, .boxHeight = 300};
    FieldColumn column{
        .left = 120, .top = 540, .captionWidth = 4080, .boxWidth = 960, .step = 345, .boxHeight = 300};
    auto& txtLabel = addField(label, "txtLabel", "Problem label:");
    txtNoPrds = &addField(column, "txtNoPrds", "Number of data periods:");
    auto& txtIni = addField(column, "txtIni", "Periods used for model initialization:");
    auto& txtErrPrds = addField(column, "txtErrPrds", "Number of periods used to compute error statistics:");
    auto& txtSearch = addField(column, "txtSearch", "Search for best smoothing constant (Y/N)?");
    txtSearch.onLeave = [this, &txtSearch] { checkSearchAnswer(txtSearch); };
    auto& txtSearchInc = addField(column, "txtSearchInc", "Search increment:");
    auto& txtLvlCons = addField(column, "txtLvlCons", "Level smoothing constant:");
    auto& txtTrendCons = addField(column, "txtTrendCons", "Trend smoothing constant:");
    auto& txtSeaCons = addField(column, "txtSeaCons", "Seasonal smoothing constant:");
    auto& txtSeasLen = addField(column, "txtSeasLen", "Seasonal length (in periods):");
    auto& txtForPrds = addField(column, "txtForPrds", "Number of periods to be forecast:");
    boxes_ = {boxFields,
              {&txtLabel, &txtIni, &txtErrPrds, &txtSearch, &txtSearchInc, &txtLvlCons, &txtTrendCons,
               &txtSeaCons, &txtSeasLen, &txtForPrds}};
}

void FORECAST::addModels() {
    const auto& frame = addContainer("fraModel", "Type of forecasting model", modelsPlace, {View::Data});
    constexpr std::array<std::pair<const char*, const char*>, 5> captions = {
        {{"optLevel", "Level only"},
         {"optLvlTrd", "Level - Trend"},
         {"optLvlSea", "Level - Seasonal"},
         {"optLvlTrdSea", "Level - Trend - Seasonal"},
         {"optDECOMP", "Time series decomposition"}}};
    for (std::size_t i = 0; i < captions.size(); ++i)
        models_.at(i) =
            &addOption(captions.at(i).first, captions.at(i).second,
                       {360, firstModelTop + modelStep * static_cast<double>(i), 4600, 300}, frame);
}

void FORECAST::addSeries() {
    GridRows& rows = addRowGrid("grdSeries", seriesPlace, mostPeriods);
    grdSeries = &rows.grid();
    periods_ = {*grdSeries,
                periodFields,
                {{"Prd\r\nno.", 560}, {"Period label", 1800}, {"Time series\r\ndata, units", 1400}}};
    countBox_ = &addRowCountBox(*txtNoPrds, rows, [&rows] { rows.reportLimit(); });
    grfPlot = &add<Chart>("grfPlot", plotPlace);
    seenIn(*grfPlot, {View::Plot});
    addReport();
}

void FORECAST::addButtons() {
    addStart("cmdOpen", seriesPlace);
    // The text under the start picture needs the whole width.
    find("Image1")->design.height = startLabelPlace.top - seriesPlace.top - 120;
    find("lblStart")->design = startLabelPlace;
    addDataButtons({.arithmetic = "cmdColArith", .arithmeticPlace = buttonPlace(0, 4)});
    cmdPlot = &addButton("cmdPlot", "P&lot data", buttonPlace(1, 2), {View::Data, View::Report},
                         [this] { plot(); });
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    addPrintPlot();
    Seen(*cmdPrintReport).when([this] { return forecast_.has_value(); });
    Seen(*cmdPlot).when([this] { return view() == View::Data || forecast_.has_value(); });
}

void FORECAST::checkSearchAnswer(const TextBox& box) {
    const std::string answer = upperCase(box.text());
    if (!answer.empty() && answer != "Y" && answer != "N") message("Enter Y or N only");
}

// The problem

void FORECAST::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    boxes_.show(problem);
    setDataRows(*grdSeries, problem.dataPeriods);
    for (int t = 1; t <= problem.dataPeriods; ++t) periods_.put(t, problem.periods(t));
    countBox_->settle();
    for (std::size_t i = 0; i < models_.size(); ++i)
        models_.at(i)->selected = static_cast<int>(i) + 1 == static_cast<int>(problem.model);
    forgetForecast();
}

void FORECAST::forgetForecast() {
    forecast_.reset();
    cmdPlot->caption = "P&lot data";
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
    Problem problem;
    boxes_.take(problem);
    roundFigures(problem);
    problem.model = chosenModel();
    problem.dataPeriods = grdSeries->rowCount();
    for (int t = 1; t <= problem.dataPeriods; ++t) periods_.take(t, problem.periods(t));
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
    forgetForecast();
    if (seasonIsTooLong(problem)) {
        suite().platform.display.beep();
        return backToData({"Initialization period must exceed seasonal length by at least 2 periods.", ""});
    }
    showView(View::Report);
    report->clear();
    const Busy busy(suite());
    Forecast result = forecast(problem);
    writeReportFile(reportOf(problem, result));
    showReportFile({.starredHeadings = true});
    forecast_ = std::move(result);
    cmdPlot->caption = "P&lot";
}

// Print and plot

void FORECAST::printData() {
    print(plainJob(wording().name, dataLines(readControls())));
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
