#include "desktop/desktop_session.h"

#include <QCoreApplication>
#include <QScreen>
#include <exception>

#include "shell/launcher.h"

namespace vantore {

DesktopSession::DesktopSession(const std::string& installFolder, std::vector<ModuleEntry> modules)
    : platform_(windows_, *this), parts_(platform_.parts()), suite_(parts_, std::move(modules)) {
    suite_.installFolder = installFolder;
}

bool DesktopSession::start() {
    auto owned = std::make_unique<Launcher>(suite_);
    Launcher& launcher = *owned;
    suite_.windows.open(std::move(owned));
    ++depth_; // nothing is shown before the start is over
    step([&] { launcher.load(); });
    --depth_;
    if (launcher.closed) return false;
    settle();
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
    } catch (const Unanswered&) {
        // What asked has stopped.
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

/// Opens the windows of forms that have come up, and lets closed ones go. Both wait for the end of the
/// outermost action; a closed one also for its own events to end.
void DesktopSession::settle() {
    if (depth_ > 0) return;
    bool closed = false;
    for (const auto& form : suite_.windows.forms()) {
        FormWindow* window = windows_.find(*form);
        if (form->closed && window != nullptr) window->hide();
        if (!form->closed && window == nullptr) showOver(*form);
        closed = closed || form->closed;
    }
    if (closed)
        QMetaObject::invokeMethod(
            this, [this] { unloadClosed(); }, Qt::QueuedConnection);
}

void DesktopSession::unloadClosed() {
    if (depth_ > 0) return;
    for (const auto& form : suite_.windows.forms())
        if (form->closed) windows_.close(*form);
    step([this] { suite_.windows.unloadClosed(); });
    if (suite_.windows.empty()) return QCoreApplication::quit();
    FormWindow* window = windows_.front();
    window->raise();
    window->activateWindow();
}

} // namespace vantore
