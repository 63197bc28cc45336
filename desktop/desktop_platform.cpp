#include "desktop/desktop_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFontMetricsF>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "desktop/drawing_export.h"
#include "desktop/exports.h"
#include "desktop/file_dialogs.h"
#include "desktop/fonts.h"
#include "desktop/printing.h"
#include "desktop/programs.h"
#include "processes/child_process.h"
#include "processes/folder_lock.h"
#include "shell/dialog_form.h"

namespace vantore {

namespace {

constexpr int waitForEvents = 5;    // milliseconds
constexpr int refreshInterval = 50; // milliseconds
constexpr double manyPixels = 1e6;

/// The pointer as it should be while the user is asked something in the middle of a busy step.
class NormalPointer {
  public:
    NormalPointer() : busy_(QGuiApplication::overrideCursor() != nullptr) {
        if (busy_) QGuiApplication::restoreOverrideCursor();
    }
    ~NormalPointer() {
        if (busy_) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    NormalPointer(const NormalPointer&) = delete;
    NormalPointer& operator=(const NormalPointer&) = delete;

  private:
    bool busy_;
};

/// A dialog over a window that is drawn smaller than its design is as much smaller itself, about the same
/// centre.
void placeDialog(FormWindow& window, const DialogForm& dialog, double zoom) {
    const QSize design = window.designSize();
    const QSize size = design * zoom;
    const auto left = static_cast<int>(dialog.left / twipsPerPixel);
    const auto top = static_cast<int>(dialog.top / twipsPerPixel);
    window.setFixedSize(size);
    window.move(left + (design.width() - size.width()) / 2, top + (design.height() - size.height()) / 2);
}

} // namespace

// Dialogs

void DesktopPlatform::showModal(DialogForm& dialog) {
    const NormalPointer pointer;
    windows_.refresh(); // what has been drawn so far is seen behind the question
    const FormWindow* behind = windows_.front();
    const double zoom = behind == nullptr ? 1 : std::min(1.0, behind->zoom());
    FormWindow& window = windows_.open(dialog, steps_);
    window.behaveAsDialog();
    placeDialog(window, dialog, zoom);
    QEventLoop loop;
    window.onClosed = [&loop] { loop.quit(); };
    window.refresh();
    window.show();
    window.activateWindow();
    while (!dialog.closed) loop.exec();
    windows_.close(dialog);
}

std::optional<std::string> DesktopPlatform::chooseFile(const FileDialog& dialog) {
    const NormalPointer pointer;
    windows_.refresh();
    return vantore::chooseFile(windows_.front(), dialog);
}

// Printer

Printer::Area DesktopPlatform::printableArea(Orientation orientation) const {
    return vantore::printableArea(pageLayout(orientation));
}

void DesktopPlatform::print(const PrintJob& job) {
    const NormalPointer pointer;
    windows_.refresh();
    printWithPreview({windows_.front(), steps_.outputFolder()}, job);
}

// Clipboard

void DesktopPlatform::clear() {
    QGuiApplication::clipboard()->clear();
}

void DesktopPlatform::setText(const std::string& text) {
    QGuiApplication::clipboard()->setText(qtText(text));
}

void DesktopPlatform::setPicture(const CapturedPicture& picture) {
    QGuiApplication::clipboard()->setImage(imageOf(picture));
}

// Programs

std::unique_ptr<RunningProgram> DesktopPlatform::start(const std::filesystem::path& program,
                                                       const std::filesystem::path& folder,
                                                       const std::vector<Variable>& environment) {
    return startProcess(program, folder, environment);
}

std::unique_ptr<FolderLock> DesktopPlatform::lock(const std::filesystem::path& folder) {
    return lockFolder(folder);
}

bool DesktopPlatform::startSpreadsheet() {
    return startSpreadsheetProgram();
}

// Display

Extent DesktopPlatform::screen() const {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width() * twipsPerPixel, size.height() * twipsPerPixel};
}

Extent DesktopPlatform::textExtent(const std::string& text, const Font& font, double width) const {
    const QFontMetricsF metrics(qtFont(font));
    const QRectF room(0, 0, width / twipsPerPixel, manyPixels);
    const QRectF needed = metrics.boundingRect(room, Qt::TextWordWrap, qtText(text));
    return {std::ceil(needed.width()) * twipsPerPixel, std::ceil(needed.height()) * twipsPerPixel};
}

Display::PixelRect DesktopPlatform::clientArea(const Form& form) const {
    const FormWindow* window = windows_.find(form);
    if (window == nullptr) return {};
    const QSizeF size = QSizeF(window->canvas().size()) * window->devicePixelRatioF();
    return {0, 0, static_cast<int>(size.width()), static_cast<int>(size.height())};
}

CapturedPicture DesktopPlatform::capture(const Form& form, const PixelRect& area) {
    FormWindow* window = windows_.find(form);
    if (window == nullptr) return {};
    window->refresh();
    const QImage client = window->canvas().grab().toImage();
    return pictureOf(client.copy(area.left, area.top, area.width, area.height));
}

void DesktopPlatform::setBusyPointer(bool busy) {
    const bool isBusy = QGuiApplication::overrideCursor() != nullptr;
    if (busy && !isBusy) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (!busy && isBusy) QGuiApplication::restoreOverrideCursor();
}

void DesktopPlatform::beep() {
    QApplication::beep();
}

void DesktopPlatform::processEvents() {
    if (!sinceRefresh_.isValid() || sinceRefresh_.elapsed() >= refreshInterval) {
        windows_.refresh();
        sinceRefresh_.start();
    }
    QEventLoop loop;
    QTimer::singleShot(waitForEvents, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace vantore
