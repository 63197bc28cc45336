#include "location/LAYOUT/LAYOUT.h"

#include "location/LAYOUT/method.h"
#include "location/LAYOUT/report.h"
#include "shell/printing.h"

namespace vantore::layout {

namespace {

const ModuleWording layoutWording = {
    .name = "LAYOUT",
    .windowTitle = "Product layout in a warehouse",
    .filePrefix = "LOUT",
    .openTitle = "Open layout data file",
    .saveTitle = "Save layout data",
    .filter = "Warehouse layout (LOUT*.dat)|LOUT*.dat|",
    .rows = {.noRow = "LAYOUT", .limit = "LAYOUT", .noDelete = "LAYOUT", .empty = "LAYOUT"},
    .arithmetic = {.highlighted = Message{"Highlighted column to be changed?", "LAYOUT"}}};

constexpr Rect gridPlace{120, 1750, 9360, 4580}; // twips of the design
constexpr Rect startPlace{1200, 1700, 7200, 4600};

} // namespace

LAYOUT::LAYOUT(Suite& suite) : ModuleFrame(suite, layoutWording) {
    addControls();
    addStart("cmdOpen", startPlace);
    addDataButtons({});
    addReport();
    addOutcomeButtons({View::Report}, "cmdPrintTB");
}

void LAYOUT::addControls() {
    FieldColumn label{.left = 120, .top = 120, .captionWidth = 1680, .boxWidth = 7500};
    txtLabel = &addField(label, "txtLabel", "Problem label:");
    txtLabel->show("Enter label");
    addRules();
    Grid = &addRowGrid("Grid", gridPlace, mostProducts).grid();
    products_ = {*Grid,
                 productFields,
                 {{"Product\r\nno.", 900},
                  {" \r\nProduct label", 3000},
                  {"Item sales\r\nunits/yr.", 1350},
                  {"Item size,\r\ncu. ft.", 1250},
                  {"Inventory \r\nturns", 1250},
                  {"No. of\r\norders/yr.", 1300}}};
}

void LAYOUT::addRules() {
    auto& frame = addContainer("fraLayout", "LAYOUT BY", {120, 560, 9360, 1050}, {View::Start, View::Data});
    frame.tip = "Select layout method";
    optPop = &addOption("optPop", "Order frequency (popularity)", {360, 980, 3300, 300}, frame);
    optSize = &addOption("optSize", "Item size (cube)", {3900, 980, 2100, 300}, frame);
    optCPO = &addOption("optCPO", "Cube-per-order index", {6300, 980, 2600, 300}, frame);
    optPop->selected = true;
}

// The problem

Option& LAYOUT::optionOf(Rule rule) const {
    switch (rule) {
    case Rule::Size: return *optSize;
    case Rule::CubePerOrder: return *optCPO;
    case Rule::Popularity: break;
    }
    return *optPop;
}

Rule LAYOUT::rule() const {
    if (optSize->selected) return Rule::Size;
    return optCPO->selected ? Rule::CubePerOrder : Rule::Popularity;
}

void LAYOUT::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    txtLabel->show(problem.label);
    for (Option* option : {optPop, optSize, optCPO}) option->selected = option == &optionOf(problem.rule);
    setDataRows(*Grid, problem.rowCount);
    for (int i = 1; i <= problem.rowCount; ++i) products_.put(i, problem.products(i));
}

Problem LAYOUT::readControls() const {
    Problem problem;
    problem.label = txtLabel->text();
    problem.rule = rule();
    problem.rowCount = Grid->rowCount();
    for (int i = 1; i <= problem.rowCount; ++i) products_.take(i, problem.products(i));
    return problem;
}

// Solve

void LAYOUT::solve() {
    const Problem problem = readControls();
    if (const auto found = fault(problem)) return backToData(*found);
    // A ranking that fails leaves an empty report, never that of the problem before.
    report->clear();
    showView(View::Report);
    writeReportFile({});
    writeReportFile(reportOn(problem.rule, ranking(problem)));
    showReportFile();
}

void LAYOUT::printData() {
    const Problem problem = readControls();
    print(dataJob(wording().name, "PRODUCT LAYOUT IN A WAREHOUSE",
                  dataPage(problem, optionOf(problem.rule).caption)));
}

} // namespace vantore::layout
