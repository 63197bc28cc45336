#include "location/COG/COG.h"

#include "location/point_columns.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/printing.h"

namespace vantore::cog {

namespace {

const ModuleWording cogWording = {
    .name = "COG",
    .filePrefix = "COG",
    .openTitle = "Open center-of-gravity data file",
    .saveTitle = "Save center-of-gravity data",
    .filter = "Center of gravity (COG*.dat)|COG*.dat|",
    .rows = {.noRow = "COG", .limit = "COG"},
    .arithmetic = {
        .oneColumn = {"Highlight only one column", "Comment"},
        .notApplicable = {"Column arithmetic does not apply to this column.", "Column arithmetic"},
        .menuTitle = "Column Arithmetic",
        .menuDefault = "Enter selection",
        .valueTitles = {"Column Arithmetic", "Column Arithmetic", "Column Arithmetic", "Column Arithmetic"},
        .valueDefault = "Enter selection"}};

constexpr double surfaceWidth = 9520; // twips of the design
constexpr double reportHeight = 6372;
constexpr double plotHeight = 6422;
constexpr double labelTop = 32; // of the plot, units of the design

} // namespace

COG::COG(Suite& suite) : ModuleFrame(suite, cogWording) {
    addControls();
    addStart();
    addDataButtons({});
    setErrorPlace(*cmdSolve, " occurred in COG Solver.");
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    auto& cmdPlot = addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Report}, [this] { plot(); });
    for (Button* button : {cmdPrintReport, &cmdPlot}) Seen(*button).when([this] { return hasOutcome_; });
    addPrintPlot();
}

void COG::addControls() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1680, .boxWidth = 7500};
    FieldColumn power{.left = 120, .top = 540, .captionWidth = 1680, .boxWidth = 1100};
    FieldColumn map{.left = 3400, .top = 540, .captionWidth = 2180, .boxWidth = 1100};
    auto& txtLabel = addField(label, "txtLabel", "Problem label:");
    auto& txtPowerFactor = addField(power, "txtPowerFactor", "Power factor (T):");
    auto& txtMapFactor = addField(map, "txtMapFactor", "Map scaling factor (K):");
    txtPowerFactor.show("0.5");
    txtPowerFactor.tip = "Use .5 for Euclidian distances and 1 for rectalinear distances.";
    txtMapFactor.tip = "Factor to convert coordinates to miles or kilometers.";
    scalars_ = {scalarFields, {&txtLabel, &txtPowerFactor, &txtMapFactor}};
    COGGrid = &addRowGrid("COGGrid", {120, 1000, 9360, 5330}, mostPoints).grid();
    points_ = {*COGGrid, pointFields, pointHeadings()};
    picOut = &add<PictureSurface>("picOut", Rect{0, 0, surfaceWidth, reportHeight}, scale());
    seenIn(*picOut, {View::Report, View::Plot});
}

// The problem

void COG::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    scalars_.show(problem);
    setDataRows(*COGGrid, problem.rowCount);
    for (int i = 1; i <= problem.rowCount; ++i) points_.put(i, problem.points(i));
}

Problem COG::readControls() const {
    Problem problem;
    scalars_.take(problem);
    problem.rowCount = COGGrid->rowCount();
    for (int i = 1; i <= problem.rowCount; ++i) points_.take(i, problem.points(i));
    return problem;
}

// Solve

void COG::prepareSurface(View view, double height) {
    showView(view);
    picOut->clear();
    picOut->design = {0, 0, surfaceWidth, height};
    picOut->font = {"MS Sans Serif", 8 * scale().x, false};
    picOut->ink = colour::black;
}

/// The first fault. A power factor other than .5 is asked about and no fault.
std::optional<Message> COG::faultIn(const Problem& problem) {
    if (auto fault = scalarFault(problem)) return fault;
    if (problem.powerFactor != .5)
        message(joined("The value for T is typically 0.5.  Is your value of ", problem.powerFactor) +
                    " correct?",
                "Value of power factor");
    return pointFault(problem);
}

void COG::solve() {
    hasOutcome_ = false;
    prepareSurface(View::Report, reportHeight);
    const Problem problem = readControls();
    if (const auto fault = faultIn(problem)) return backToData(*fault);
    printHeading(*picOut, scale(), problem.label);
    const std::string way = suite().inputBx("Facility coordinates:\r\n(1) Compute them\r\n(2) Specify them",
                                            "Solution options", "1");
    if (way.empty()) return;
    if (way == "2") return specifyLocation(problem);
    if (way == "1") computeLocation(problem);
    hasOutcome_ = true;
}

void COG::showCycle(const Cycle& cycle, const Cycle& previous) {
    facility_ = {cycle.location, cycle.cost};
    printCycle(*picOut, scale(), cycle, previous);
    hasOutcome_ = true;
}

void COG::computeLocation(const Problem& problem) {
    printTableHeading(*picOut, scale());
    const std::optional<Location> start = centreOfGravity(problem);
    if (!start) message("All volume or rate data are 0", "Data error");
    const Location centre = start.value_or(Location{});
    Cycle cycle{0, centre, totalCost(problem, centre)};
    showCycle(cycle, cycle);
    while (suite().asksYes("Another computational cycle?", "Question")) {
        hasOutcome_ = false;
        const Cycle previous = cycle;
        ++cycle.number;
        cycle.location = nextLocation(problem, previous.location);
        cycle.cost = totalCost(problem, cycle.location);
        showCycle(cycle, previous);
    }
}

void COG::specifyLocation(const Problem& problem) {
    const std::string x = suite().inputBx("Specified X coordinate is?", "", "Enter value");
    // The range of the menu's answers stands for the coordinate too: only X from 1 up to 3 goes on.
    if (x.empty() || wholePart(numberFrom(x)) < 1 || wholePart(numberFrom(x)) > 2) return;
    const std::string y = suite().inputBx("Specified Y coordinate is?", "", "Enter value");
    if (y.empty()) return;
    const Location location{numberFrom(x), numberFrom(y)};
    facility_ = {location, totalCost(problem, location)};
    printSpecified(*picOut, scale(), x, y, facility_.totalCost);
    hasOutcome_ = true;
}

// Report and plot

void COG::printData() {
    const Problem problem = readControls();
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line(joined("Power Factor: ", problem.powerFactor));
    page.line(joined("Map scaling factor: ", problem.mapFactor));
    page.line("");
    printPoints(page, problem.pointSpan());
    print(dataJob(wording().name, "EXACT CENTER-OF-GRAVITY METHOD RESULTS", page));
}

void COG::plot() {
    prepareSurface(View::Plot, plotHeight);
    const Problem problem = readControls();
    std::vector<PlotPoint> points;
    for (const Point& point : problem.pointSpan()) points.push_back({point.x, point.y});
    const PointPlot plotted =
        drawPlotFrame(*picOut, scale(), {problem.label, "MS Sans Serif", labelTop}, points);
    if (suite().asksYes("Want to show point numbers?", "COG"))
        printNumbers(*picOut, scale(), plotted.numberPlaces());
    for (const PlotPoint& point : plotted.points) drawPoint(*picOut, scale(), plotted.placeOf(point));
    plotFacility(*picOut, scale(), plotted, facility_);
}

} // namespace vantore::cog
