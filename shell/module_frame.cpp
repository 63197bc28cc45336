#include "shell/module_frame.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

#include "shell/base/text.h"
#include "shell/base/text_file.h"
#include "shell/capture.h"
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

const Font printedTitleFont{"Arial", 12, false};
const Font printedBodyFont{"Courier New", 10, false};
const Font printedDataTitleFont{"Arial", 14, false};
const Font printedDataFont{"Courier New", 12, false};

} // namespace

ModuleFrame::ModuleFrame(Suite& suite, ModuleNames names)
    : Form(names.name, suite.scale()), solver(suite, *this), suite_(suite), names_(std::move(names)) {
    caption = names_.name;
    rowTitles.module = exitTitle = names_.name;
    arithmetic = ArithmeticWording::usual(names_.name);
    printQuestion = {
        "Select YES to print.  Alternately, choose NO to copy image to the clipboard. Then, paste the "
        "clipboard image to another program such as WORD or POWERPOINT and print.",
        names_.name, true};
}

// Controls and views

Rect ModuleFrame::buttonPlace(int row, int column) {
    return {buttonLeft + column * buttonStep, buttonTop + row * buttonRowStep, buttonWidth, buttonHeight};
}

Button& ModuleFrame::addButton(const std::string& name, const std::string& buttonCaption, Rect place,
                               std::initializer_list<View> views, std::function<void()> onPress) {
    auto& button = add<Button>(name, place);
    button.caption = buttonCaption;
    button.onPress = std::move(onPress);
    seenIn(button, views);
    return button;
}

