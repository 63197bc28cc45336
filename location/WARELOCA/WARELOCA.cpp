#include "location/WARELOCA/WARELOCA.h"

#include <filesystem>
#include <system_error>

#include "location/WARELOCA/plot.h"
#include "location/WARELOCA/report.h"
#include "location/mark_column.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/printing.h"

namespace vantore::wareloca {

namespace {

const ModuleWording warelocaWording = {.name = "WARELOCA",
                                       .windowTitle = "Wareloca",
                                       .filePrefix = "LTH",
                                       .openTitle = "Open Lathern Soap Company data file",
                                       .saveTitle = "Save Lathern Soap Company data",
                                       .filter = "Lathern Soap (LTH*.dat)|LTH*.dat|",
                                       .arithmetic = {.oneColumn = {"Highlight only one column", ""}}};

constexpr const char* solverProgram = "WARELO.EXE";
constexpr const char* caseFile = "FIL.DAT";
constexpr const char* selectionFile = "OLDSOL.DAT";
constexpr const char* reportFile = "OUTPUT.DAT";
constexpr const char* flowFile = "TEMP.DAT";
constexpr const char* baseCase = "LTH01.DAT";

enum Page { plantPage, warehousePage, customerPage };

constexpr int selectionColumn = 1;
constexpr int locationColumn = 2; // of plants, warehouses and customers

// Twips of the design.
constexpr Rect tabsPlace{120, 120, 9360, 6240};
constexpr double pageLeft = 240;
constexpr double pageTop = 600;
constexpr double pageWidth = 9120;
constexpr double plantTableHeight = 2000;
constexpr double tableHeight = 5640;
constexpr Rect surfacePlace{0, 0, 9520, 6422};

} // namespace

WARELOCA::WARELOCA(Suite& suite) : ModuleFrame(suite, warelocaWording) {
    Tabs = &addContainer("Tabs", "", tabsPlace, {View::Data});
    Tabs->pages = {"Plants", "Warehouses", "Customers"};
    addPlantPage();
    addCostFunctions();
    addWarehousePage();
    addCustomerPage();
    addStart();
    setErrorPlace(*cmdOpen, " occurred in WARELOCA, cmdOpen");
    addDataButtons({.arithmetic = "cmdColArith",
                    .rows = false,
                    .spreadsheet = false,
                    .arithmeticPlace = buttonPlace(1, 0)});
    find("cmdColArith")->caption = "Colu&mn arithmetic";
    addReport();
    addOutcomes();
    setErrorPlace(*Tabs, " occurred in Form, WARELOCA");
    run(*Tabs, [this] { copyBaseCase(); });
}

// Controls

DataGrid& WARELOCA::addTable(const std::string& name, int page, double height) {
    DataGrid& grid = addGrid(name, {pageLeft, pageTop, pageWidth, height});
    grid.container = Tabs;
    grid.page = page;
    grid.onKey = [&grid](int code) { cellKeyPress(grid, code); };
    return grid;
}

/// In the selection column a click or a key turns the mark over.
void WARELOCA::addSelectionColumn(DataGrid& grid) {
    MarkColumn selection(grid, selectionColumn);
    grid.onCellClick = [selection](int row, int col) mutable {
        if (row >= 1 && col == selectionColumn) selection.turnOver(row);
    };
    grid.onKey = [&grid, selection](int code) mutable {
        selection.isTurnedOverBy(code) ? selection.turnOver(grid.row()) : cellKeyPress(grid, code);
    };
}

void WARELOCA::addPlantPage() {
    grdPlant = &addTable("grdPlant", plantPage, plantTableHeight);
    plants_ = {*grdPlant,
               plantColumns,
               {{"No.", 600},
                {"Selec-\r\ntion", 700},
                {"Plant location", 3000},
                {"Capacity,\r\ncwt.", 1400, "###.0"},
                {"Production\r\ncost, \r\n$/cwt.", 1300, "###.0"}}};
    addSelectionColumn(*grdPlant);
}

void WARELOCA::addCostFunctions() {
    constexpr double half = 4500;
    constexpr double height = 1240;
    constexpr double firstTop = pageTop + plantTableHeight + 160;
    constexpr double secondTop = firstTop + height + 160;
    const auto frame = [&](const char* name, const char* caption, double left, double top) {
        Container& function = addContainer(name, caption, {left, top, half, height}, {View::Data});
        function.container = Tabs;
        function.page = plantPage;
        return FieldColumn{.left = left + 140,
                           .top = top + 320,
                           .captionWidth = 2500,
                           .boxWidth = 1200,
                           .container = &function};
    };
    const auto field = [this](FieldColumn& column, const char* name, const char* caption, const char* text) {
        TextBox& box = addField(column, name, caption);
        box.show(text);
        return &box;
    };
    FieldColumn supply = frame("fraPW", "Plant-warehouse transportation function", pageLeft, firstTop);
    FieldColumn delivery =
        frame("fraWC", "Warehouse-customer transportation function", pageLeft + half + 120, firstTop);
    FieldColumn inventory = frame("fraInv", "Inventory estimating function", pageLeft, secondTop);
    FieldColumn capital = {.left = pageLeft + half + 260,
                           .top = secondTop + 320,
                           .captionWidth = 2500,
                           .boxWidth = 1200,
                           .container = Tabs,
                           .page = plantPage};
    FieldColumn service = {.left = pageLeft,
                           .top = secondTop + height + 140,
                           .captionWidth = 4600,
                           .boxWidth = 1200,
                           .container = Tabs,
                           .page = plantPage};
    TextBox* txtPWFixed = field(supply, "txtPWFixed", "Fixed, $/cwt.", "0.92");
    TextBox* txtPWVar = field(supply, "txtPWVar", "Variable, $/cwt./mi.", "0.0034");
    TextBox* txtWCFixed = field(delivery, "txtWCFixed", "Fixed, $/cwt.", "5.45");
    TextBox* txtWCVar = field(delivery, "txtWCVar", "Variable, $/cwt./mi.", "0.0037");
    TextBox* txtConstant = field(inventory, "txtConstant", "Constant", "11.3");
    TextBox* txtExp = field(inventory, "txtExp", "Exponent", "0.58");
    TextBox* txtCapital = field(capital, "txtCapital", "Capital cost, %/yr.", "");
    TextBox* txtProdValue = field(capital, "txtProdValue", "Product value, $/cwt.", "");
    TextBox* txtServ =
        field(service, "txtServ", "Desired distance of customers from warehouse, miles", "300");
    scalars_ = {
        scalarFields,
        {txtPWFixed, txtPWVar, txtCapital, txtProdValue, txtConstant, txtExp, txtWCFixed, txtWCVar, txtServ}};
}

void WARELOCA::addWarehousePage() {
    grdWhse = &addTable("grdWhse", warehousePage, tableHeight);
    warehouses_ = {*grdWhse,
                   warehouseColumns,
                   {{"No.", 400},
                    {"Selec-\r\ntion", 540},
                    {"Warehouse location", 1440},
                    {"Storage,\r\n$/$", 690, "###.0000"},
                    {"Handling,\r\n$/cwt.", 750, "##.00"},
                    {"Stock order\r\nprocessing,\r\n$/order", 910, "##.00"},
                    {"Stock order\r\nsize,\r\ncwt./order", 890, "##.00"},
                    {"Customer order\r\nprocessing,\r\n$/order", 1110, "##.00"},
                    {"Customer order\r\nsize,\r\ncwt./order", 1110, "##.00"},
                    {"Local delivery\r\nrate,\r\n$/cwt.", 1000, "##.00"}}};
    addSelectionColumn(*grdWhse);
}

void WARELOCA::addCustomerPage() {
    grdCust = &addTable("grdCust", customerPage, tableHeight);
    customers_ = {
        *grdCust,
        customerColumns,
        {{"No.", 600}, {"Region\r\nno.", 900}, {"Customer location", 3000}, {"Sales,\r\ncwt.", 1400}}};
}

void WARELOCA::addOutcomes() {
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintOut");
    addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Report}, [this] { plot(); });
    addPrintPlot();
    picOut = &add<PictureSurface>("picOut", surfacePlace, scale());
    seenIn(*picOut, {View::Plot});
}

