#include "demand/INPOL/INPOL.h"

#include "demand/INPOL/report.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/printing.h"

namespace vantore::inpol {

namespace {

/// Exit and the spreadsheet hand-off have the title of the warehouse case.
constexpr const char* warehouseTitle = "WARELOCA";

const ModuleWording inpolWording = {
    .name = "INPOL",
    .filePrefix = "INV",
    .openTitle = "Open inventory data file",
    .saveTitle = "Save inventory data",
    .filter = "Inventory control (INV*.dat)|INV*.dat|",
    .exitTitle = warehouseTitle,
    .printQuestion =
        {.text = "Select YES to print.  For a higher resolution picture, choose NO. Then, paste, edit, "
                 "and print the captured Windows' clipboard image from another program such as WORD or "
                 "POWERPOINT."},
    .spreadsheet = {.title = warehouseTitle}};

// Twips of the design.
constexpr double gridLeft = 120;
constexpr double gridTop = 1800;
constexpr double gridWidth = 9360;
constexpr double gridHeight = 1480;
constexpr double gridStep = 1545;
constexpr double numberColumnWidth = 560;
constexpr double labelColumnWidth = 2200;
constexpr double valueColumnWidth = 1210;
constexpr Rect startPlace{1200, 1900, 7200, 4300};
constexpr Rect chartPlace{120, 120, 9360, 6135};

std::string captionOf(const ColumnHeading& heading) {
    return std::string(heading.upper) + "\r\n" + heading.lower;
}

} // namespace

INPOL::INPOL(Suite& suite) : ModuleFrame(suite, inpolWording) {
    addQuestions();
    addTables();
    addCountBox();
    addStart("cmdOpen", startPlace);
    addDataButtons({.arithmetic = "", .rows = false, .excelPlace = buttonPlace(0, 4)});
    addOutcome();
}

// Controls

TextBox& INPOL::ask(FieldColumn column, const std::string& name, const std::string& prompt) {
    TextBox& box = addField(column, name, prompt);
    questions_.push_back({prompt, &box});
    return box;
}

void INPOL::addQuestions() {
    const auto left = [](int row) {
        return FieldColumn{.left = 120, .top = 90.0 + 335 * row, .captionWidth = 3700, .boxWidth = 500};
    };
    const auto right = [](int row) {
        return FieldColumn{.left = 4620, .top = 90.0 + 335 * row, .captionWidth = 3900, .boxWidth = 900};
    };
    auto& txtLabel =
        ask({.left = 120, .top = 90, .captionWidth = 1300, .boxWidth = 4800}, "txtLabel", "Problem label");
    txtNoPrd = &ask({.left = 6580, .top = 90, .captionWidth = 1940, .boxWidth = 900}, "txtNoPrd",
                    "Number of products");
    auto& txtTimeFrame = ask({.left = 120, .top = 425, .captionWidth = 6300, .boxWidth = 700}, "txtTimeFrame",
                             "Time frame (1=Calendar days, 2=Working days, 3=Weeks, 4=Months, 5=Year)");
    auto& txtJointOrder = ask(left(2), "txtJointOrder", "Are the items jointly ordered (Y/N)?");
    auto& txtServInd = ask(left(3), "txtServInd", "Are the service indices specified (Y/N)?");
    auto& txtSen = ask(left(4), "txtSen", "Do you want a sensitivity analysis (Y/N)?");
    auto& txtJointCost = ask(right(2), "txtJointCost", "Joint-order procurement cost");
    auto& txtCycleTime = ask(right(3), "txtCycleTime", "Order cycle time in Time Frame units");
    auto& txtOrderQuant = ask(right(4), "txtOrderQuant", "Are the order quantities to be specified (Y/N)?");
    txtCycleTime.tip = "0 to have the cycle time of joint orders computed.";
    txtNoPrd->tip = "1 to 50; the grids follow it.";
    boxes_ = {boxFields,
              {&txtLabel, &txtTimeFrame, &txtJointOrder, &txtServInd, &txtSen, &txtJointCost, &txtCycleTime,
               &txtOrderQuant}};
}

void INPOL::addTables() {
    constexpr std::array<const char*, 3> names = {"grdDemand", "grdPrice", "grdMisc"};
    for (std::size_t k = 0; k < tables_.size(); ++k) {
        const double top = gridTop + static_cast<double>(k) * gridStep;
        GridRows& rows = addRowGrid(names.at(k), {gridLeft, top, gridWidth, gridHeight}, mostProducts);
        rows.setCount = [this](int count) { setProductCount(count); };
        rows.grid().onInsertKey = [this, &rows] { appendProduct(rows); };
        const TableHeading& heading = tableHeadings().at(k);
        std::vector<vantore::ColumnHeading> headings = {{captionOf(heading.number), numberColumnWidth},
                                                        {"Product label", labelColumnWidth}};
        for (const ColumnHeading& value : heading.values)
            headings.push_back({captionOf(value), valueColumnWidth});
        tables_.at(k) = {&rows, {rows.grid(), productTables.at(k).fields, headings}};
    }
}

/// More than 50 products are ignored: the box shows the old number again.
void INPOL::addCountBox() {
    std::vector<DataGrid*> grids;
    for (const ShownTable& table : tables_) grids.push_back(&table.rows->grid());
    countBox_ = &addSizeBox(*txtNoPrd, std::move(grids),
                            {.most = mostProducts,
                             .present = [this] { return productCount(); },
                             .shape = [this](int count) { setProductCount(count); }});
    for (const ShownTable& table : tables_) table.rows->onCount = [this] { countBox_->settle(); };
}

void INPOL::addOutcome() {
    addReport();
    chtPlot = &add<Chart>("chtPlot", chartPlace);
    seenIn(*chtPlot, {View::Plot});
    addOutcomeButtons({View::Report, View::Plot}, "cmdPrintTB");
    addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Data, View::Report}, [this] { plot(); });
    addPrintPlot();
}

