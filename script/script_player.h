#pragma once

#include <filesystem>
#include <functional>
#include <istream>
#include <map>
#include <memory>
#include <ostream>
#include <string>

#include "script/script_line.h"
#include "script/script_platform.h"
#include "shell/launcher.h"
#include "shell/suite.h"

namespace vantore {

/// Writes a picture surface or a chart as an SVG file.
using SvgWriter =
    std::function<void(const Form& form, const Control& drawing, const std::filesystem::path& file)>;

/// Where and how a script is played.
struct ScriptSettings {
    std::string ioFolder;      ///< Ends in a separator; empty: VANTORE.DRV's.
    std::string installFolder; ///< Without a separator at its end.
    int screenWidth = 800;     ///< pixels
    int screenHeight = 600;
    bool strict = false; ///< A failed step ends the script.
    SvgWriter writeSvg;  ///< Empty in a build that can't draw.
};

/// Plays a script: the suite's own windows, a user's actions from the script, the transcript to `out`.
class ScriptPlayer {
  public:
    ScriptPlayer(const ScriptSettings& settings, std::ostream& out);

    /// Plays to the end. PlatformFailure ("line 12: ...") at the step that stops it.
    void play(std::istream& script);

    /// The launcher, which stands behind all other windows, and the window in front; nullptr once the program
    /// has ended.
    const Launcher* launcher() const { return launcher_; }
    Form* front() const { return suite_.windows.front(); }

  private:
    using Command = void (ScriptPlayer::*)(ScriptLine&);
    static const std::map<std::string, Command, std::less<>>& commands();

    void step(std::string_view line);

    void startLauncher(ScriptLine& line);
    void openModule(ScriptLine& line);
    void queueFile(ScriptLine& line);
    void queueAnswer(ScriptLine& line);
    void press(ScriptLine& line);
    void type(ScriptLine& line);
    void typeKeys(ScriptLine& line);
    void leave(ScriptLine& line);
    void typeCell(ScriptLine& line);
    void makeCurrent(ScriptLine& line);
    void selectBlock(ScriptLine& line);
    void clickCell(ScriptLine& line);
    void doubleClickCell(ScriptLine& line);
    void paste(ScriptLine& line);
    void copy(ScriptLine& line);
    void undo(ScriptLine& line);
    void redo(ScriptLine& line);
    void pressKey(ScriptLine& line);
    void pressInsert(ScriptLine& line);
    void selectPage(ScriptLine& line);
    void show(ScriptLine& line);
    void showGrid(ScriptLine& line);
    void showReport(ScriptLine& line);
    void showSurface(ScriptLine& line);
    void showChart(ScriptLine& line);
    void showPrinter(ScriptLine& line);
    void showClipboard(ScriptLine& line);
    void showTitle(ScriptLine& line);
    void writeSvg(ScriptLine& line);
    void closeWindow(ScriptLine& line);

    void settleQuietly(const ScriptSettings& settings);
    void makeLauncher();
    Form& inUse();
    Control& control(ScriptLine& line);
    struct Cell {
        DataGrid& grid;
        int row, col;
    };
    Cell cell(ScriptLine& line);
    template <class T>
    T& controlOf(ScriptLine& line, const char* kind);
    template <class T>
    T& onlyOne(const char* kind);
    Container& tabControl();
    bool refuses(const Control& control);

    std::ostream& out_;
    ScriptPlatform platform_;
    Platform parts_;
    Suite suite_;
    SvgWriter svgWriter_;
    Launcher* launcher_ = nullptr; ///< The suite's windows own it.
    bool launched_ = false;
    Form* owner_ = nullptr; ///< The window of the control that was named last.
};

} // namespace vantore
