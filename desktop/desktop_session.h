#pragma once

#include <QObject>
#include <memory>
#include <string>

#include "desktop/desktop_platform.h"
#include "desktop/keyboard_keeper.h"
#include "desktop/windows.h"
#include "shell/launcher.h"
#include "shell/suite.h"

namespace vantore {

/// The suite on the desktop from its start to its end.
class DesktopSession : public QObject, public WindowSteps {
  public:
    DesktopSession(const std::string& installFolder, std::vector<ModuleEntry> modules);

    ~DesktopSession() override { windows_.closeAll(); }
    DesktopSession(const DesktopSession&) = delete;
    DesktopSession& operator=(const DesktopSession&) = delete;

    /// Starts the launcher and shows its window. False when the suite can't go on.
    bool start();

    void step(const std::function<void()>& action) override;
    std::string outputFolder() const override;

    const Launcher& launcher() const { return launcher_; }
    Windows& windows() { return windows_; }

  private:
    void showOver(Form& form);
    void settle();
    void unloadModule();
    void report(const char* text);

    Windows windows_;
    KeyboardKeeper keyboard_{windows_};
    DesktopPlatform platform_;
    Platform parts_;
    Suite suite_;
    Launcher launcher_;
    int depth_ = 0; ///< of actions within actions: a button pressed while a solver runs
};

} // namespace vantore