// Files

/// The base case takes the place of what a run before has left. A file that may not be replaced stays.
void WARELOCA::copyBaseCase() {
    for (const char* name : {caseFile, selectionFile}) {
        const std::filesystem::path source = suite().installPath(name);
        const std::filesystem::path target = suite().ioPath(name);
        std::error_code error;
        if (std::filesystem::equivalent(source, target, error)) continue;
        try {
            replaceFile(target, readTextFile(source));
        } catch (const RuntimeError& failure) {
            if (failure.number() != ErrorNumber::PermissionDenied) throw;
        }
    }
}

/// The case stands in the tables before the selection is read, so that a bad one costs the marks alone.
void WARELOCA::readProblem(ItemReader& reader) {
    Case problem = read(reader);
    problem.desiredDistance = readControls().desiredDistance;
    putProblem(problem);
    std::error_code error;
    if (!std::filesystem::exists(suite().ioPath(selectionFile), error))
        return message("OLDSOL.DAT file not found in cmdOpen, WARELOCA.  Reinstall it from setup program.");
    ItemReader selection(readTextFile(suite().ioPath(selectionFile)));
    readSelection(problem, selection);
    putProblem(problem);
}

void WARELOCA::putProblem(const Case& problem) {
    opened_ = problem;
    scalars_.show(problem);
    setDataRows(*grdPlant, problem.plantCount);
    for (int i = 1; i <= problem.plantCount; ++i) plants_.put(i, problem.plants(i));
    setDataRows(*grdWhse, problem.warehouseCount);
    for (int i = 1; i <= problem.warehouseCount; ++i) warehouses_.put(i, problem.warehouses(i));
    setDataRows(*grdCust, problem.customerCount);
    for (int i = 1; i <= problem.customerCount; ++i) customers_.put(i, problem.customers(i));
}

