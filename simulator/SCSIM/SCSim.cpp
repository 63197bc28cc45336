#include "simulator/SCSIM/SCSim.h"

#include <memory>
#include <utility>

#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/forms/keys.h"
#include "shell/grid_rows.h"
#include "simulator/SCSIM/Reports.h"
#include "simulator/SCSIM/demand.h"
#include "simulator/SCSIM/listing.h"
#include "simulator/SCSIM/trace.h"

namespace vantore::scsim {

namespace {

const ModuleWording scsimWording = {.name = "SCSIM",
                                    .windowTitle = "Supply Channel Simulation",
                                    .filePrefix = "SIM",
                                    .openTitle = "Open forecasting data file",
                                    .saveTitle = "Save supply chain simulation data",
                                    .filter = "Simulation (SIM*.dat)|SIM*.dat|",
                                    .spreadsheet = {.title = "SCSIM"}};

constexpr const char* traceFile = "RESULTS";

/// "Year 3, day 181"; the year of warming up goes before.
std::string dayText(int day) {
    const int year = (day + daysPerYear - 1) / daysPerYear;
    const std::string dayOfYear = std::to_string((day + 2 * daysPerYear - 1) % daysPerYear + 1);
    return (day < 1 ? "Warming up" : "Simulated year " + std::to_string(year)) + ", day " + dayOfYear;
}

/// The pointer is no hourglass while a question waits.
class Waiting {
  public:
    explicit Waiting(Suite& suite) : display_(suite.platform.display) { display_.setBusyPointer(false); }
    ~Waiting() { display_.setBusyPointer(true); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;

  private:
    Display& display_;
};

} // namespace

SCSim::SCSim(Suite& suite) : ModuleFrame(suite, scsimWording) {
    addPages();
    addStart("OpenF");
    addButtons();
}

/// The demand plot leaves the buttons in sight that it doesn't replace.
void SCSim::addButtons() {
    const auto always = {View::Data, View::Plot};
    cmdSave = &addButton("Save", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    cmdSolve = &addButton("Solve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    setErrorPlace(*cmdSolve, " occurred in Solve, SCSIM.");
    auto& showResults = addButton("Report", "Repor&t", buttonPlace(0, 3), always, [this] { showReports(); });
    Seen(showResults).when([this] { return reportOffered_; });
    showResults.usable = [this] { return resultsStand_ && view() == View::Data; };
    showResults.tip = "Needs the results of a run: press Solve.";
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 4), always, [this] { printData(); });
    cmdExit = &addButton("Exit1", "E&xit", buttonPlace(0, 5), {View::Start, View::Data, View::Plot},
                         [this] { exitModule(); });
    addButton("PlotDemand", "P&lot demand", buttonPlace(1, 4), {View::Data}, [this] { plotDemand(); });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 3), always, [this] { excelEdit(); });

    demandPlot_ = &add<Chart>("GraphDemand", Rect{120, 120, 9360, 6135});
    seenIn(*demandPlot_, {View::Plot});
    cmdContinue = &addButton("Continue1", "&Continue", buttonPlace(1, 0), {View::Plot}, [this] {
        resultsStand_ = true;
        continueToData();
    });
    cmdPrintPlot =
        &addButton("PrintDem", "&Print", buttonPlace(1, 1), {View::Plot}, [this] { printPlotImage(); });
    lblYear = &addLabel("lblYear", "", {120, 6850, 4500, 240}, {View::Data});
}

// What a change of an input leads to

/// Every change is checked, so that a box that is emptied to be typed anew has its limit at once.
void SCSim::checkLimit(TextBox& box) {
    dropResults();
    const Limit* limit = limitOf(box.name);
    if (limit == nullptr || val(box.text()) >= limit->least) return;
    if (!limit->message.empty()) message(std::string(limit->message));
    box.show(defaultText(limit->least));
}

void SCSim::checkYears() {
    TextBox& box = channel_.box("SimLgth");
    dropResults();
    if (val(box.text()) < leastYears) {
        message("The simulation must be at least one year in length.");
        box.show(str(leastYears));
    } else if (val(box.text()) > mostYears) {
        message("The simulation cannot run longer than 20 years.");
        box.show(str(mostYears));
    }
}

void SCSim::typeInGrid(DataGrid& grid, int code) {
    const bool refused = code == keys::comma || code == keys::doubleQuote || code == keys::enter;
    if (!isValueRow(grid.row()) || refused) return;
    cellKeyPress(grid, code);
    dropResults();
}

