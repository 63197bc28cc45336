#pragma once

#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "script/script_player.h"
#include "shell/module_frame.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {

/// The suite in folders of its own, played by script texts, with the transcript that they give.
///
///     ModuleSession session;
///     session.writeFile("COG01.dat", "\"Two towns\",.5,1\r\n...");
///     EXPECT_EQ(session.play("module COG\nfile COG01.dat\npress cmdOpen\nshow txtLabel"), "...");
///
/// Several plays go on in the same window. Lines end in \n.
class ModuleSession {
  public:
    explicit ModuleSession(int screenWidth = 800, int screenHeight = 600);

    /// Plays a script and gives its transcript. PlatformFailure where the script stops.
    std::string play(std::string_view script);

    /// Opens a module and one of its problem files, and gives nothing of the transcript.
    void open(std::string_view module, std::string_view file, std::string_view openButton = "cmdOpen");

    /// The transcript of `grid NAME`, line by line, and what `report` prints without the bars.
    std::vector<std::string> grid(std::string_view name);
    std::vector<std::string> report();

    void writeFile(std::string_view name, std::string_view content);

    /// Puts the files of the install folder that modules need before a problem is open where they look for
    /// them: the base case of the warehouse model and the map.
    void installBaseCase();
    std::string readFile(std::string_view name) const;
    bool fileExists(std::string_view name) const;

    std::filesystem::path ioFolder() const { return folder_.path() / "io"; }
    std::filesystem::path installFolder() const { return folder_.path() / "install"; }

    /// The open module's window; std::bad_cast when the window in front is none.
    ModuleFrame& module() const { return dynamic_cast<ModuleFrame&>(*player_->front()); }

    Form* front() const { return player_->front(); }

    /// The window in front is the launcher's.
    bool closed() const { return player_->front() == player_->launcher(); }
    const Launcher& launcher() const { return *player_->launcher(); }

    /// The launcher has ended the program.
    bool ended() const { return player_->launcher() == nullptr; }

  private:
    TemporaryFolder folder_;
    std::ostringstream transcript_;
    std::unique_ptr<ScriptPlayer> player_;
};

/// The damaged forms of a problem file that every module must meet with a message and nothing worse: cut at
/// every item, lone quotes, other line ends, binary bytes, counts out of range.
std::vector<std::string> damagedForms(std::string_view goodFile);

} // namespace vantore::tests
