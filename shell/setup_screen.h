#pragma once

#include <string>

#include "shell/suite_window.h"

namespace vantore {

/// `IniSetup`: notes on how the suite and its display are to be set up, and the checks of the folder's name
/// and of the display, the language and the theme.
class SetupScreen : public SuiteWindow {
  public:
    explicit SetupScreen(Suite& suite);
    ~SetupScreen() override { suite().setupOpen = false; }
    SetupScreen(const SetupScreen&) = delete;
    SetupScreen& operator=(const SetupScreen&) = delete;

    /// Fills the notes and makes the checks.
    void load();

    /// Closing it by its title bar is as Continue.
    void close() override;

    /// The folder screen has gone: the notes name the folder that it leaves.
    void uncovered() override { load(); }

  protected:
    std::string errorTitle() const override { return "VANTORE"; }

  private:
    void addControls();
    void fillNotes();
    void addHeading(const std::string& text);
    void addParagraph(const std::string& text);

    void checkFolderName();
    void checkResolution();
    void checkDotsPerInch();
    void checkLanguage();
    void checkTheme();

    void setScreen();
    void takeResolution();
    void changeResolution();
    void keepResolution();
    void testFolder();
    void askAboutTheme();
    void openDisplaySettings(int page);
    void reportClosing();

    void finish();

    ReportScreen* notes_ = nullptr;
    CheckBox* checkBox_ = nullptr;
    Button* continue_ = nullptr;
    Button* screen_ = nullptr;
    Settings::Resolution display_; ///< as the system told last
};

/// Opens the set-up screen over the window in front.
void openSetupScreen(Suite& suite);

} // namespace vantore