/// After undo and redo the shown boxes and the random numbers follow what has been put back.
void SCSim::restored() {
    ModuleFrame::restored();
    dropResults();
    const Problem problem = channel_.takeChoices();
    shownDemand_ = problem.demandSource;
    for (const Level level : allLevels) {
        const LevelData& data = problem.levels(level);
        if (data.forecast != ForecastMethod::None) shownForecast_(level) = data.forecast;
        if (data.policy != Policy::None) shownPolicy_(level) = data.policy;
    }
    uniforms_.reseed(val(channel_.box("Seed").text()));
}

// Files

/// Fills the controls item by item: where the file ends too soon the window stays with what it held.
void SCSim::readProblem(ItemReader& reader) {
    cmdOpen->caption = "&Open";
    channel_.fill(reader);
    reportOffered_ = true;
}

// Solve

void SCSim::solve() {
    const Problem problem = channel_.take();
    std::vector<std::string> trace = traceHeading();
    writeLines(suite().ioPath(traceFile), trace);
    const Ending ending = runDays(problem, trace);
    writeLines(suite().ioPath(traceFile), trace);
    if (ending == Ending::Complete) resultsStand_ = true;
}

/// However the run ends, the parameters calculated last are shown; an error leaves the trace of the days that
/// were reached.
Ending SCSim::runDays(const Problem& problem, std::vector<std::string>& trace) {
    const Busy busy(suite());
    int today = firstDay;
    const Watchers watchers = {.trace = [&trace](const TraceRow& row) { trace.push_back(traceLine(row)); },
                               .dayStarts = [&today](int day) { today = day; }};
    try {
        const Ending ending = simulate(problem, uniforms_, answersOn(today), watchers, figures_);
        showProgress("");
        return ending;
    } catch (const RuntimeError&) {
        showProgress("");
        writeLines(suite().ioPath(traceFile), trace);
        throw;
    }
}

/// The user's answers, who sees how far the run has come.
Answers SCSim::answersOn(const int& today) {
    return {[this, &today](const ForecastQuestion& question) -> std::optional<double> {
                showProgress(dayText(today));
                const Waiting waiting(suite());
                const std::string answer = suite().inputBx(textOf(question), titleOf(question), "");
                if (answer.empty()) return std::nullopt;
                return val(answer);
            },
            [this, &today](const OrdersQuestion& question) {
                showProgress(dayText(today));
                const Waiting waiting(suite());
                try {
                    return suite().asksYes(textOf(question), wording().name);
                } catch (const Unanswered&) {
                    return false; // no answer ends the run as No does
                }
            }};
}

void SCSim::showProgress(const std::string& day) {
    lblYear->caption = day;
    const auto show = [this](const char* name, Level level, const std::optional<double>& value) {
        if (value) channel_.box(name, level).show(defaultText(*value));
    };
    for (const Level level : allLevels) {
        const ControlParameters& calculated = figures_.calculated(level);
        show("txtROPQuant", level, calculated.reorderQuantity);
        show("txtROP", level, calculated.reorderPoint);
        show("txtPROrdInt", level, calculated.orderInterval);
        show("txtPRMaxLvl", level, calculated.targetLevel);
    }
}

// Results

void SCSim::showReports() {
    const std::string years = trimmed(channel_.box("SimLgth").text());
    suite().windows.open(std::make_unique<Reports>(suite(), channel_.take(), figures_.days, years));
}

void SCSim::plotDemand() {
    std::optional<PlotPeriod> period;
    Problem problem;
    while (!period) {
        const std::string answer =
            suite().inputBx("Select time period for demand plot:\r\n(1) Daily\r\n(2) Weekly\r\n(3) Monthly",
                            wording().name, "3");
        if (answer.empty()) return;
        dropResults();
        problem = channel_.take();
        generateDemand(problem, uniforms_, figures_.days.customerDemand);
        period = periodOf(answer);
        if (!period) message("Incorrect input. Try again.");
    }
    demandPlot_->data = demandChart(problem, figures_.days.customerDemand, *period);
    showView(View::Plot);
}

void SCSim::printData() {
    const Font font = {"Times Roman", 10, false};
    const PrintLines page = listingOf(channel_.take());
    PrintJob job{.title = wording().name};
    for (const std::string& line : page.lines()) job.print(line, font);
    print(job);
}

} // namespace vantore::scsim
