#include "location/PMED/PMED.h"

#include "location/PMED/report.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/printing.h"

namespace vantore::pmed {

namespace {

const ModuleWording pmedWording = {.name = "PMED",
                                   .windowTitle = "Facility Location by P-Median Method",
                                   .filePrefix = "PMED",
                                   .openTitle = "Open P-median location data file",
                                   .saveTitle = "Save P-median location data",
                                   .filter = "P-median location (PMED*.dat)|PMED*.dat|",
                                   .arithmetic = {.oneColumn = {"Hghlight only one column.", ""}}};

constexpr const char* solverProgram = "PMED.EXE";
constexpr const char* solverInput = "FORRUN";
constexpr const char* solverOutput = "FOROUT";

constexpr int xColumn = 2;
constexpr int yColumn = 3;
constexpr int markColumn = 7;
constexpr const char* degreesMask = "##0.00";

constexpr Rect gridPlace{120, 1500, 9360, 4830}; // twips of the design
constexpr Rect startPlace{1200, 1450, 7200, 4850};
constexpr Rect surfacePlace{0, 0, 9520, 6422};

} // namespace

PMED::PMED(Suite& suite) : ModuleFrame(suite, pmedWording) {
    addFields();
    addCoordinates();
    addSites();
    addStart("cmdOpen", startPlace);
    addDataButtons({});
    setErrorPlace(*cmdSave, " occurred in cmdSave, PMED");
    setErrorPlace(*cmdSolve, " occurred in PMED, cmdSolve");
    addReport();
    addPlot();
    nameCoordinates();
}

void PMED::addFields() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 2600, .boxWidth = 3500};
    FieldColumn count{.left = 120, .top = 540, .captionWidth = 2600, .boxWidth = 800};
    FieldColumn scales{.left = 120, .top = 960, .captionWidth = 2600, .boxWidth = 800};
    FieldColumn vertical{.left = 3640, .top = 960, .captionWidth = 1900, .boxWidth = 800};
    auto& txtLabel = addField(label, "txtLabel", "Problem label:");
    txtNoLoc = &addField(count, "txtNoLoc", "Number of facilities to locate");
    auto& txtHScale = addField(scales, "txtHScale", "Horizontal scaling factor");
    auto& txtVScale = addField(vertical, "txtVScale", "Vertical scaling factor");
    lblVScale = find("lblVScale");
    txtNoLoc->onLeave = [this] { checkFacilityCount(); };
    txtHScale.tip = "Factor to convert coordinates to miles or kilometers on horizontal axis.";
    txtVScale.tip = "Factor to convert coordinates to miles or kilometers on vertical axis.";
    scalars_ = {scalarFields, {&txtLabel, &txtHScale, &txtVScale}};
}

void PMED::addCoordinates() {
    auto& frame = addContainer("fraCoordinates", "COORDINATE OPTIONS", {6460, 90, 3020, 1250},
                               {View::Start, View::Data});
    optLinear = &addOption("optLinear", "Linear grid coordinates", {6620, 420, 2780, 300}, frame);
    optLatLon = &addOption("optLatLon", "Latitude/Longitude coordinates", {6620, 840, 2780, 300}, frame);
    optLatLon->tip = "Latitude and longitude are in degrees.";
    optLinear->selected = true;
    for (Option* option : {optLinear, optLatLon}) option->onPress = [this] { nameCoordinates(); };
}

void PMED::addSites() {
    GridRows& rows = addRowGrid("Grid", gridPlace, mostPoints);
    Grid = &rows.grid();
    sites_ = {*Grid,
              siteFields,
              {{"Point\r\nno.", 700},
               {"Point label", 2000},
               {"X coor-\r\ndinate", 1000},
               {"Y coor-\r\ndinate", 1000},
               {"Volume", 1200},
               {"Transport\r\nrate", 1050},
               {"Fixed\r\ncost", 1050},
               {"Candidate\r\nsites", 1060}}};
    candidates_ = {*Grid, markColumn};
    Grid->onKey = [this, &rows](int code) {
        const bool turns = candidates_.isTurnedOverBy(code) && Grid->rowCount() > 0;
        turns ? toggleMark() : rows.keyPress(code);
    };
    Grid->tip = "A key pressed in the last column marks a candidate site, or takes the mark away.";
}

void PMED::addPlot() {
    picOut = &add<PictureSurface>("picOut", surfacePlace, scale());
    seenIn(*picOut, {View::Plot});
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    setErrorPlace(*cmdPrintReport, " occurred in cmdPrint, PMED");
    auto& cmdPlot = addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Report}, [this] { plot(); });
    for (Button* button : {cmdPrintReport, &cmdPlot}) Seen(*button).when([this] { return hasOutcome_; });
    addPrintPlot();
}

// Coordinates

Coordinates PMED::coordinates() const {
    return optLatLon->selected ? Coordinates::Degrees : Coordinates::Linear;
}

