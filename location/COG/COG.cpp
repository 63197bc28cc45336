#include "location/COG/COG.h"

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::cog {

namespace {

const ModuleNames moduleNames = {.name = "COG",
                                 .filePrefix = "COG",
                                 .openTitle = "Open center-of-gravity data file",
                                 .saveTitle = "Save center-of-gravity data",
                                 .filter = "Center of gravity (COG*.dat)|COG*.dat|",
                                 .saveFilter = ""};

constexpr double surfaceWidth = 9520; // twips of the design
constexpr double reportHeight = 6372;
constexpr double plotHeight = 6422;
constexpr int labelColumn = 1;

} // namespace

COG::COG(Suite& suite) : ModuleFrame(suite, moduleNames) {
    rowTitles.noRow = rowTitles.limit = "COG";
    arithmetic.oneColumn = {"Highlight only one column", "Comment"};
    arithmetic.notApplicable.title = "Column arithmetic";
    arithmetic.menuTitle = "Column Arithmetic";
    arithmetic.menuDefault = "Enter selection";
    arithmetic.valueTitles.fill("Column Arithmetic");
    arithmetic.valueDefault = "Enter selection";
    addFields();
    addButtons();
    showView(View::Start);
}

void COG::addFields() {
    const auto fields = {View::Start, View::Data};
    addLabel("lblLabel", "Problem label:", {120, 150, 1700, 270}, fields);
    txtLabel = &addTextBox("txtLabel", {1860, 120, 7500, 315});
    addLabel("lblPowerFactor", "Power factor (T):", {120, 570, 1700, 270}, fields);
    txtPowerFactor = &addTextBox("txtPowerFactor", {1860, 540, 1100, 315}, "0.5");
    txtPowerFactor->tip = "Use .5 for Euclidian distances and 1 for rectalinear distances.";
    addLabel("lblMapFactor", "Map scaling factor (K):", {3400, 570, 2200, 270}, fields);
    txtMapFactor = &addTextBox("txtMapFactor", {5640, 540, 1100, 315});
    txtMapFactor->tip = "Factor to convert coordinates to miles or kilometers.";
    COGGrid = &addMainGrid("COGGrid", {120, 1000, 9360, 5330}, mostPoints);
    shapeGrid();
    picOut = &add<PictureSurface>("picOut", Rect{0, 0, surfaceWidth, reportHeight}, scale());
    seenIn(*picOut, {View::Report, View::Plot});
}

void COG::shapeGrid() {
    COGGrid->setCols(6);
    const std::array<const char*, 6> captions = {"Point no.",         " \r\nPoint label",
                                                 "X coor-\r\ndinate", "Y coor-\r\ndinate",
                                                 " \r\nVolume",       "Transport\r\nrate"};
    const std::array<double, 6> widths = {900, 3000, 1250, 1250, 1400, 1250};
    for (int col = 0; col < 6; ++col) {
        COGGrid->setCell(0, col, captions.at(static_cast<std::size_t>(col)));
        COGGrid->setColWidth(col, widths.at(static_cast<std::size_t>(col)));
    }
    COGGrid->setRowHeight(0, 2 * designRowHeight);
}

void COG::addButtons() {
    addStart();
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    auto& cmdSolve = addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    setErrorPlace(cmdSolve, " occurred in COG Solver.");
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    addButton("cmdAdd", "&Add row", buttonPlace(1, 0), {View::Data}, [this] { addRow(); });
    addButton("cmdDelete", "&Delete row", buttonPlace(1, 1), {View::Data}, [this] { deleteRow(); });
    addButton("cmdArith", "Colu&mn Arithmetic", buttonPlace(1, 2), {View::Data}, [this] {
        columnArithmetic(suite(), *COGGrid, arithmetic, [](int col) { return col > labelColumn; });
    });
    addButton("cmdExcel", "&Excel edit", buttonPlace(1, 3), {View::Data}, [this] { excelEdit(); });
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Report, View::Plot},
                             [this] { continueToData(); });
    cmdPrintTB = &addButton("cmdPrintTB", "&Print", buttonPlace(1, 1), {View::Report},
                            [this] { printWindowReport(*cmdPrintTB); });
    cmdPlot = &addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Report}, [this] { plot(); });
    cmdPrintPlot =
        &addButton("cmdPrintPlot", "&Print", buttonPlace(1, 1), {View::Plot}, [this] { printPlotImage(); });
}

