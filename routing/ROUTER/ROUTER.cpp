#include "routing/ROUTER/ROUTER.h"

#include <filesystem>

#include "routing/ROUTER/check.h"
#include "routing/ROUTER/printed_data.h"
#include "routing/ROUTER/report.h"
#include "routing/destring.h"
#include "routing/plot_steps.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/printing.h"

namespace vantore::router {

namespace {

const ModuleWording routerWording = {
    .name = "ROUTER",
    .windowTitle = "Vehicle Routing and Scheduling",
    .filePrefix = "RTR",
    .openTitle = "Open vehicle routing & scheduling data file",
    .saveTitle = "Save vehicle routing & scheduling data",
    .filter = "Vehicle routing & scheduling (RTR*.dat)|RTR*.dat|",
    .rows = {.noRow = "",
             .limit = "",
             .noDelete = "",
             .empty = "",
             .questionText = "Insert at end of list?  If NO, insertion is at the designated grid row.",
             .noRowText = "Select a grid row before adding a record",
             .noDeleteText = "Select a row to delete."},
    .arithmetic = {.oneColumn = {"Highlight only one column", ""},
                   .notApplicable = {"Column arithmetic does not apply to this column", ""}},
    .printQuestion = {.text = "Select YES to print.  Alternately, choose NO to copy image to the clipboard"},
    .spreadsheet = {.templateName = "RouterEdit.XLS"}};

constexpr const char* solverProgram = "OPTMZR.EXE";

// Twips of the design.
constexpr Rect startPlace{1200, 1000, 7200, 5200};
constexpr Rect surfacePlace{0, 0, 9600, 6780};
constexpr Rect warningPlace{120, 6480, 9255, 280};

/// The first stops of those that a user has typed.
std::vector<int> firstStops(const std::string& typed, int count) {
    checkIndex(count, 0, mostStopsPerRoute);
    const CountedTable<double> numbers = routing::destring2(typed);
    std::vector<int> stops;
    for (int i = 1; i <= count; ++i) stops.push_back(toInt32(numbers(i)));
    return stops;
}

void beep(Suite& suite, int times) {
    for (int i = 0; i < times; ++i) suite.platform.display.beep();
}

} // namespace

ROUTER::ROUTER(Suite& suite) : ModuleFrame(suite, routerWording) {
    addPages();
    addButtons();
    addReport();
    addPlot();
}

// Controls

/// The main buttons make way for the pages of the data editor and their own.
void ROUTER::seenWhileNotEditing(const std::string& name) {
    Seen(*find(name)).when([this] { return !editing_; });
}

void ROUTER::addButtons() {
    addStart("cmdOpen", startPlace, "Label34");
    addDataButtons({.arithmetic = "", .rows = false, .excelPlace = buttonPlace(1, 2)});
    find("cmdExcel")->tip = "Edit data in an Excel spreadsheet";
    addButton("cmdData", "&Data", buttonPlace(1, 0), {View::Data}, [this] { showEditor(); }).tip =
        "Data editor";
    cmdReport = &addButton("cmdReport", "Re&port", buttonPlace(1, 1), {View::Data}, [this] { showReport(); });
    cmdReport->usable = [this] { return solveStarted_; };
    cmdReport->tip = "Needs the routes of a solution: press Solve.";
    cmdPlot = &addButton("cmdPlot", "P&lot", buttonPlace(0, 4), {View::Data}, [this] { plot(); });
    setErrorPlace(*cmdReport, " occurred in ROUTER,cmdReport");
    setErrorPlace(*cmdPlot, " occurred in cmdPlot of ROUTER");
    addOutcomeButtons({View::Report}, "cmdPrintRtb");
    cmdContinue->usable = [this] { return reportShown_; };
    seenIn(*find("Image1"), {View::Start, View::Data});
    for (const char* name : {"cmdOpen", "cmdSave", "cmdSolve", "cmdPrintData", "cmdPlot", "cmdExit",
                             "cmdData", "cmdReport", "cmdExcel", "Image1"})
        seenWhileNotEditing(name);
}

void ROUTER::addPlot() {
    picOut = &add<PictureSurface>("picOut", surfacePlace, scale());
    seenIn(*picOut, {View::Plot});
    routing::followSteps(*picOut, [this](char which, int times) { step(which, times); });
    const auto inPlot = {View::Plot};
    addButton("cmdContinuePlot", "&Continue", buttonPlace(1, 0), inPlot, [this] { continueToData(); });
    addPrintPlot();
    addButton("cmdZoom", "Zoo&m", buttonPlace(1, 2), inPlot, [this] {
        if (const auto which = routing::askStep(suite())) step(*which, 1);
    }).tip = "Adjust picture size";
    addButton("cmdStopId", "Stop &id.", buttonPlace(1, 3), inPlot, [this] {
        layers_.numbers = !layers_.numbers;
        redraw();
    }).tip = "Show or hide the numbers of the stops";
    addButton("cmdZonesPlot", "&Zones", buttonPlace(1, 4), inPlot, [this] {
        layers_.zones = !layers_.zones;
        redraw();
    }).tip = "Show or hide the speed zones";
    addButton("cmdClrRoute", "Clear ro&utes", buttonPlace(1, 5), inPlot, [this] { clearRoutes(); }).tip =
        "Delete the routes";
    Label& warning = addLabel("lblBarrierWarning", pointInBarrierWarning, warningPlace, {View::Report});
    warning.bold = true;
    Seen(warning).when([this] { return barrierWarnings_ > 0; });
}

/// The errors of a report are told with their numbers.
std::string ROUTER::errorWords(const RuntimeError& error, const Control& control) const {
    if (&control != cmdReport) return ModuleFrame::errorWords(error, control);
    return std::to_string(static_cast<int>(error.number())) + " " + error.what();
}

// The problem

void ROUTER::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    general_.show(problem);
    for (int k = 1; k <= breakCount; ++k) breaks_(k).show(problem.breaks(k));
    stops_.put(problem.stops);
    vehicles_.put(problem.vehicles);
    distances_.put(problem.distances);
    zones_.put(problem.zones);
    zoneSpeeds_.put(problem.zoneSpeeds);
    speeds_.put(problem.speeds);
    barriers_.put(problem.barriers);
    rtbValid->clear();
    reportShown_ = false;
}