/// The captions say what the coordinates are: west longitude is X, north latitude Y.
void PMED::nameCoordinates() {
    const bool degrees = coordinates() == Coordinates::Degrees;
    lblVScale->caption = degrees ? "Circuity factor" : "Vertical scaling factor";
    Grid->setCell(0, xColumn, degrees ? "Longi-\r\ntude" : "X coor-\r\ndinate");
    Grid->setCell(0, yColumn, degrees ? "Lati-\r\ntude" : "Y coor-\r\ndinate");
}

void PMED::restored() {
    ModuleFrame::restored();
    nameCoordinates();
}

// Candidate sites

int PMED::markCount() const {
    int count = 0;
    for (int row = 1; row <= Grid->rowCount() && row < Grid->rows(); ++row)
        count += candidates_.marked(row) ? 1 : 0;
    return count;
}

void PMED::toggleMark() {
    if (!candidates_.marked(Grid->row()) && markCount() >= mostCandidates)
        return message(joined("There may be no more than ", mostCandidates) + " candidate sites");
    candidates_.turnOver(Grid->row());
}

void PMED::checkFacilityCount() {
    const double facilities = val(txtNoLoc->text());
    const int candidates = markCount();
    if (facilities > candidates)
        message(joined("More facilities are to be located than the ", candidates) +
                " selected candidate sites.");
    if (facilities <= mostCandidates) return;
    message(joined("More facilities are to be located than the maximum of ", mostCandidates) + " allowed.");
    txtNoLoc->show("");
}

// The problem

void PMED::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    const bool degrees = problem.coordinates == Coordinates::Degrees;
    scalars_.show(problem);
    txtNoLoc->show("");
    optLatLon->selected = degrees;
    optLinear->selected = !degrees;
    nameCoordinates();
    setDataRows(*Grid, problem.rowCount);
    if (problem.rowCount == 0) Grid->clearRow(1);
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Site& site = problem.sites(i);
        sites_.put(i, site);
        if (degrees) {
            Grid->setCell(i, xColumn, format(site.x, degreesMask));
            Grid->setCell(i, yColumn, format(site.y, degreesMask));
        }
        candidates_.set(i, site.candidate);
    }
}

Problem PMED::readControls() const {
    Problem problem;
    scalars_.take(problem);
    problem.coordinates = coordinates();
    problem.rowCount = Grid->rowCount();
    for (int i = 1; i <= problem.rowCount; ++i) {
        sites_.take(i, problem.sites(i));
        problem.sites(i).candidate = candidates_.marked(i);
    }
    return problem;
}

void PMED::fillBlankCells() {
    std::vector<int> unmarked;
    for (int row = 1; row < Grid->rows(); ++row)
        if (!candidates_.marked(row)) unmarked.push_back(row);
    ModuleFrame::fillBlankCells();
    for (const int row : unmarked) candidates_.set(row, false);
}

// Solve

void PMED::solve() {
    hasOutcome_ = false;
    const SolverInput input{readControls(), val(txtNoLoc->text())};
    const auto writeItems = [this](const std::string& text) {
        writeLines(suite().ioPath(solverInput), lines(text));
    };
    // The points are written before they are looked at: what is wrong with them leaves the last line out.
    if (!solver.writeInput({solverProgram, [&] { writeItems(pointsText(input.problem)); }, {}})) return;
    if (const auto found = fault(input.problem, input.sitesToLocate)) return backToData(*found);
    if (!solver.run({solverProgram, [&] { writeItems(inputText(input)); }, {solverOutput}})) return;
    report->clear();
    showView(View::Report);
    ItemReader reader(readTextFile(suite().ioPath(solverOutput)));
    assignment_ = readAssignment(reader, input.problem.rowCount);
    writeReportFile(reportOn(input.problem, assignment_));
    showReportFile();
    hasOutcome_ = true;
}

void PMED::printData() {
    print(dataJob(wording().name, "P-MEDIAN LOCATION DATA",
                  dataPage(readControls(), trimmed(txtNoLoc->text()))));
}

// Plot

SitePlot PMED::beginPlot(const Problem& problem) {
    if (problem.coordinates == Coordinates::Linear) return plotOnAxes(*picOut, scale(), problem);
    ItemReader reader(readTextFile(suite().installPath(outlineMapFile)));
    return plotOnMap(*picOut, scale(), problem, readMap(reader));
}

void PMED::plot() {
    const Problem problem = readControls();
    picOut->clear();
    showView(View::Plot);
    const SitePlot plotted = beginPlot(problem);
    if (suite().asksYes("Want to show point numbers?", wording().name))
        printNumbers(*picOut, scale(), plotted.numberPlaces);
    plotAssignment(*picOut, scale(), plotted, problem, assignment_);
}

} // namespace vantore::pmed
