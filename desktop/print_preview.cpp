#include "desktop/print_preview.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <exception>

#include "desktop/printing.h"
#include "drawing/fonts.h"
#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

constexpr const char* endOfPdf = "%%EOF";
constexpr int tailLength = 8; // bytes: the mark and its line end

/// The toolkit doesn't tell when a disk is full: a file without its end is not whole.
void checkWhole(const QString& path) {
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) throw RuntimeError(ErrorNumber::DeviceUnavailable);
    if (file.size() > tailLength) file.seek(file.size() - tailLength);
    if (!file.read(tailLength).contains(endOfPdf)) throw RuntimeError(ErrorNumber::DiskFull);
}

void shapeWindow(QPrintPreviewDialog& preview, const QString& title) {
    preview.setWindowTitle("Print - " + title);
    for (QAction* action : preview.findChildren<QAction*>())
        if (action->text() == "Print") action->setShortcut(QKeySequence::Print);
}

} // namespace

bool printWithPreview(const AskingPlace& place, const PrintJob& job) {
    const QString title = qtText(job.title);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(title);
    printer.setCreator("Vantore");
    printer.setOutputFileName(QDir(qtText(place.folder)).filePath(title + ".pdf"));
    printer.setPageLayout(pageLayout(orientationOf(job)));
    QPrintPreviewDialog preview(&printer, place.window);
    shapeWindow(preview, title);
    std::exception_ptr failure;
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, [&](QPrinter* paper) {
        failure = nullptr;
        try {
            printOn(*paper, job);
        } catch (...) {
            failure = std::current_exception(); // it may not cross the toolkit
        }
    });
    if (preview.exec() != QDialog::Accepted) return false;
    if (failure) std::rethrow_exception(failure);
    if (!printer.outputFileName().isEmpty()) checkWhole(printer.outputFileName());
    return true;
}

} // namespace vantore