Problem ROUTER::readControls() const {
    Problem problem;
    general_.take(problem);
    for (int k = 1; k <= breakCount; ++k) breaks_(k).take(problem.breaks(k));
    problem.stops = stops_.take();
    problem.vehicles = vehicles_.take();
    problem.distances = distances_.take();
    problem.zones = zones_.take();
    problem.zoneSpeeds = zoneSpeeds_.take();
    problem.speeds = speeds_.take();
    problem.barriers = barriers_.take();
    return problem;
}

void ROUTER::checkData() {
    rtbValid->clear();
    const Findings findings = check(readControls(), depotRowZone_);
    beep(suite(), findings.violations);
    for (const std::string& line : findings.lines)
        rtbValid->add({.text = line, .font = {"MS Sans Serif", 8 * scale().x, false}});
}

void ROUTER::printData() {
    print(dataJob(wording().name,
                  std::vector<std::string>{"ROUTER", "Vehicle routing and scheduling data base"},
                  dataPage(readControls())));
}

// Solve

void ROUTER::writeSolverInput() {
    fillBlankCells();
    ItemWriter writer;
    writeProblem(writer);
    writeLines(suite().ioPath(solverInputFile), lines(writer.text()));
}

void ROUTER::solve() {
    solveStarted_ = true;
    const SolverJob job{solverProgram, [this] { writeSolverInput(); }, {planFile}};
    if (!solver.writeInput(job)) return;
    std::string answer;
    while (answer != "1" && answer != "2") {
        answer = suite().inputBx("Want to:\r\n(1) Compute routes.\r\n(2) Specify routes.", "Solution options",
                                 "1");
        if (answer.empty()) return;
    }
    const bool hasRoutes = answer == "1" ? solver.run(job) : specifyRoutes();
    if (hasRoutes) run(*cmdPlot, [this] { plot(); }); // the plot tells of its errors as its own
}

std::optional<std::string> ROUTER::ask(const std::string& question, const std::string& title,
                                       const std::string& answer) {
    std::string text = suite().inputBx(question, title, answer);
    if (text.empty()) return std::nullopt;
    return text;
}

