#include "routing/ROUTE/ROUTE.h"

#include <vector>

#include "routing/ROUTE/report.h"
#include "routing/plot_steps.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/printing.h"

namespace vantore::route {

namespace {

constexpr const char* pathFileName = "OUT.DAT";
constexpr const char* noArithmetic = "This column is not allowed for column arithmetic.";

const ModuleWording routeWording = {
    .name = "ROUTE",
    .windowTitle = "Shortest route through a network",
    .filePrefix = "RFL",
    .openTitle = "Open shortest route data file",
    .saveTitle = "Save shortest route data",
    .filter = "Shortest route (RFL*.dat)|RFL*.dat|",
    .arithmetic = {.oneColumn = {noArithmetic, ""}, .notApplicable = {noArithmetic, ""}}};

// Twips of the design.
constexpr Rect nodeListPlace{120, 870, 9360, 2530};
constexpr Rect arcListPlace{120, 3940, 9360, 2420};
constexpr Rect surfacePlace{0, 0, 9600, 6420};
constexpr Rect startPlace{1200, 1000, 7200, 5200};

// Columns of the lists.
constexpr int numberColumn = 1;
constexpr int nameColumn = 2;
constexpr int secondNumberColumn = 3;

void fillBlankNumbers(DataGrid& grid) {
    for (int row = 1; row <= grid.rowCount(); ++row)
        for (int col = 1; col < grid.cols(); ++col)
            if (grid.numeric(col) && grid.cell(row, col).empty()) grid.setCell(row, col, "0");
}

} // namespace

ROUTE::ROUTE(Suite& suite) : ModuleFrame(suite, routeWording) {
    addControls();
    addNodeList();
    addArcList();
    addStart("cmdOpenFile", startPlace);
    addDataButtons({});
    setErrorPlace(*cmdSolve, " occurrred in ROUTE, cmdSolve");
    addReport();
    addPlot();
}

// Controls

void ROUTE::addControls() {
    FieldColumn title{.left = 120, .top = 120, .captionWidth = 1400, .boxWidth = 4300};
    FieldColumn origin{.left = 6300, .top = 120, .captionWidth = 1900, .boxWidth = 1000};
    txtTitle = &addField(title, "txtTitle", "Problem title:");
    txtOriginNo = &addField(origin, "txtOriginNo", "Origin node number:");
    txtTitle->show("Enter label");
    txtOriginNo->show("No.");
    txtOriginNo->tip = "Number of the route origin";
}

void ROUTE::addNodeList() {
    addLabel("lblNodeId", "NODE IDENTIFICATION DATA", {120, 570, 9360, 270}, {View::Data});
    grdNodeId = &addRowGrid("grdNodeId", nodeListPlace, mostNodes).grid();
    nodes_ = {*grdNodeId,
              nodeFields,
              {{"Point no.", 900},
               {"Node\r\nno.", 800},
               {"Node name", 3600},
               {"X coor-\r\ndinate", 1250},
               {"Y coor-\r\ndinate", 1250}}};
    // The record keeps numbers as the texts that they are typed as.
    grdNodeId->holdsNumbers = [](int col) { return col >= numberColumn && col != nameColumn; };
}

void ROUTE::addArcList() {
    addLabel("lblNodeData", "CONNECTING NODE DATA", {120, 3410, 4000, 260}, {View::Data});
    addLabel("lblFromTo", "From --------------------------------   To -----------------------------------",
             {1020, 3670, 8460, 260}, {View::Data});
    GridRows& rows = addRowGrid("grdNodeData", arcListPlace, mostArcRows);
    grdNodeData = &rows.grid();
    arcs_ = {*grdNodeData,
             shownArcFields,
             {{"Point no.", 900},
              {"Node\r\nno.", 800},
              {"Node name", 2500},
              {"Node\r\nno.", 800},
              {"Node name", 2500},
              {"Cost", 1250}}};
    grdNodeData->onKey = [this, &rows](int code) {
        rows.keyPress(code);
        fillName(grdNodeData->row(), grdNodeData->col());
    };
}

void ROUTE::addPlot() {
    picOut = &add<PictureSurface>("picOut", surfacePlace, scale());
    seenIn(*picOut, {View::Plot});
    routing::followSteps(*picOut, [this](char which, int times) { step(which, times); });
    addButton("cmdPlot", "P&lot", buttonPlace(0, 4), {View::Data}, [this] { plot(); }).tip =
        "Graphically display solution";
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintRtb");
    addPrintPlot();
    addButton("cmdPath", "Solu&tion path", buttonPlace(1, 2), {View::Plot}, [this] { askPath(); }).tip =
        "Highlight best route";
    addButton("cmdZoom", "&Zoom", buttonPlace(1, 3), {View::Plot}, [this] { askZoom(); }).tip =
        "Adjust picture size";
}

// The problem

void ROUTE::readProblem(ItemReader& reader) {
    const RouteNetwork network = read(reader);
    txtTitle->show(network.title);
    txtOriginNo->show(defaultText(network.originNode));
    setDataRows(*grdNodeId, network.nodeCount);
    for (int i = 1; i <= network.nodeCount; ++i) nodes_.put(i, network.nodes(i));
    setDataRows(*grdNodeData, network.arcCount);
    for (int i = 1; i <= network.arcCount; ++i) arcs_.put(i, network.arcs(i));
    openedFile_ = currentFile();
    solved_ = false;
}

RouteNetwork ROUTE::readControls() const {
    RouteNetwork network;
    network.title = txtTitle->text();
    network.originNode = toInt16(val(txtOriginNo->text()));
    network.nodeCount = grdNodeId->rowCount();
    for (int i = 1; i <= network.nodeCount; ++i) nodes_.take(i, network.nodes(i));
    network.arcCount = grdNodeData->rowCount();
    for (int i = 1; i <= network.arcCount; ++i) arcs_.take(i, network.arcs(i));
    return network;
}

/// The names of the arc list come from the node list and stay as they are.
void ROUTE::fillBlankCells() {
    fillBlankNumbers(*grdNodeId);
    fillBlankNumbers(*grdNodeData);
    for (int row = 1; row <= grdNodeId->rowCount(); ++row)
        if (grdNodeId->cell(row, nameColumn).empty()) grdNodeId->setCell(row, nameColumn, " ");
}

NodeNames ROUTE::namesInList() const {
    std::vector<NodeRow> rows(static_cast<std::size_t>(grdNodeId->rows() - 1));
    for (int row = 1; row < grdNodeId->rows(); ++row)
        nodes_.take(row, rows[static_cast<std::size_t>(row - 1)]);
    return NodeNames(rows);
}

/// A node number in the arc list brings the node's name with it.
void ROUTE::fillName(int row, int col) {
    if (row < 1 || (col != numberColumn && col != secondNumberColumn)) return;
    grdNodeData->setCell(row, col + 1, namesInList().of(val(grdNodeData->cell(row, col))));
}

void ROUTE::computeColumn() {
    DataGrid* grid = activeGrid();
    ModuleFrame::computeColumn();
    if (grid != grdNodeData) return;
    const CellBlock& rows = grid->selection();
    for (int row = rows.startRow; row <= rows.endRow; ++row) fillName(row, grid->col());
}

// Solve

void ROUTE::solve() {
    const Busy busy(suite());
    const RouteNetwork network = readControls();
    writeReportFile(reportHead(network));
    writeReportFile({}, pathFileName);
    if (const auto found = fault(network)) return backToData({*found, ""});
    const Solution solution = shortestPaths(network);
    const PrintLines page = reportPage(network, solution);
    writeReportFile(page);
    writeReportFile(pathFile(solution), pathFileName);
    for (const std::string& warning : warnings(network, solution)) message(warning);
    if (!solution.originConnected) return;
    solved_ = true;
    std::vector<std::string> shown = {" SHORTEST ROUTE METHOD SOLUTION RESULTS", ""};
    shown.insert(shown.end(), page.lines().begin(), page.lines().end());
    showReportLines(shown, {.title = {"Arial", 12, true}});
}

// Printed data

void ROUTE::printData() {
    print(dataJob(wording().name,
                  std::vector<std::string>{"ROUTE", "FINDS THE SHORTEST ROUTE THROUGH A NETWORK"},
                  dataPage(readControls())));
}

// Plot

/// A fresh plot is as large as usual, and where it was moved to.
void ROUTE::plot() {
    ItemReader reader(readTextFile(pathOf(openedFile_)));
    map_.emplace(read(reader));
    shownPath_.reset();
    vantage_.zoom = routing::usualZoom;
    redraw();
    showView(View::Plot);
}

void ROUTE::redraw() {
    map_->draw(*picOut, scale(), vantage_);
    if (shownPath_) map_->drawPath(*picOut, scale(), vantage_, *shownPath_);
}

void ROUTE::askPath() {
    const std::string answer = suite().inputBx("Show solution path to which destination?", "Solution path",
                                               "Enter destination number");
    if (answer.empty()) return;
    const std::optional<Path> path = pathFrom(readLines(suite().ioPath(pathFileName)), val(answer));
    if (!path) return;
    // The file may be left from another problem.
    if (!solved_ && !map_->leadsAlong(*path))
        return message("The paths in " + std::string(pathFileName) +
                       " belong to another problem.  Solve this one first.");
    shownPath_ = path;
    redraw();
}

void ROUTE::askZoom() {
    if (const auto which = routing::askStep(suite())) step(*which, 1);
}

void ROUTE::step(char step, int times) {
    for (int i = 0; i < times; ++i) vantage_ = routing::stepped(vantage_, step);
    redraw();
}

} // namespace vantore::route
