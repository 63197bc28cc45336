#pragma once

#include <string_view>

#include "shell/base/driver_file.h"
#include "shell/suite_window.h"

namespace vantore {

/// `frmVantore`, the first window of the suite: it settles the folder and the scale factors from
/// VANTORE.DRV and opens the modules, one at a time, each from its button, and the two screens.
class Launcher : public SuiteWindow {
  public:
    explicit Launcher(Suite& suite);

    /// The start of the program: reads VANTORE.DRV, asks and reports what it must, and opens the set-up
    /// screen where it is due. When it can't go on, `closed` is set.
    void load();

    /// The module button with that caption, nullptr when there is none.
    Button* moduleButton(std::string_view moduleCaption) const;

    void close() override { exit(); }

    /// A screen may have chosen another folder.
    void uncovered() override { showFolder(); }

  protected:
    std::string errorTitle() const override { return "VANTORE"; }

  private:
    enum class Attempt { Read, NoFolder, FirstRun };

    void fillScreen();
    void addTitle();
    void addModuleButtons();
    void addCommands();
    void openModule(const ModuleEntry& entry);
    Attempt readDriverFile();
    Attempt replaceDriverFile(ErrorNumber reason);
    Attempt attemptAfter(const RuntimeError& error);
    Attempt readSettings(DriverReader reader);
    void showFolder();
    void markInstallDrive();
    void settleScale();
    void showHelp();
    void setUpAgain();
    void exit();
    DriverSettings defaultSettings() const;

    Label* txtDir_ = nullptr;
};

} // namespace vantore
