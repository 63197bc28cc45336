#include "desktop/desktop_session.h"

#include <QCoreApplication>
#include <QScreen>
#include <exception>

namespace vantore {

DesktopSession::DesktopSession(const std::string& installFolder, std::vector<ModuleEntry> modules)
    : platform_(windows_, *this), parts_(platform_.parts()), suite_(parts_, std::move(modules)),
      launcher_(suite_) {
    suite_.installFolder = installFolder;
}

bool DesktopSession::start() {
    step([this] { launcher_.load(); });
    if (launcher_.closed) return false;
    showOver(launcher_);
    return true;
}

/// At the top left of the screen, no larger than it.
void DesktopSession::showOver(Form& form) {
    FormWindow& window = windows_.open(form, *this);
    const QRect screen = window.screen()->availableGeometry();
    window.resize(window.sizeOn(screen));
    window.move(screen.topLeft());
    window.refresh();
    window.show();
    window.raise();
    window.activateWindow();
}

std::string DesktopSession::outputFolder() const {
    return suite_.ioFolder.empty() ? suite_.installFolder : suite_.ioFolder;
}

void DesktopSession::step(const std::function<void()>& action) {
    ++depth_;
    try {
        action();
    } catch (const std::exception& error) {
        report(error.what());
    }
    windows_.refresh();
    --depth_;
    settle();
}

/// A failure that no window has caught.
void DesktopSession::report(const char* text) {
    suite_.messageBx(text, "VANTORE");
}

/// Opens the window of a module that has come up, and lets one go that has closed. Both wait for the end of
/// the outermost action; the closed one also for its own events to end.
void DesktopSession::settle() {
    if (depth_ > 0) return;
    if (launcher_.closed) return QCoreApplication::quit();
    ModuleFrame* module = launcher_.module();
    if (module == nullptr) return;
    FormWindow* window = windows_.find(*module);
    if (module->closed) {
        if (window != nullptr) window->hide();
        QMetaObject::invokeMethod(
            this, [this] { unloadModule(); }, Qt::QueuedConnection);
    } else if (window == nullptr) {
        showOver(*module);
    }
}

void DesktopSession::unloadModule() {
    const ModuleFrame* module = launcher_.module();
    if (depth_ > 0 || module == nullptr || !module->closed) return;
    windows_.close(*module);
    launcher_.unloadClosedModule();
    windows_.refresh();
    if (FormWindow* window = windows_.front()) {
        window->raise();
        window->activateWindow();
    }
}

} // namespace vantore
