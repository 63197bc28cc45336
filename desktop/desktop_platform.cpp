#include "desktop/desktop_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QEventLoop>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QLocale>
#include <QScreen>
#include <QStorageInfo>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "desktop/dialog_place.h"
#include "desktop/dialog_window.h"
#include "desktop/file_dialogs.h"
#include "desktop/print_preview.h"
#include "desktop/printing.h"
#include "desktop/programs.h"
#include "drawing/drawing_export.h"
#include "drawing/fonts.h"
#include "processes/child_process.h"
#include "processes/folder_lock.h"

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

/// What a dialog over the window asks about: what its form says, else a drawing or grid with a result.
const Control* askedAbout(const Form& form) {
    if (form.askedAbout != nullptr) return form.askedAbout;
    for (const auto& control : form.controls()) {
        const auto* surface = dynamic_cast<const PictureSurface*>(control.get());
        const bool drawn = surface != nullptr && !surface->operations().empty();
        const bool grid = dynamic_cast<const DataGrid*>(control.get()) != nullptr && control->result;
        if (control->shown() && (drawn || grid)) return control.get();
    }
    return nullptr;
}

QRect placeOver(FormWindow* behind, const DialogWindow& dialog) {
    const QRect screen = dialog.screen()->availableGeometry();
    const Control* control = behind == nullptr ? nullptr : askedAbout(behind->form());
    QWidget* widget = control == nullptr ? nullptr : behind->widgetOf(*control);
    AskedAbout about;
    if (widget != nullptr)
        about = {QRect(widget->mapToGlobal(QPoint(0, 0)), widget->size()), widget->grab().toImage()};
    return dialogPlace(dialog.size(), dialog.toldMiddle(), screen, about);
}

/// What the window's surfaces and charts show, for paper; nullptr where it has none.
std::shared_ptr<const Drawing> drawingOf(const Form& form) {
    auto drawing = Drawing::ofWindow(form);
    return drawing ? std::make_shared<const Drawing>(std::move(*drawing)) : nullptr;
}

} // namespace

// Dialogs

void DesktopPlatform::showModal(DialogForm& dialog) {
    const NormalPointer pointer;
    windows_.refresh(); // what has been drawn so far is seen behind the question
    FormWindow* behind = windows_.front();
    DialogWindow window(dialog, steps_, behind, behind == nullptr ? 1 : behind->zoom());
    window.move(placeOver(behind, window).topLeft());
    window.exec();
}

std::optional<std::string> DesktopPlatform::chooseFile(const FileDialog& dialog) {
    const NormalPointer pointer;
    windows_.refresh();
    return vantore::chooseFile(windows_.front(), dialog, Overwriting::ProposedUnasked);
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
    CapturedPicture picture = pictureOf(client.copy(area.left, area.top, area.width, area.height));
    if (area == clientArea(form)) picture.drawing = drawingOf(form);
    return picture;
}

void DesktopPlatform::setBusyPointer(bool busy) {
    const bool isBusy = QGuiApplication::overrideCursor() != nullptr;
    if (busy && !isBusy) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    if (!busy && isBusy) QGuiApplication::restoreOverrideCursor();
}

// Settings

Settings::Resolution DesktopPlatform::resolution() const {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return {size.width(), size.height()};
}

int DesktopPlatform::dotsPerInch() const {
    return static_cast<int>(std::lround(QGuiApplication::primaryScreen()->logicalDotsPerInchY()));
}

std::optional<std::string> DesktopPlatform::language() const {
    const QLocale::Language language = QLocale::system().language();
    return utf8Text(QLocale::languageToString(language == QLocale::C ? QLocale::English : language));
}

void DesktopPlatform::openDisplaySettings(int /*page*/) {
    startDisplaySettingsProgram();
}

std::vector<std::string> DesktopPlatform::volumes() const {
    std::vector<std::string> roots = {"/"};
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        const bool disk = volume.isValid() && volume.isReady() && volume.device().startsWith("/dev/");
        if (disk && QFileInfo(volume.rootPath()).isDir() && !volume.isRoot())
            roots.push_back(utf8Text(volume.rootPath()));
    }
    return roots;
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