void COG::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    txtLabel->setText(problem.label);
    txtPowerFactor->setText(defaultText(problem.powerFactor));
    txtMapFactor->setText(defaultText(problem.mapFactor));
    setDataRows(*COGGrid, problem.rowCount);
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Point& point = problem.points(i);
        COGGrid->setCell(i, 1, point.label);
        COGGrid->setCell(i, 2, defaultText(point.x));
        COGGrid->setCell(i, 3, defaultText(point.y));
        COGGrid->setCell(i, 4, defaultText(point.volume));
        COGGrid->setCell(i, 5, defaultText(point.rate));
    }
}

void COG::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
}

Problem COG::readControls() const {
    Problem problem;
    problem.label = txtLabel->text();
    problem.powerFactor = val(txtPowerFactor->text());
    problem.mapFactor = val(txtMapFactor->text());
    problem.rowCount = COGGrid->rowCount;
    for (int i = 1; i <= problem.rowCount; ++i) {
        Point& point = problem.points(i);
        point.label = trimmed(COGGrid->cell(i, 1));
        point.x = val(COGGrid->cell(i, 2));
        point.y = val(COGGrid->cell(i, 3));
        point.volume = val(COGGrid->cell(i, 4));
        point.rate = val(COGGrid->cell(i, 5));
    }
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

bool COG::solvable(const Problem& problem) {
    auto fault = scalarFault(problem);
    if (!fault && problem.powerFactor != .5) {
        const std::string asked =
            joined("The value for T is typically 0.5.  Is your value of ", problem.powerFactor);
        message(asked + " correct?", "Value of power factor");
    }
    if (!fault) fault = pointFault(problem);
    if (!fault) return true;
    message(fault->text, fault->title);
    continueToData();
    return false;
}

void COG::solve() {
    prepareSurface(View::Report, reportHeight);
    cmdContinue->visible = cmdPrintTB->visible = cmdPlot->visible = false;
    const Problem problem = readControls();
    if (!solvable(problem)) return;
    printHeading(*picOut, scale(), problem.label);
    const std::string way = suite().inputBx("Facility coordinates:\r\n(1) Compute them\r\n(2) Specify them",
                                            "Solution options", "1");
    cmdContinue->visible = true;
    if (way.empty()) return;
    if (way == "2") return specifyLocation(problem);
    if (way == "1") computeLocation(problem);
    cmdPrintTB->visible = cmdPlot->visible = true;
}

void COG::computeLocation(const Problem& problem) {
    printTableHeading(*picOut, scale());
    const std::optional<Location> start = centreOfGravity(problem);
    if (!start) message("All volume or rate data are 0", "Data error");
    Cycle cycle{0, start.value_or(Location{}), 0};
    cycle.cost = totalCost(problem, cycle.location);
    printCycle(*picOut, scale(), cycle, cycle);
    facility_ = {cycle.location, cycle.cost};
    while (suite().asksYes("Another computational cycle?", "Question")) {
        const Cycle previous = cycle;
        ++cycle.number;
        cycle.location = nextLocation(problem, previous.location);
        cycle.cost = totalCost(problem, cycle.location);
        facility_ = {cycle.location, cycle.cost};
        printCycle(*picOut, scale(), cycle, previous);
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
    cmdPrintTB->visible = cmdPlot->visible = true;
}

// Report and plot

void COG::printData() {
    const Problem problem = readControls();
    PrintJob job = dataPrint("EXACT CENTER-OF-GRAVITY METHOD RESULTS");
    PrintLines page;
    page.line("Title: " + problem.label);
    page.line(joined("Power Factor: ", problem.powerFactor));
    page.line(joined("Map scaling factor: ", problem.mapFactor));
    page.line("");
    page.line("Point data:");
    page.line("                    X coor-     Y coor-                         Transport");
    page.line("Point               dinate      dinate         Volume           rate");
    for (int i = 1; i <= problem.rowCount; ++i) {
        const Point& point = problem.points(i);
        page.text(point.label);
        page.tab(21).text(format(point.x, "##,###.#0")).tab(33).text(format(point.y, "##,###.#0"));
        page.tab(48)
            .text(format(point.volume, "###,###,##0"))
            .tab(65)
            .text(format(point.rate, "##,###.###0"));
        page.endLine();
    }
    printOn(job, page);
    print(job);
}

void COG::plot() {
    prepareSurface(View::Plot, plotHeight);
    const Problem problem = readControls();
    const PlotPoint largest = plotFrame(*picOut, scale(), problem);
    if (suite().asksYes("Want to show point numbers?", "COG"))
        plotNumbers(*picOut, scale(), problem, largest);
    plotPoints(*picOut, scale(), problem, largest, facility_);
}

} // namespace vantore::cog