/// A product is a row in each of the grids.
void INPOL::setProductCount(int count) {
    for (const ShownTable& table : tables_) setDataRows(table.rows->grid(), count);
}

/// The Insert key in any of the grids.
void INPOL::appendProduct(const GridRows& rows) {
    if (productCount() >= mostProducts) return rows.reportLimit();
    setProductCount(productCount() + 1);
    countBox_->settle();
    rows.grid().setCurrent(rows.grid().row(), 1);
}

// The problem

void INPOL::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    boxes_.show(problem);
    setProductCount(problem.productCount);
    for (const ShownTable& table : tables_)
        for (int i = 1; i <= problem.productCount; ++i) table.columns.put(i, problem.products(i));
    countBox_->settle();
    sensitivity_.reset();
}

Problem INPOL::readControls() const {
    Problem problem;
    boxes_.take(problem);
    problem.productCount = productCount();
    for (const ShownTable& table : tables_)
        for (int i = 1; i <= problem.productCount; ++i) table.columns.take(i, problem.products(i));
    return problem;
}

// Solve

void INPOL::solve() {
    const Busy busy(suite());
    sensitivity_.reset();
    Problem problem = readControls();
    PrintLines page;
    try {
        compute(problem, page);
    } catch (const RuntimeError&) {
        writeReportFile(page); // what was printed before the failure stays in the file
        throw;
    }
    writeReportFile(page);
    showReportFile({.starredHeadings = true});
}

void INPOL::compute(Problem& problem, PrintLines& page) {
    const bool joint = problem.jointlyOrdered();
    ProductPolicies policies;
    runProcedure(
        procedureFor(problem), problem, policies, keptLookup_,
        [&](int product, const StockingPolicies& found) { printProduct(page, product, found, joint); });
    printSummary(page, summaryOf(policies, problem.productCount), joint);
    if (!problem.wantsSensitivity()) return;
    Sensitivity sensitivity = sensitivityOf(problem, policies, keptLookup_);
    printSensitivity(page, sensitivity, timeUnit(problem.timeFrame));
    sensitivity_ = std::move(sensitivity);
}

void INPOL::printData() {
    PrintLines page;
    page.line("                         INVENTORY CONTROL DATA");
    page.line("");
    for (const Question& question : questions_) {
        if (question.answer->name == "txtJointCost") page.line("").line("JOINT-ORDER PARAMETERS");
        if (question.answer->name == "txtOrderQuant") page.line("").line("INDIVIDUAL-ORDER PARAMETER");
        page.line(question.prompt + " " + question.answer->text());
    }
    printTables(page, readControls());
    print(plainJob(wording().name, page));
}

// Plot

void INPOL::plot() {
    if (!sensitivity_)
        return message("No results are available for plotting.  Call for a sensitivity analysis and resolve "
                       "the problem.");
    try {
        askAndPlot();
    } catch (...) {
        continueToData();
        throw;
    }
}

void INPOL::askAndPlot() {
    const PlottedSystem system = sensitivity_->jointlyOrdered ? PlottedSystem::PeriodicReview : askSystem();
    const int product = askProduct();
    const std::optional<PlottedCurve> curve = askCurve(system);
    if (!curve) return;
    chtPlot->data = curveOf(*sensitivity_, system, product, *curve);
    showView(View::Plot);
}

PlottedSystem INPOL::askSystem() {
    while (true) {
        const std::string answer = suite().inputBx(
            "Plot for:\r\n(1) Reorder point system\r\n(2) Periodic review system", "Plot of results", "1");
        if (answer == "1") return PlottedSystem::ReorderPoint;
        if (answer == "2") return PlottedSystem::PeriodicReview;
    }
}

int INPOL::askProduct() {
    while (true) {
        const std::string answer = suite().inputBx("Which product number to plot?", "Plot of results", "1");
        if (!answer.empty() && val(answer) <= sensitivity_->productCount) return toInt16(val(answer));
    }
}

std::optional<PlottedCurve> INPOL::askCurve(PlottedSystem system) {
    const std::string level = system == PlottedSystem::ReorderPoint ? "reorder point quantity" : "max level";
    const std::string answer = suite().inputBx("Want to plot:\r\n(1) Total costs against service level\r\n"
                                               "(2) Total costs against average inventory\r\n"
                                               "(3) Average inventory against " +
                                                   level + "\r\n(4) Average inventory against service level",
                                               "Plot of results", "1");
    if (answer.size() != 1 || answer[0] < '1' || answer[0] > '4') return std::nullopt;
    return static_cast<PlottedCurve>(answer[0] - '0');
}

} // namespace vantore::inpol
