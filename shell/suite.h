#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/forms/control.h"
#include "shell/platform.h"

namespace vantore {

class ModuleFrame;
class Suite;

/// How a module comes to be: by its caption on the launcher.
struct ModuleEntry {
    std::string caption;
    std::function<std::unique_ptr<ModuleFrame>(Suite&)> create;
};

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
    std::string screenSetting;                  ///< "1024x768" in form, or "NO SETTING".
    double setupDone = 0;                       ///< 0 shows the set-up screen at start.
    std::array<int, 13> installDrive{};         ///< A flag for each drive letter A to M.
    std::variant<int, std::string> dialogReply; ///< 6 or 7 of the last question, or the last input.

    Platform& platform;

    Scale scale() const { return {scaleX, scaleY}; }

    /// A file of `ioFolder` or `installFolder`, its name found without regard to the case of letters.
    std::filesystem::path ioPath(std::string_view name) const;
    std::filesystem::path installPath(std::string_view name) const;

    /// `VANTORE.DRV` in `installFolder`.
    std::filesystem::path drvFile() const;

    /// Shows a message with one OK button. `size` is the font size in points.
    void messageBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                   double size);

    /// Asks a question; 6 for Yes, 7 for No. The answer is left in `dialogReply` too.
    int yesNoBx(const std::string& prompt, const std::string& title, const std::string& alignment,
                double size);

    /// Asks for a text; empty on Cancel. The answer is left in `dialogReply` too.
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
