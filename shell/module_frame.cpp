#include "shell/module_frame.h"

#include <algorithm>
#include <utility>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/capture.h"
#include "shell/printing.h"
#include "shell/report_file.h"

namespace vantore {

namespace {

constexpr double buttonLeft = 120;
constexpr double buttonStep = 1570;
constexpr double buttonWidth = 1510;
constexpr double buttonTop = 6450;
constexpr double buttonRowStep = 350;
constexpr double buttonHeight = 320;
constexpr Rect reportPlace{120, 120, 9255, 6135};
constexpr double startLabelHeight = 600;
constexpr double captionDrop = 30; // of a caption beside its box
constexpr double captionGap = 60;

bool isOutcome(View view) {
    return view != View::Start && view != View::Data;
}

std::string withoutPrefix(const std::string& boxName) {
    return boxName.starts_with("txt") ? boxName.substr(3) : boxName;
}

} // namespace

ModuleFrame::ModuleFrame(Suite& suite, const ModuleWording& wording)
    : SuiteWindow(suite, wording.name), solver(suite, *this), wording_(wording.completed()) {
    caption = wording_.windowTitle;
}

// Controls

Rect ModuleFrame::buttonPlace(int row, int column) {
    return {buttonLeft + column * buttonStep, buttonTop + row * buttonRowStep, buttonWidth, buttonHeight};
}

Button& ModuleFrame::addButton(const std::string& name, const std::string& buttonCaption, Rect place,
                               std::initializer_list<View> views, std::function<void()> onPress) {
    auto& button = add<Button>(name, place);
    button.caption = buttonCaption;
    button.onPress = std::move(onPress);
    seenIn(button, views).when([this, &button] {
        return !solver.isRunning() &&
               std::find(offPaper_.begin(), offPaper_.end(), &button) == offPaper_.end();
    });
    return button;
}

TextBox& ModuleFrame::addTextBox(const std::string& name, Rect place, const std::string& text) {
    auto& box = add<TextBox>(name, place);
    box.show(text);
    seenIn(box, {View::Start, View::Data});
    enabledByOpen(box);
    return box;
}

Label& ModuleFrame::addLabel(const std::string& name, const std::string& text, Rect place,
                             std::initializer_list<View> views) {
    auto& label = add<Label>(name, place);
    label.caption = text;
    seenIn(label, views);
    return label;
}

TextBox& ModuleFrame::addField(FieldColumn& column, const std::string& name, const std::string& text) {
    const double top = column.top;
    column.top += column.step;
    auto& label =
        addLabel("lbl" + withoutPrefix(name), text,
                 {column.left, top + captionDrop, column.captionWidth, column.boxHeight - captionDrop},
                 {View::Start, View::Data});
    auto& box = addTextBox(
        name, {column.left + column.captionWidth + captionGap, top, column.boxWidth, column.boxHeight});
    label.buddy = &box;
    label.container = box.container = column.container;
    label.page = box.page = column.page;
    return box;
}

Container& ModuleFrame::addContainer(const std::string& name, const std::string& text, Rect place,
                                     std::initializer_list<View> views) {
    auto& container = add<Container>(name, place);
    container.caption = text;
    seenIn(container, views);
    return container;
}

Option& ModuleFrame::addOption(const std::string& name, const std::string& text, Rect place,
                               const Container& group, int page) {
    auto& option = add<Option>(name, place);
    option.caption = text;
    option.container = &group;
    option.page = page;
    enabledByOpen(option);
    return option;
}

DataGrid& ModuleFrame::addGrid(const std::string& name, Rect place, std::initializer_list<View> views) {
    auto& grid = add<DataGrid>(name, place);
    seenIn(grid, views);
    refusePasteBeyond(suite(), grid, wording_.name);
    grids_.push_back(&grid);
    return grid;
}

GridRows& ModuleFrame::addRowGrid(const std::string& name, Rect place, int limit) {
    return addRowGrid(name, place, limit, wording_.rows);
}

GridRows& ModuleFrame::addRowGrid(const std::string& name, Rect place, int limit, const RowTitles& titles) {
    return *rows_.emplace_back(std::make_unique<GridRows>(suite(), addGrid(name, place), limit, titles));
}

SizeBox& ModuleFrame::addSizeBox(TextBox& box, std::vector<DataGrid*> grids, SizeRules rules) {
    return *sizeBoxes_.emplace_back(std::make_unique<SizeBox>(box, std::move(grids), std::move(rules)));
}

SizeBox& ModuleFrame::addRowCountBox(TextBox& box, GridRows& rows, std::function<void()> onExcess) {
    auto& sizeBox = addSizeBox(box, {&rows.grid()},
                               {.most = rows.limit(),
                                .present = [&rows] { return rows.grid().rowCount(); },
                                .shape = [&rows](int count) { rows.setCount(count); },
                                .onExcess = std::move(onExcess)});
    rows.onCount = [&sizeBox] { sizeBox.settle(); };
    return sizeBox;
}

void ModuleFrame::addStart(const std::string& openButton, Rect place, const std::string& labelName) {
    auto& picture =
        add<Picture>("Image1", Rect{place.left, place.top, place.width, place.height - startLabelHeight});
    picture.image = wording_.name;
    seenIn(picture, {View::Start});
    auto& label = addLabel(
        labelName,
        "Open a file to begin processing. Look for example files in the directory " + suite().installFolder,
        {place.left, place.bottom() - startLabelHeight, place.width, startLabelHeight}, {View::Start});
    label.alignment = Alignment::Centre;
    cmdOpen = &addButton(openButton, "&Start", buttonPlace(0, 0), {View::Start, View::Data},
                         [this] { openProblem(); });
}

void ModuleFrame::addDataButtons(const DataButtons& buttons) {
    const auto data = {View::Data};
    cmdSave = &addButton("cmdSave", "Sa&ve data", buttonPlace(0, 1), data, [this] { saveProblem(); });
    cmdSolve = &addButton("cmdSolve", "&Solve", buttonPlace(0, 2), data, [this] { solve(); });
    if (!buttons.printData.empty())
        addButton(buttons.printData, "P&rint data", buttonPlace(0, 3), data, [this] { printData(); });
    cmdExit = &addButton("cmdExit", "E&xit", buttonPlace(0, 5), {View::Start, View::Data},
                         [this] { exitModule(); });
    if (buttons.rows) {
        addButton("cmdAdd", "&Add row", buttonPlace(1, 0), data, [this] { addRow(); });
        addButton("cmdDelete", "&Delete row", buttonPlace(1, 1), data, [this] { deleteRow(); });
    }
    if (!buttons.arithmetic.empty())
        addButton(buttons.arithmetic, "Colu&mn Arithmetic", buttons.arithmeticPlace, data,
                  [this] { computeColumn(); });
    if (buttons.spreadsheet)
        addButton("cmdExcel", "&Excel edit", buttons.excelPlace, data, [this] { excelEdit(); });
}

void ModuleFrame::addOutcomeButtons(std::initializer_list<View> views, const std::string& printReportName) {
    cmdContinue =
        &addButton("cmdContinue", "&Continue", buttonPlace(1, 0), views, [this] { continueToData(); });
    cmdPrintReport =
        &addButton(printReportName, "&Print", buttonPlace(1, 1), {View::Report}, [this] { printReport(); });
}

void ModuleFrame::addPrintPlot() {
    cmdPrintPlot =
        &addButton("cmdPrintPlot", "&Print", buttonPlace(1, 1), {View::Plot}, [this] { printPlotImage(); });
}

ReportScreen& ModuleFrame::addReport(const std::string& name) {
    report = &add<ReportScreen>(name, reportPlace);
    seenIn(*report, {View::Report});
    return *report;
}

// Views

void ModuleFrame::Seen::when(std::function<bool()> condition) const {
    control_.seen = [before = std::move(control_.seen), condition = std::move(condition)] {
        return before() && condition();
    };
}

ModuleFrame::Seen ModuleFrame::seenIn(Control& control, std::initializer_list<View> views) {
    control.seen = [this, views = std::vector<View>(views)] {
        return std::find(views.begin(), views.end(), view_) != views.end();
    };
    return Seen(control);
}

void ModuleFrame::enabledByOpen(Control& control) {
    control.usable = [this] { return opened(); };
}

void ModuleFrame::showView(View view) {
    view_ = view;
    if (isOutcome(view) && cmdContinue != nullptr) focus = cmdContinue;
    if (view == View::Data) focus = activeGrid();
}

// The grid in use

DataGrid* ModuleFrame::activeGrid() const {
    if (lastGrid_ != nullptr && lastGrid_->shown()) return lastGrid_;
    const auto shown =
        std::find_if(grids_.begin(), grids_.end(), [](DataGrid* grid) { return grid->shown(); });
    return shown == grids_.end() ? nullptr : *shown;
}

GridRows* ModuleFrame::activeRows() const {
    const DataGrid* grid = activeGrid();
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [grid](const auto& rows) { return &rows->grid() == grid; });
    return found == rows_.end() ? nullptr : found->get();
}

