#include "desktop/exports.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QWidget>
#include <optional>

#include "desktop/drawing.h"
#include "desktop/drawing_export.h"
#include "desktop/file_dialogs.h"
#include "desktop/fonts.h"
#include "desktop/print_window.h"
#include "desktop/printing.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr double printedPixelsPerUnit = 4;
constexpr double copiedPixelsPerUnit = 2;

std::optional<std::string> fileToSave(const AskingPlace& place, const char* title, const char* filter,
                                      const QString& name) {
    return chooseFile(
        place.window,
        {.kind = FileDialog::Kind::Save, .title = title, .folder = place.folder, .filter = filter}, name);
}

/// A report's fonts are the screen's; on paper the design's own sizes stand.
PrintedLine onPaper(const ReportLine& line, double scale) {
    PrintedLine printed{line.text, line.font, line.colour};
    printed.font.size /= scale;
    return printed;
}

} // namespace

bool printWithPreview(const AskingPlace& place, const PrintJob& job) {
    PrintWindow print(place.window, job, qtText(place.folder));
    if (print.exec() != QDialog::Accepted) return false;
    print.print();
    return true;
}

void saveReportAs(const AskingPlace& place, const Form& form, const ReportScreen& report) {
    const auto path = fileToSave(place, "Save report as text", "Text file (*.txt)|*.txt|",
                                 qtText(form.name()) + " report.txt");
    if (!path) return;
    std::string text;
    for (const ReportLine& line : report.lines()) text.append(line.text).append("\r\n");
    replaceFile(pathOf(*path), text);
}

void printReport(const AskingPlace& place, const Form& form, const ReportScreen& report) {
    PrintJob job{.title = form.name()};
    for (const ReportLine& line : report.lines()) job.operations.emplace_back(onPaper(line, form.scale().x));
    printWithPreview(place, job);
}

void copyDrawing(const Form& form, const Control& drawing) {
    QGuiApplication::clipboard()->setImage(imageOf(form, drawing, copiedPixelsPerUnit));
}

void saveDrawingAs(const AskingPlace& place, const Form& form, const Control& drawing) {
    const auto path = fileToSave(place, "Save picture",
                                 "Drawing (*.svg)|*.svg|Picture (*.png)|*.png|PDF document (*.pdf)|*.pdf|",
                                 qtText(form.name()) + " plot.svg");
    if (path) saveDrawing(form, drawing, pathOf(*path));
}

void printDrawing(const AskingPlace& place, const Form& form, const Control& drawing) {
    const QSizeF units = unitsOf(form, drawing);
    PrintJob job{.title = form.name()};
    if (units.width() > units.height()) job.orientation = Orientation::Landscape;
    const Printer::Area room = printableArea(pageLayout(job.orientation));
    const QSizeF size = units.scaled(QSizeF(room.width, room.height), Qt::KeepAspectRatio);
    job.operations.emplace_back(
        PrintedPicture{pictureOf(imageOf(form, drawing, printedPixelsPerUnit)), size.width(), size.height()});
    printWithPreview(place, job);
}

} // namespace vantore