/// False where a question has no answer. Each route is written as soon as it is known, so that those before
/// that question are there.
bool ROUTER::specifyRoutes() {
    const Problem problem = readControls();
    ItemWriter plan;
    const auto save = [&] { writeLines(suite().ioPath(planFile), lines(plan.text())); };
    plan.plain(specifiedRemark).endLine();
    save();
    const auto count = ask("How many routes will there be?", "Specify routes", "Enter number");
    if (!count) return false;
    const int routes = toInt32(val(*count));
    for (int r = 1; r <= routes; ++r) {
        const std::optional<PlannedRoute> route = askRoute(r, problem);
        if (!route) return false;
        writeRoute(r, *route, plan);
        save();
    }
    return true;
}

std::optional<PlannedRoute> ROUTER::askRoute(int number, const Problem& problem) {
    const std::string route = joined("For route ", number);
    const auto vehicle = ask(route + ", the vehicle type is?", "Vehicle type", "Enter type");
    if (!vehicle) return std::nullopt;
    const auto start =
        ask(route + ", the route starting time in minutes is?", "Starting time", "Enter time in minutes");
    if (!start) return std::nullopt;
    const auto count =
        ask(joined("Number of stops on route ", number) + " is?", "Number of stops", "Enter number of stops");
    if (!count) return std::nullopt;
    const auto stops =
        ask(joined("The stops in sequence for route ", number) + " are?", "Stops", "Enter stops, e.g. 2,3,5");
    if (!stops) return std::nullopt;
    const std::vector<int> sequence = firstStops(*stops, toInt32(val(*count)));
    return plannedRoute(problem, toInt32(val(*vehicle)), val(*start), sequence);
}

// Report

Plan ROUTER::readRoutes() const {
    ItemReader reader(readTextFile(suite().ioPath(planFile)));
    return readPlan(reader);
}

void ROUTER::showReport() {
    Plan plan;
    try {
        plan = readRoutes();
    } catch (const RuntimeError& error) {
        if (error.number() != ErrorNumber::FileNotFound) throw;
        return message("Routes no longer available.  Re-solve the problem.");
    }
    const auto label = ask("ENTER LABEL FOR THIS REPORT?", "Report Label", "Untitled");
    if (!label) return continueToData();
    const Problem problem = readControls();
    depotRowZone_ = problem.depotZone;
    barrierWarnings_ = 0;
    if (plan.hasTooManyRoutes()) {
        writeReportFile(tooManyRoutesPage());
    } else {
        const Outcome outcome(problem, plan);
        barrierWarnings_ = outcome.barrierWarnings();
        beep(suite(), barrierWarnings_);
        writeReportFile(reportPage(outcome, {*label, localTime()}));
        beep(suite(), outcome.missedWindows());
    }
    reportShown_ = true;
    showReportFile();
}

// Plot

/// A fresh plot is as large as usual, and where it was moved to. Without a file of routes it shows the points
/// alone.
void ROUTER::plot() {
    Plan plan;
    try {
        plan = readRoutes();
    } catch (const RuntimeError& error) {
        if (error.number() != ErrorNumber::FileNotFound) throw;
    }
    if (plan.hasTooManyRoutes()) return message("Too many routes to plot.  Revise problem.");
    const Problem problem = readControls();
    depotRowZone_ = problem.depotZone;
    map_.emplace(problem, plan);
    vantage_.zoom = routing::usualZoom;
    const int warnings = barrierWarnings(problem, plan);
    layers_ = {.warning = warnings > 0};
    redraw();
    showView(View::Plot);
    beep(suite(), warnings);
}

void ROUTER::redraw() {
    map_->draw(*picOut, scale(), vantage_, layers_);
}

void ROUTER::step(char step, int times) {
    for (int i = 0; i < times; ++i) vantage_ = routing::stepped(vantage_, step);
    redraw();
}

void ROUTER::clearRoutes() {
    std::error_code error;
    std::filesystem::remove(suite().ioPath(planFile), error);
    if (error) throw RuntimeError(ErrorNumber::PathFileAccess);
    map_->clearRoutes();
    layers_.warning = false;
    redraw();
}

} // namespace vantore::router