void ModuleFrame::addRow() {
    if (GridRows* rows = activeRows()) rows->add();
    focus = activeGrid();
}

void ModuleFrame::deleteRow() {
    const Busy busy(suite());
    if (GridRows* rows = activeRows()) rows->remove();
    focus = activeGrid();
}

void ModuleFrame::computeColumn() {
    DataGrid* grid = activeGrid();
    if (grid == nullptr) return;
    columnArithmetic(suite(), *grid, wording_.arithmetic);
    if (grid->onEdit) grid->onEdit();
    focus = grid;
}

void ModuleFrame::run(const Control& control, const std::function<void()>& handler) {
    forgetTyping(&control);
    const auto used = std::find(grids_.begin(), grids_.end(), &control);
    if (used != grids_.end()) lastGrid_ = *used;
    SuiteWindow::run(control, handler);
}

std::string ModuleFrame::errorPlace(const Control& control) const {
    const auto place = errorPlaces_.find(&control);
    return place != errorPlaces_.end() ? place->second : SuiteWindow::errorPlace(control);
}

/// The typing of a size is over, but for the box that is being typed in.
void ModuleFrame::forgetTyping(const Control* except) {
    for (const auto& sizeBox : sizeBoxes_)
        if (&sizeBox->box() != except) sizeBox->forget();
}