TextBox& ModuleFrame::addTextBox(const std::string& name, Rect place, const std::string& text) {
    auto& box = add<TextBox>(name, place);
    box.setText(text);
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

DataGrid& ModuleFrame::addMainGrid(const std::string& name, Rect place, int rowLimit) {
    auto& grid = add<DataGrid>(name, place);
    grid.rowLimit = rowLimit;
    grid.growsByRows = true;
    grid.onKey = [this, &grid](int code) { gridKeyPress(suite_, grid, code); };
    grid.onInsertKey = [this, &grid] { insertKeyRow(suite_, grid, rowTitles); };
    seenIn(grid, {View::Data});
    mainGrid_ = &grid;
    return grid;
}

void ModuleFrame::addStart(const std::string& openButton, Rect place) {
    auto& picture =
        add<Picture>("Image1", Rect{place.left, place.top, place.width, place.height - startLabelHeight});
    picture.image = names_.name;
    seenIn(picture, {View::Start});
    auto& label = addLabel(
        "lblStart",
        "Open a file to begin processing. Look for example files in the directory " + suite_.installFolder,
        {place.left, place.bottom() - startLabelHeight, place.width, startLabelHeight}, {View::Start});
    label.alignment = Alignment::Centre;
    cmdOpen = &addButton(openButton, "&Start", buttonPlace(0, 0), {View::Start, View::Data},
                         [this] { openProblem(); });
}

ReportScreen& ModuleFrame::addReport(const std::string& name) {
    report = &add<ReportScreen>(name, reportPlace);
    seenIn(*report, {View::Report});
    return *report;
}

void ModuleFrame::seenIn(Control& control, std::initializer_list<View> views) {
    std::erase_if(seen_, [&](const Seen& seen) { return seen.control == &control; });
    seen_.push_back({&control, views});
    control.visible = std::find(views.begin(), views.end(), view_) != views.end();
}

void ModuleFrame::enabledByOpen(Control& control) {
    enabledByOpen_.push_back(&control);
    control.enabled = view_ != View::Start;
}

void ModuleFrame::showView(View view) {
    view_ = view;
    for (const Seen& seen : seen_)
        seen.control->visible = std::find(seen.views.begin(), seen.views.end(), view) != seen.views.end();
    const bool outcome = view != View::Start && view != View::Data;
    if (outcome && cmdContinue != nullptr) focus = cmdContinue;
    if (view == View::Data && mainGrid_ != nullptr) focus = mainGrid_;
}

void ModuleFrame::run(const Control& control, const std::function<void()>& handler) {
    if (!handler) return;
    const auto place = errorPlaces_.find(&control);
    const std::string literal = place != errorPlaces_.end()
                                    ? place->second
                                    : " occurred in " + names_.name + ", " + control.name + ".";
    try {
        handler();
    } catch (const PlatformFailure&) {
        throw;
    } catch (const std::bad_alloc&) {
        reportRuntimeError("Out of memory", literal);
    } catch (const std::exception& error) {
        reportRuntimeError(error.what(), literal);
    }
}

void ModuleFrame::reportRuntimeError(const std::string& errorText, const std::string& place) {
    suite_.messageBx(errorText + place, names_.name);
    const bool outcome = view_ != View::Start && view_ != View::Data;
    if (outcome && cmdContinue != nullptr) cmdContinue->visible = true;
}

// Files

FileDialog ModuleFrame::fileDialog(FileDialog::Kind kind) const {
    const bool saves = kind == FileDialog::Kind::Save;
    return {kind, saves ? names_.saveTitle : names_.openTitle, suite_.ioFolder,
            saves && !names_.saveFilter.empty() ? names_.saveFilter : names_.filter};
}

void ModuleFrame::setCurrentFile(const std::string& path) {
    currentFile_ = trimmedRight(path);
    caption = names_.name + " - " + currentFile_;
}

std::string ModuleFrame::readOrCreate() {
    try {
        return readTextFile(pathOf(currentFile_));
    } catch (const RuntimeError& error) {
        if (error.number() != ErrorNumber::FileNotFound) throw;
    }
    replaceFile(pathOf(currentFile_), defaultSkeleton());
    return readTextFile(pathOf(currentFile_));
}

void ModuleFrame::openProblem() {
    const std::optional<std::string> path =
        suite_.platform.dialogs.chooseFile(fileDialog(FileDialog::Kind::Open));
    if (!path) {
        cmdOpen->visible = true;
        if (cmdExit != nullptr) cmdExit->visible = true;
        return;
    }
    setCurrentFile(*path);
    const Busy busy(suite_);
    ItemReader reader(readOrCreate());
    showView(View::Data);
    for (Control* control : enabledByOpen_) control->enabled = true;
    cmdOpen->caption = "&Open file";
    history().clear();
    readProblem(reader);
    history().clear();
}

std::optional<std::string> ModuleFrame::chooseSaveName() {
    while (true) {
        const auto path = suite_.platform.dialogs.chooseFile(fileDialog(FileDialog::Kind::Save));
        if (!path) return std::nullopt;
        const std::string bareName = upperCase(trimmed(textOf(pathOf(*path).filename())));
        if (!bareName.starts_with(names_.filePrefix)) {
            message("Use the prefix " + names_.filePrefix + " on the file name.");
        } else if (mayBeSavedAs(bareName)) {
            return trimmedRight(*path);
        }
    }
}

bool ModuleFrame::saveProblem() {
    const std::optional<std::string> path = chooseSaveName();
    if (!path || !mayBeWritten()) return false;
    const Busy busy(suite_);
    fillBlankCells();
    ItemWriter writer;
    writeProblem(writer);
    replaceFile(pathOf(*path), writer.text());
    setCurrentFile(*path);
    return true;
}

void ModuleFrame::fillBlankCells() {
    if (mainGrid_ != nullptr) fillBlanks(*mainGrid_);
}

void ModuleFrame::exitModule() {
    // A Save that is cancelled or fails leaves the window open: nothing that was typed is lost.
    if (!currentFile_.empty() && suite_.asksYes("Save data?", exitTitle) && !saveProblem()) return;
    suite_.platform.display.setBusyPointer(false);
    closing_ = true;
    closed = true;
}

void ModuleFrame::close() {
    if (solver.isRunning()) return interrupt();
    if (!closing_ && cmdExit != nullptr) run(*cmdExit, [this] { exitModule(); });
}

void ModuleFrame::excelEdit(const std::string& boxTitle, const std::string& templateName) {
    message("In EXCEL, open the template file " + templateName + " in folder where VANTORE is installed.",
            boxTitle);
    if (!suite_.platform.programs.startSpreadsheet())
        message("No spreadsheet program was found.  Install one, for example LibreOffice Calc.", boxTitle);
}

void ModuleFrame::addRow() {
    if (mainGrid_ == nullptr) return;
    history().clear();
    addGridRow(suite_, *mainGrid_, rowTitles);
}

void ModuleFrame::deleteRow() {
    if (mainGrid_ == nullptr) return;
    history().clear();
    const Busy busy(suite_);
    deleteGridRow(suite_, *mainGrid_, rowTitles);
}

void ModuleFrame::continueToData() {
    showView(View::Data);
}

// Reports and printing

void ModuleFrame::writeReportFile(const PrintLines& page, const std::string& name) {
    writeLines(suite_.ioPath(name), page.lines());
}

void ModuleFrame::showReportFile(const ReportStyle& style, const std::string& name) {
    showReportLines(readReport(suite_.ioPath(name)), style);
}

void ModuleFrame::showReportLines(const std::vector<std::string>& lines, const ReportStyle& style) {
    showView(View::Report);
    report->clear();
    const double scale = suite_.scaleX;
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

void ModuleFrame::printReportFile() {
    printReportLines(readReport(suite_.ioPath("OUTPUT.DAT")));
}

void ModuleFrame::printReportLines(const std::vector<std::string>& lines) {
    PrintJob job{.title = names_.name};
    bool first = true;
    for (const std::string& line : lines) {
        job.print(line, first ? printedTitleFont : printedBodyFont);
        first = false;
    }
    print(job);
}

PrintJob ModuleFrame::dataPrint(const std::string& title) const {
    PrintJob job{.title = names_.name};
    job.print("", printedDataFont);
    job.print(title, printedDataTitleFont);
    job.print("", printedDataFont);
    return job;
}

void ModuleFrame::printOn(PrintJob& job, const PrintLines& page) {
    for (const std::string& line : page.lines()) job.print(line, printedDataFont);
}

/// The window as it goes on paper: white and without these buttons. However the printing ends, the window is
/// as before.
class ModuleFrame::OnPaper {
  public:
    OnPaper(ModuleFrame& frame, std::vector<Button*> buttons) : frame_(frame), buttons_(std::move(buttons)) {
        show(false, colour::brightWhite);
    }
    ~OnPaper() { show(true, buttonFace); }
    OnPaper(const OnPaper&) = delete;
    OnPaper& operator=(const OnPaper&) = delete;

  private:
    void show(bool buttonsShown, int colour) {
        for (Button* button : buttons_) button->visible = buttonsShown;
        frame_.backColour = colour;
    }

    ModuleFrame& frame_;
    std::vector<Button*> buttons_;
};

void ModuleFrame::printWindow() {
    try {
        PrintJob job{.title = names_.name};
        printPictureToFitPage(job, suite_.platform.printer, captureClient(suite_.platform.display, *this));
        print(job);
    } catch (const RuntimeError&) {
        if (printFailure.empty()) throw;
        message(printFailure);
    }
}

void ModuleFrame::printWindowReport(Button& printButton) {
    const OnPaper paper(*this, {cmdContinue, &printButton});
    message("Printing...  Click OK to continue");
    printWindow();
}

void ModuleFrame::printPlotImage() {
    suite_.platform.display.setBusyPointer(false);
    const OnPaper paper(*this, {cmdContinue, cmdPrintPlot});
    suite_.platform.clipboard.clear();
    suite_.platform.clipboard.setPicture(captureClient(suite_.platform.display, *this));
    if (suite_.asksYes(printQuestion.text, printQuestion.title) == printQuestion.yesPrints) printWindow();
}

// Solvers

void ModuleFrame::interrupt() {
    solver.interrupt();
}

} // namespace vantore