Case WARELOCA::readControls() const {
    Case problem = opened_;
    scalars_.take(problem);
    for (int i = 1; i <= problem.plantCount; ++i) plants_.take(i, problem.plants(i));
    for (int i = 1; i <= problem.warehouseCount; ++i) warehouses_.take(i, problem.warehouses(i));
    for (int i = 1; i <= problem.customerCount; ++i) customers_.take(i, problem.customers(i));
    return problem;
}

void WARELOCA::fillBlankCells() {
    for (DataGrid* grid : {grdPlant, grdWhse, grdCust})
        for (int row = 1; row <= grid->rowCount(); ++row)
            for (int col = 1; col < grid->cols(); ++col) {
                if (!grid->cell(row, col).empty()) continue;
                if (grid->numeric(col)) grid->setCell(row, col, "0");
                if (col == locationColumn) grid->setCell(row, col, " ");
            }
}

bool WARELOCA::mayBeSavedAs(const std::string& upperCaseName) {
    if (upperCaseName != baseCase) return true;
    message("Choose a file number other than 01.");
    return false;
}

// Solve

void WARELOCA::solve() {
    const Case problem = readControls();
    const auto writeInput = [&](const char* name, const auto& writeItems) {
        ItemWriter writer;
        writeItems(problem, writer);
        writeLines(suite().ioPath(name), lines(writer.text()));
    };
    const SolverJob job{solverProgram,
                        [&] {
                            writeInput(caseFile, write);
                            writeInput(selectionFile, writeSelection);
                        },
                        {reportFile, flowFile}};
    if (solver.run(job)) showReportFile();
}

void WARELOCA::printData() {
    print(dataJob(wording().name, "WAREHOUSE LOCATION CASE DATA", dataPage(readControls())));
}

// Plot

void WARELOCA::plot() {
    ItemReader reader(readTextFile(suite().installPath(outlineMapFile)));
    const OutlineMap map = readMap(reader);
    plotMap(*picOut, scale(), map);
    showView(View::Plot);
    const std::string answer =
        trimmed(suite().inputBx("Select type of display\r\n(1) Customers\r\n(2) Warehouses\r\n(3) Plants\r\n"
                                "(4) Solution w/ warehouses\r\n(5) Solution w/ warehouses and plants",
                                "Wareloca", "1"));
    if (answer == "1") plotPlaces(*picOut, scale(), map, customerPlaces(opened_));
    if (answer == "2") plotPlaces(*picOut, scale(), map, warehousePlaces(opened_));
    if (answer == "3") plotPlaces(*picOut, scale(), map, plantPlaces(opened_));
    if (answer == "4" || answer == "5") plotSolution(map, answer == "5");
}

void WARELOCA::plotSolution(const OutlineMap& map, bool withPlants) {
    ItemReader reader(readTextFile(suite().ioPath(flowFile)));
    const std::vector<Flow> flows = readFlows(reader);
    const auto names = [this](const char* question, const DataGrid* grid) {
        const bool wanted = suite().asksYes(question, wording().name);
        return wanted ? NameOf([grid](int row) { return grid->cell(row, locationColumn); }) : NameOf();
    };
    const NameOf warehouseNames = names("Show warehouse labels?", grdWhse);
    const NameOf plantNames = withPlants ? names("Show plant labels?", grdPlant) : NameOf();
    plotDeliveries(*picOut, scale(), map, flows, warehouseNames);
    if (withPlants) plotSupplies(*picOut, scale(), map, flows, plantNames);
}

} // namespace vantore::wareloca