void ModuleFrame::restored() {
    forgetTyping();
    for (const DataGrid* grid : grids_) {
        if (grid->onMove) grid->onMove();
        if (grid->onEdit) grid->onEdit();
    }
}

// Files

FileDialog ModuleFrame::fileDialog(FileDialog::Kind kind) const {
    const bool saves = kind == FileDialog::Kind::Save;
    return {.kind = kind,
            .title = saves ? wording_.saveTitle : wording_.openTitle,
            .folder = suite().ioFolder,
            .filter = saves ? wording_.saveFilter : wording_.filter,
            .name = saves ? currentFile_ : ""};
}

void ModuleFrame::setCurrentFile(const std::string& path) {
    currentFile_ = trimmedRight(path);
    caption = wording_.name + " - " + currentFile_;
}

std::string ModuleFrame::readOrCreate() const {
    try {
        return readTextFile(pathOf(currentFile_));
    } catch (const RuntimeError& error) {
        if (error.number() != ErrorNumber::FileNotFound || defaultSkeleton().empty()) throw;
    }
    replaceFile(pathOf(currentFile_), defaultSkeleton());
    suite().platform.dialogs.failed(currentFile_ + " had to be made new");
    return readTextFile(pathOf(currentFile_));
}

void ModuleFrame::openProblem() {
    const std::optional<std::string> path =
        suite().platform.dialogs.chooseFile(fileDialog(FileDialog::Kind::Open));
    if (!path) return;
    setCurrentFile(*path);
    const Busy busy(suite());
    ItemReader reader(readOrCreate());
    showView(View::Data);
    cmdOpen->caption = "&Open file";
    forgetHistory();
    forgetTyping();
    readProblem(reader);
}

std::optional<std::string> ModuleFrame::chooseSaveName() {
    while (true) {
        const auto path = suite().platform.dialogs.chooseFile(fileDialog(FileDialog::Kind::Save));
        if (!path) return std::nullopt;
        const std::string bareName = upperCase(trimmed(textOf(pathOf(*path).filename())));
        if (!bareName.starts_with(wording_.filePrefix)) {
            message("Use the prefix " + wording_.filePrefix + " on the file name.", wording_.prefixTitle);
        } else if (mayBeSavedAs(bareName)) {
            return trimmedRight(*path);
        }
    }
}

bool ModuleFrame::saveProblem() {
    const std::optional<std::string> path = chooseSaveName();
    if (!path || !mayBeWritten()) return false;
    const Busy busy(suite());
    fillBlankCells();
    ItemWriter writer;
    writeProblem(writer);
    replaceFile(pathOf(*path), writer.text());
    setCurrentFile(*path);
    return true;
}

