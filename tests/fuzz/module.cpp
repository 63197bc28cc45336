#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <unistd.h>

#include "script/script_platform.h"
#include "shell/base/text_file.h"
#include "shell/dialog_form.h"
#include "shell/launcher.h"
#include "suite/module_list.h"

namespace {

using namespace vantore;

constexpr int mostDialogs = 40;

/// Answers whatever is asked, Yes and No, 1 and 2 by turns, until there have been enough dialogs.
class RestlessUser : public ScriptPlatform {
  public:
    explicit RestlessUser(std::ostream& out) : ScriptPlatform(out, 800, 600) {}

    void showModal(DialogForm& dialog) override {
        if (++dialogs_ > mostDialogs) throw PlatformFailure("enough");
        const bool even = dialogs_ % 2 == 0;
        if (dialog.kind() == DialogForm::Kind::Question) queueAnswer({.text = even ? "No" : "Yes"});
        if (dialog.kind() == DialogForm::Kind::Input) queueAnswer({.text = even ? "1" : "2"});
        ScriptPlatform::showModal(dialog);
    }

    std::optional<std::string> chooseFile(const FileDialog& dialog) override {
        if (++dialogs_ > mostDialogs) throw PlatformFailure("enough");
        return dialog.kind == FileDialog::Kind::Open ? dialog.folder + "IN.dat"
                                                     : std::optional<std::string>();
    }

    void forget() { dialogs_ = 0; }

  private:
    int dialogs_ = 0;
};

void pressAll(Suite& suite, RestlessUser& user) {
    for (const char* name : {"cmdOpen",      "cmdOpenFile", "OpenF",        "cmdSolve",    "Solve",
                             "PlotDemand",   "Continue1",   "Report",       "cmdReport",   "cmdReturn",
                             "cmdContinue",  "cmdPlot",     "cmdPlotData",  "cmdPath",     "cmdStopId",
                             "cmdZonesPlot", "cmdZoom",     "cmdPrintPlot", "cmdContinue", "cmdContinuePlot",
                             "cmdReport",    "cmdContinue", "cmdPrintData", "cmdContinue", "cmdSave",
                             "Save",         "cmdExit",     "Exit1"}) {
        Form* module = suite.windows.front();
        if (module == nullptr) return;
        Control* control = module->find(name);
        // What no file holds and a module must know before it solves: how many facilities to locate.
        if (auto* facilities = dynamic_cast<TextBox*>(module->find("txtNoLoc")))
            module->type(*facilities, "2");
        try {
            user.forget();
            if (control != nullptr) module->press(*control);
        } catch (const PlatformFailure&) {
            // The user has had enough of the questions; the next button is pressed all the same.
        }
        suite.windows.unloadClosed();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const std::filesystem::path folder =
        std::filesystem::temp_directory_path() /
        ("vantore-fuzz-" FUZZED_MODULE "-" + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "IN.dat", std::ios::binary)
        .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    std::ostringstream transcript;
    RestlessUser user(transcript);
    Platform parts = user.parts();
    Suite suite(parts, moduleList());
    suite.ioFolder = textOf(folder) + "/";
    suite.installFolder = textOf(folder);
    Launcher launcher(suite);
    launcher.press(*launcher.moduleButton(FUZZED_MODULE));
    pressAll(suite, user);
    return 0;
}
