#include "desktop/exports.h"

#include <QClipboard>
#include <QGuiApplication>
#include <optional>

#include "desktop/file_dialogs.h"
#include "drawing/drawing_export.h"
#include "drawing/fonts.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr double copiedPixelsPerUnit = 2;

std::optional<std::string> fileToSave(const AskingPlace& place, const char* title, const char* filter,
                                      const std::string& name) {
    return chooseFile(place.window, {FileDialog::Kind::Save, title, place.folder, filter, name});
}

/// A report's fonts are the screen's; on paper the design's own sizes stand.
PrintedLine onPaper(const ReportLine& line, double scale) {
    PrintedLine printed{line.text, line.font, line.colour};
    printed.font.size /= scale;
    return printed;
}

} // namespace

void saveReportAs(const AskingPlace& place, const Form& form, const ReportScreen& report) {
    const auto path =
        fileToSave(place, "Save report as text", "Text file (*.txt)|*.txt|", form.name() + " report.txt");
    if (!path) return;
    std::string text;
    for (const ReportLine& line : report.lines()) text.append(line.text).append("\r\n");
    replaceFile(pathOf(*path), text);
}

void printReport(const AskingPlace& place, const Form& form, const ReportScreen& report) {
    PrintJob job{.title = form.name() + " report"};
    for (const ReportLine& line : report.lines()) job.operations.emplace_back(onPaper(line, form.scale().x));
    printWithPreview(place, job);
}

void copyDrawing(const Form& form, const Control& drawing) {
    QGuiApplication::clipboard()->setImage(imageOf(Drawing(form, drawing), copiedPixelsPerUnit));
}

void saveDrawingAs(const AskingPlace& place, const Form& form, const Control& drawing) {
    const auto path = fileToSave(place, "Save picture",
                                 "Drawing (*.svg)|*.svg|Picture (*.png)|*.png|PDF document (*.pdf)|*.pdf|",
                                 form.name() + " plot.svg");
    if (path) saveDrawing(Drawing(form, drawing), form.caption, pathOf(*path));
}

void printDrawing(const AskingPlace& place, const Form& form, const Control& drawing) {
    const auto page = std::make_shared<const Drawing>(form, drawing);
    PrintJob job{.title = form.name() + " plot"};
    if (page->size().width() > page->size().height()) job.orientation = Orientation::Landscape;
    job.operations.emplace_back(PrintedPicture{.picture = {.drawing = page}});
    printWithPreview(place, job);
}

} // namespace vantore
