#include "demand/INPOL/INPOL.h"

#include "demand/INPOL/report.h"
#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"

namespace vantore::inpol {

namespace {

const ModuleNames moduleNames = {.name = "INPOL",
                                 .filePrefix = "INV",
                                 .openTitle = "Open inventory data file",
                                 .saveTitle = "Save inventory data",
                                 .filter = "Inventory control (INV*.dat)|INV*.dat|",
                                 .saveFilter = ""};

/// Exit and the spreadsheet hand-off have always borne this title.
constexpr const char* borrowedTitle = "WARELOCA";

constexpr int labelColumn = 1;
constexpr int firstValueColumn = 2;

// Twips of the design.
constexpr double questionHeight = 315;
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

} // namespace

INPOL::INPOL(Suite& suite) : ModuleFrame(suite, moduleNames) {
    exitTitle = borrowedTitle;
    printQuestion.text =
        "Select YES to print.  For a higher resolution picture, choose NO. Then, paste, edit, and print the "
        "captured Windows' clipboard image from another program such as WORD or POWERPOINT.";
    addQuestions();
    addGrids();
    addStart("cmdOpen", startPlace);
    addDataButtons();
    addReport();
    chtPlot = &add<Chart>("chtPlot", chartPlace);
    seenIn(*chtPlot, {View::Plot});
    addOutcomeButtons();
    showView(View::Start);
}

// Controls

void INPOL::addQuestions() {
    const auto ask = [this](TextBox*& box, const std::string& name, const std::string& prompt, double left,
                            double top, double promptWidth, double boxWidth) {
        addLabel("lbl" + name, prompt, {left, top + 30, promptWidth, questionHeight - 45},
                 {View::Start, View::Data});
        box = &addTextBox("txt" + name, {left + promptWidth + 60, top, boxWidth, questionHeight});
        questions_.push_back({prompt, box});
    };
    constexpr std::array<double, 5> tops = {90, 425, 760, 1095, 1430};
    ask(txtLabel, "Label", "Problem label", 120, tops[0], 1300, 4800);
    ask(txtNoPrd, "NoPrd", "Number of products", 6580, tops[0], 1940, 900);
    ask(txtTimeFrame, "TimeFrame", "Time frame (1=Calendar days, 2=Working days, 3=Weeks, 4=Months, 5=Year)",
        120, tops[1], 6300, 700);
    ask(txtJointOrder, "JointOrder", "Are the items jointly ordered (Y/N)?", 120, tops[2], 3700, 500);
    ask(txtServInd, "ServInd", "Are the service indices specified (Y/N)?", 120, tops[3], 3700, 500);
    ask(txtSen, "Sen", "Do you want a sensitivity analysis (Y/N)?", 120, tops[4], 3700, 500);
    ask(txtJointCost, "JointCost", "Joint-order procurement cost", 4620, tops[2], 3900, 900);
    ask(txtCycleTime, "CycleTime", "Order cycle time in Time Frame units", 4620, tops[3], 3900, 900);
    ask(txtOrderQuant, "OrderQuant", "Are the order quantities to be specified (Y/N)?", 4620, tops[4], 3900,
        900);
    txtCycleTime->tip = "0 to have the cycle time of joint orders computed.";
    txtNoPrd->tip = "1 to 50; the grids follow it.";
}

void INPOL::addGrids() {
    constexpr std::array<const char*, 3> names = {"grdDemand", "grdPrice", "grdMisc"};
    for (std::size_t k = 0; k < grids_.size(); ++k) {
        const double top = gridTop + static_cast<double>(k) * gridStep;
        auto& grid = addMainGrid(names.at(k), {gridLeft, top, gridWidth, gridHeight}, mostProducts);
        grid.onInsertKey = [this, &grid] { appendProduct(grid); };
        grids_.at(k) = &grid;
        const TableHeading& heading = tableHeadings().at(k);
        const auto caption = [](const ColumnHeading& lines) {
            return std::string(lines.upper) + "\r\n" + lines.lower;
        };
        grid.setCols(firstValueColumn + static_cast<int>(heading.values.size()));
        grid.setRowHeight(0, 2 * designRowHeight);
        grid.setCell(0, 0, caption(heading.number));
        grid.setCell(0, labelColumn, "Product label");
        grid.setColWidth(0, numberColumnWidth);
        grid.setColWidth(labelColumn, labelColumnWidth);
        int col = firstValueColumn;
        for (const ColumnHeading& lines : heading.values) {
            grid.setCell(0, col, caption(lines));
            grid.setColWidth(col++, valueColumnWidth);
        }
    }
    grdDemand = grids_[0];
    grdPrice = grids_[1];
    grdMisc = grids_[2];
    setMainGrid(*grdDemand);
    countBox_ =
        std::make_unique<RowCountBox>(*txtNoPrd, std::vector<DataGrid*>(grids_.begin(), grids_.end()), [] {
            // More than 50 products are ignored: the box shows the old number again.
        });
}

void INPOL::addDataButtons() {
    addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), {View::Data}, [this] { saveProblem(); });
    addButton("cmdSolve", "&Solve", buttonPlace(0, 2), {View::Data}, [this] { solve(); });
    addButton("cmdPrintData", "P&rint data", buttonPlace(0, 3), {View::Data}, [this] { printData(); });
    addButton("cmdExcel", "&Excel edit", buttonPlace(0, 4), {View::Data},
              [this] { excelEdit(borrowedTitle); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
}

void INPOL::addOutcomeButtons() {
    cmdContinue = &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), {View::Report, View::Plot},
                             [this] { continueToData(); });
    addButton("cmdPrintTB", "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReportFile(); });
    addButton("cmdPlot", "P&lot", buttonPlace(1, 2), {View::Data, View::Report}, [this] { plot(); });
    cmdPrintPlot =
        &addButton("cmdPrintPlot", "&Print", buttonPlace(1, 1), {View::Plot}, [this] { printPlotImage(); });
}