void ModuleFrame::fillBlankCells() {
    for (const auto& rows : rows_) fillBlanks(rows->grid());
}

void ModuleFrame::exitModule() {
    // A Save that is cancelled or fails leaves the window open: nothing that was typed is lost.
    if (!currentFile_.empty() && suite().asksYes("Save data?", wording_.exitTitle) && !saveProblem()) return;
    suite().platform.display.setBusyPointer(false);
    closed = true;
}

void ModuleFrame::close() {
    if (solver.isRunning()) return interrupt();
    if (cmdExit != nullptr) run(*cmdExit, [this] { exitModule(); });
}

void ModuleFrame::excelEdit() {
    const SpreadsheetWording& words = wording_.spreadsheet;
    message("In EXCEL, open the template file " + words.templateName +
                " in folder where VANTORE is installed.",
            words.title);
    if (!suite().platform.programs.startSpreadsheet())
        message("No spreadsheet program was found.  Install one, for example LibreOffice Calc.", words.title);
}

void ModuleFrame::backToData(const Message& fault) {
    message(fault.text, fault.title.empty() ? wording_.name : fault.title);
    continueToData();
}

// Reports and printing

void ModuleFrame::writeReportFile(const PrintLines& page, const std::string& name) {
    writeLines(suite().ioPath(name), page.lines());
}

void ModuleFrame::showReportFile(const ReportStyle& style, const std::string& name) {
    showReportLines(readReport(suite().ioPath(name)), style);
}

void ModuleFrame::showReportLines(const std::vector<std::string>& lines, const ReportStyle& style) {
    showView(View::Report);
    report->clear();
    const double scale = suite().scaleX;
    bool first = true;
    for (const std::string& text : lines) {
        ReportLine line{text, first && !style.starredHeadings ? style.title : style.body, colour::black};
        if (first && !style.starredHeadings) line.colour = style.titleColour;
        if (style.starredHeadings && text.starts_with('*')) {
            line.text = text.substr(1);
            line.font.bold = true;
            line.colour = style.titleColour;
        }
        line.font.size *= scale;
        report->add(std::move(line));
        first = false;
    }
}

void ModuleFrame::printReport() {
    printReportLines(readReport(suite().ioPath("OUTPUT.DAT")));
}

void ModuleFrame::printReportLines(const std::vector<std::string>& lines) {
    print(reportJob(wording_.name, lines));
}

/// The window as it goes on paper: white and without these buttons. However the printing ends, the window is
/// as before.
class ModuleFrame::OnPaper {
  public:
    OnPaper(ModuleFrame& frame, std::vector<const Control*> buttons) : frame_(frame) {
        frame_.offPaper_ = std::move(buttons);
        frame_.backColour = colour::brightWhite;
    }
    ~OnPaper() {
        frame_.offPaper_.clear();
        frame_.backColour = buttonFace;
    }
    OnPaper(const OnPaper&) = delete;
    OnPaper& operator=(const OnPaper&) = delete;

  private:
    ModuleFrame& frame_;
};

void ModuleFrame::printWindow() {
    try {
        PrintJob job{.title = wording_.name + (view() == View::Plot ? " plot" : " report")};
        printPictureToFitPage(job, suite().platform.printer, captureClient(suite().platform.display, *this));
        print(job);
    } catch (const RuntimeError&) {
        if (wording_.printFailure.empty()) throw;
        message(wording_.printFailure);
    }
}

void ModuleFrame::printWindowReport() {
    const OnPaper paper(*this, {cmdContinue, cmdPrintReport});
    message("Printing...  Click OK to continue");
    printWindow();
}

void ModuleFrame::printPlotImage() {
    suite().platform.display.setBusyPointer(false);
    const OnPaper paper(*this, {cmdContinue, cmdPrintPlot});
    suite().platform.clipboard.clear();
    suite().platform.clipboard.setPicture(captureClient(suite().platform.display, *this));
    const PrintQuestion& question = wording_.printQuestion;
    if (suite().asksYes(question.text, question.title) == question.yesPrints) printWindow();
}

void ModuleFrame::interrupt() {
    solver.interrupt();
}

} // namespace vantore
