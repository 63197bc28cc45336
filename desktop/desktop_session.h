#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "desktop/desktop_platform.h"
#include "desktop/keyboard_keeper.h"
#include "desktop/open_windows.h"
#include "shell/suite.h"

namespace vantore {

/// The suite on the desktop from its start to its end.
class DesktopSession : public QObject, public WindowSteps {
  public:
    DesktopSession(const std::string& installFolder, std::vector<ModuleEntry> modules);

    ~DesktopSession() override { windows_.closeAll(); }
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    /// Starts the launcher and shows what it opens. False when the suite can't go on.
    bool start();

    void step(const std::function<void()>& action) override;
    std::string outputFolder() const override;

    const Suite& suite() const { return suite_; }
    OpenWindows& windows() { return windows_; }

  private:
    void showOver(Form& form);
    void settle();
    void unloadClosed();
    void report(const char* text);

    OpenWindows windows_;
    KeyboardKeeper keyboard_{windows_};
    DesktopPlatform platform_;
    Platform parts_;
    Suite suite_;
    int depth_ = 0; ///< of actions within actions: a button pressed while a solver runs
};

} // namespace vantore