/// The Insert key in any of the grids: a product is a row in each of them.
void INPOL::appendProduct(DataGrid& grid) {
    if (productCount() >= mostProducts)
        return message("Too many rows.  Limit is" + str(mostProducts), rowTitles.limit);
    const int count = productCount() + 1;
    for (DataGrid* each : grids_) setDataRows(*each, count);
    countBox_->settle();
    grid.setCurrent(grid.row(), labelColumn);
}

// The problem

void INPOL::readProblem(ItemReader& reader) {
    const Problem problem = read(reader);
    txtLabel->setText(problem.label);
    txtTimeFrame->setText(defaultText(problem.timeFrame));
    txtJointOrder->setText(problem.jointOrderAnswer);
    txtServInd->setText(problem.serviceIndexAnswer);
    txtSen->setText(problem.sensitivityAnswer);
    txtJointCost->setText(defaultText(problem.jointCost));
    txtCycleTime->setText(defaultText(problem.cycleTime));
    txtOrderQuant->setText(problem.orderQuantityAnswer);
    for (std::size_t k = 0; k < grids_.size(); ++k) {
        const ProductTable& table = productTables.at(k);
        setDataRows(*grids_.at(k), problem.productCount);
        for (int i = 1; i <= problem.productCount; ++i) {
            const Product& product = problem.products(i);
            grids_.at(k)->setCell(i, labelColumn, product.*table.label);
            int col = firstValueColumn;
            for (const auto value : table.values)
                grids_.at(k)->setCell(i, col++, defaultText(product.*value));
        }
    }
    countBox_->settle();
}

void INPOL::writeProblem(ItemWriter& writer) {
    write(readControls(), writer);
}

void INPOL::fillBlankCells() {
    for (DataGrid* grid : grids_) fillBlanks(*grid);
}

Problem INPOL::readControls() const {
    Problem problem;
    problem.label = txtLabel->text();
    problem.productCount = productCount();
    problem.timeFrame = val(txtTimeFrame->text());
    problem.jointOrderAnswer = txtJointOrder->text();
    problem.serviceIndexAnswer = txtServInd->text();
    problem.sensitivityAnswer = txtSen->text();
    problem.jointCost = val(txtJointCost->text());
    problem.cycleTime = val(txtCycleTime->text());
    problem.orderQuantityAnswer = txtOrderQuant->text();
    for (std::size_t k = 0; k < grids_.size(); ++k) {
        const ProductTable& table = productTables.at(k);
        for (int i = 1; i <= problem.productCount; ++i) {
            Product& product = problem.products(i);
            product.*table.label = trimmed(grids_.at(k)->cell(i, labelColumn));
            int col = firstValueColumn;
            for (const auto value : table.values) product.*value = val(grids_.at(k)->cell(i, col++));
        }
    }
    return problem;
}

// Solve

void INPOL::solve() {
    const Busy busy(suite());
    sensitivity_.reset();
    Problem problem = readControls();
    PrintLines page;
    writeReportFile(page);
    try {
        compute(problem, page);
    } catch (...) {
        // What was printed before the failure stays in the file.
        writeReportFile(page);
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
        if (question.answer == txtJointCost) page.line("").line("JOINT-ORDER PARAMETERS");
        if (question.answer == txtOrderQuant) page.line("").line("INDIVIDUAL-ORDER PARAMETER");
        page.line(question.prompt + " " + question.answer->text());
    }
    printTables(page, readControls());
    PrintJob job{.title = names().name};
    printOn(job, page);
    print(job);
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
