#include "location/MCOG/MCOG.h"

#include <cmath>

#include "location/MCOG/plot.h"
#include "location/MCOG/report.h"
#include "location/point_columns.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/printing.h"

namespace vantore::mcog {

namespace {

const ModuleWording mcogWording = {
    .name = "MULTICOG",
    .filePrefix = "MCOG",
    .openTitle = "Open multiple center-of-gravity data file",
    .saveTitle = "Save multiple center-of-gravity data",
    .filter = "Multiple center of gravity (MCOG*.dat)|MCOG*.dat|",
    .rows = {.noRow = "MULTICOG", .limit = "MULTICOG", .noDelete = "MULTICOG", .empty = "MULTICOG"},
    .arithmetic = {.oneColumn = {"Highlight only one column.", "Information"},
                   .menuTitle = "Column Arithmetic",
                   .menuDefault = "Enter selection",
                   .valueTitles = {"Column Arithmetic", "Column Arithmetic", "Column Arithmetic",
                                   "Column Arithmetic"}},
    .printQuestion = {.title = "Question"}};

constexpr Rect gridPlace{120, 1000, 9360, 5330}; // twips of the design
constexpr Rect surfacePlace{0, 0, 9520, 6422};

} // namespace

MCOG::MCOG(Suite& suite) : ModuleFrame(suite, mcogWording) {
    addControls();
    addStart();
    setErrorPlace(*cmdOpen, " occurred in cmdOpen, MCOG");
    addDataButtons({});
    setErrorPlace(*cmdSolve, " occurred in MCOG, cmdSOLVE");
    addReport();
    addPlot();
}

void MCOG::addControls() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 2180, .boxWidth = 7000};
    FieldColumn map{.left = 120, .top = 540, .captionWidth = 2180, .boxWidth = 1100};
    auto& txtLabel = addField(label, "txtLabel", "Problem label:");
    auto& txtMapFactor = addField(map, "txtMapFactor", "Map scaling factor (K):");
    txtMapFactor.tip = "Factor to convert coordinates to miles or kilometers.";
    scalars_ = {scalarFields, {&txtLabel, &txtMapFactor}};
    Grid = &addRowGrid("Grid", gridPlace, mostPoints).grid();
    points_ = {*Grid, pointFields, pointHeadings()};
}

void MCOG::addPlot() {
    picOut = &add<PictureSurface>("picOut", surfacePlace, scale());
    seenIn(*picOut, {View::Plot});
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Report}, [this] { plot(); });
    addPrintPlot();
}

// The problem

void MCOG::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    scalars_.show(problem);
    setDataRows(*Grid, problem.rowCount);
    for (int i = 1; i <= problem.rowCount; ++i) points_.put(i, problem.points(i));
}

Problem MCOG::readControls() const {
    Problem problem;
    scalars_.take(problem);
    problem.rowCount = Grid->rowCount();
    for (int i = 1; i <= problem.rowCount; ++i) points_.take(i, problem.points(i));
    return problem;
}

// Solve

void MCOG::solve() {
    const Problem problem = readControls();
    if (const auto found = fault(problem)) return backToData(*found);
    const std::optional<int> facilityCount = askFacilityCount(problem.rowCount);
    if (!facilityCount) return;
    const std::string answer = suite().inputBx(
        "Want to:\r\n(1) Compute the facility locations?\r\n(2) Specify them?", "Solution options", "1");
    if (answer.empty()) return;
    const double way = wholePart(numberFrom(answer));
    if (way < 1 || way > 2) return;
    if (way == 2) {
        plan_ = askPlan(problem, *facilityCount);
    } else {
        const Busy busy(suite());
        plan_ = located(problem, *facilityCount);
    }
    writeReportFile(reportOn(problem, plan_));
    showReportFile();
}

std::optional<int> MCOG::askFacilityCount(int pointCount) {
    const std::string prompt = "Desired number of facility locations (Max. = " + str(mostFacilities) + ")?";
    while (true) {
        const std::string answer = suite().inputBx(prompt, "", "Enter number");
        if (answer.empty()) return std::nullopt;
        const double count = std::nearbyint(val(answer));
        const auto refusal = facilityCountFault(count, pointCount);
        if (!refusal) return static_cast<int>(count);
        message(*refusal);
    }
}

std::optional<std::string> MCOG::facilityCountFault(double count, int pointCount) const {
    if (count > mostFacilities) return "Desired number of facilities exceeds the maximum allowed.";
    if (count > pointCount) return "Desired number of facilities exceeds the number of data points.";
    if (count < 1) return "Desired number of facilities is less than 1.";
    return std::nullopt;
}

/// The plan that the user specifies, with its costs.
Plan MCOG::askPlan(const Problem& problem, int facilityCount) {
    Plan plan;
    plan.facilityCount = facilityCount;
    for (int j = 1; j <= facilityCount; ++j) {
        Location& location = plan.facilities(j).location;
        location.x = askNumber(joined("The X coordinate for location ", j) + " is?");
        location.y = askNumber(joined("The Y coordinate for location ", j) + " is?");
    }
    for (int i = 1; i <= problem.rowCount; ++i)
        plan.assignedTo(i) =
            askFacility(joined("Point ", i) + " is to be assigned to facility number? ", facilityCount);
    price(problem, plan);
    return plan;
}

double MCOG::askNumber(const std::string& prompt) {
    return val(suite().inputBx(prompt, "", "Enter number"));
}

int MCOG::askFacility(const std::string& prompt, int facilityCount) {
    while (true) {
        const double number = std::nearbyint(askNumber(prompt));
        if (number >= 1 && number <= facilityCount) return static_cast<int>(number);
        message(joined("There is no facility ", number) + ".");
    }
}

// Report and plot

void MCOG::printData() {
    print(dataJob(wording().name, "MULTIPLE CENTER OF GRAVITY DATA", dataPage(readControls())));
}

void MCOG::plot() {
    showView(View::Plot);
    const PointPlot plotted = plotFrame(*picOut, scale(), readControls());
    if (suite().asksYes("Want to show point numbers?", "Question"))
        printNumbers(*picOut, scale(), plotted.numberPlaces());
    plotPlan(*picOut, scale(), plotted, plan_);
}

} // namespace vantore::mcog
