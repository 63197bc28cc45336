#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "shell/base/driver_file.h"
#include "shell/forms/control.h"
#include "shell/platform.h"
#include "shell/windows.h"

namespace vantore {

class Suite;

/// How a module comes to be: by its caption on the launcher.
struct ModuleEntry {
    std::string caption;
    std::function<std::unique_ptr<Form>(Suite&)> create;
};

/// Thrown when a question is closed by its title bar or by Escape: what asked stops, and the window in which
/// it was asked stays as it is. Nobody is told.
struct Unanswered {};

/// How far the question about the display's theme has come.
enum class ThemeCheck { NotYet, Found, Asked };

/// The state that every window of the suite shares, and the dialogs through which all of them talk to the
/// user.
class Suite {
  public:
    Suite(Platform& outside, std::vector<ModuleEntry> modules);

    std::string ioFolder;      ///< Input/output folder, ends in a separator.
    std::string installFolder; ///< The program's folder, without one.
    double screenWidth = 0;    ///< The resolution that the program is set to, in pixels.
    double screenHeight = 0;
    double scaleX = 1; ///< Screen width / 800 and height / 600 once a resolution has been read.
    double scaleY = 1;
    std::string screenSetting;          ///< "1024x768" in form, or "NO SETTING".
    double setupDone = 0;               ///< 0 shows the set-up screen at start.
    std::array<int, 13> installDrive{}; ///< A flag for each drive letter A to M.
    bool setupOpen = false;             ///< The set-up screen is open.
    ThemeCheck themeAsked = ThemeCheck::NotYet;

    Platform& platform;
    Windows windows;

    Scale scale() const { return {scaleX, scaleY}; }

    /// A file of `ioFolder` or `installFolder`, its name found without regard to the case of letters.
    std::filesystem::path ioPath(std::string_view name) const;
    std::filesystem::path installPath(std::string_view name) const;

    /// `VANTORE.DRV` in `installFolder`.
    std::filesystem::path drvFile() const;

    /// What VANTORE.DRV holds of the shared state.
    DriverSettings driverSettings() const { return {ioFolder, screenWidth, screenHeight, setupDone}; }

    /// The scale factors that belong to a resolution.
    void setScale(double width, double height);

    /// Shows a message with one OK button. `size` is the font size in points.
    void messageBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                   double size);

    /// Asks a question; 6 for Yes, 7 for No. Unanswered when it is closed otherwise.
    int yesNoBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                double size);

    /// Asks for a text; empty on Cancel.
    std::string inputBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                        double size, const std::string& defaultText);

    /// The same with the alignment and the size that nearly every caller uses.
    void messageBx(const std::string& prompt, const std::string& title);
    bool asksYes(const std::string& prompt, const std::string& title);
    std::string inputBx(const std::string& prompt, const std::string& title, const std::string& defaultText);

    const std::vector<ModuleEntry>& modules() const { return modules_; }

  private:
    double dialogFontSize() const { return 8 * scaleX; }

    std::vector<ModuleEntry> modules_;
};

} // namespace vantore
