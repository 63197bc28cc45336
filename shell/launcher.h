#pragma once

#include <memory>
#include <string>

#include "shell/base/driver_file.h"
#include "shell/forms/form.h"
#include "shell/module_frame.h"
#include "shell/suite.h"

namespace vantore {

/// `frmVantore`, the first window of the suite: it settles the folder and the scale factors from
/// VANTORE.DRV and opens the modules, one at a time, each from its button.
class Launcher : public Form {
  public:
    explicit Launcher(Suite& suite);

    /// The start of the program: reads VANTORE.DRV, asks and reports what it must.
    /// When it can't go on, `closed` is set.
    void load();

    /// The open module, nullptr when there is none.
    ModuleFrame* module() const { return module_.get(); }

    /// The module button with that caption, nullptr when there is none.
    Button* moduleButton(std::string_view moduleCaption) const;

    /// Unloads a module that has closed, and comes to the front again. Called after each of a user's steps.
    void unloadClosedModule();

    void close() override { exit(); }

  private:
    enum class Attempt { Read, NoFolder, FirstRun };

    void fillScreen();
    void addTitle();
    void addModuleButtons();
    void addCommands();
    void openModule(const ModuleEntry& entry);
    Attempt readDriverFile();
    Attempt readSettings(DriverReader reader);
    void markInstallDrive();
    void settleScale();
    void showHelp();
    void exit();
    DriverSettings defaultSettings() const;

    Suite& suite_;
    std::unique_ptr<ModuleFrame> module_;
    Label* txtDir_ = nullptr;
};

} // namespace vantore
