#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "shell/dialog_form.h"
#include "shell/platform.h"

namespace vantore {

/// A script's answer to a question.
struct ScriptAnswer {
    enum class Kind { Text, Cancel, Close };
    Kind kind = Kind::Text;
    std::string text;
};

/// The outside world of a script: answers wait in queues, and all that happens is told in the transcript.
class ScriptPlatform : public Dialogs,
                       public Printer,
                       public Clipboard,
                       public Programs,
                       public Display,
                       public Settings {
  public:
    /// `screen` in pixels; `out` takes the transcript. A strict one stops at the first step that fails.
    ScriptPlatform(std::ostream& out, int screenWidth, int screenHeight, bool strict = false);

    Platform parts() { return {*this, *this, *this, *this, *this, *this}; }

    /// The answer of the next question or file dialog; no file is Cancel.
    void queueAnswer(ScriptAnswer answer) { answers_.push_back(std::move(answer)); }
    void queueFile(std::optional<std::string> file) { files_.push_back(std::move(file)); }
    std::size_t answersLeft() const { return answers_.size() + files_.size(); }

    /// Stops a strict script.
    void failed(const std::string& what) override;

    /// Prints the print jobs so far and forgets them.
    void tellPrinted();
    void tellClipboard();

    void showModal(DialogForm& dialog) override;
    std::optional<std::string> chooseFile(const FileDialog& dialog) override;

    Area printableArea(Orientation orientation) const override;
    void print(const PrintJob& job) override { jobs_.push_back(job); }

    void clear() override { clipboard_.reset(); }
    void setPicture(const CapturedPicture& picture) override { clipboard_ = picture; }

    std::unique_ptr<RunningProgram> start(const std::filesystem::path& program,
                                          const std::filesystem::path& folder,
                                          const std::vector<Variable>& environment) override;
    std::unique_ptr<FolderLock> lock(const std::filesystem::path& folder) override;
    bool startSpreadsheet() override;

    Extent screen() const override;
    Extent textExtent(const std::string& text, const Font& font, double width) const override;
    PixelRect clientArea(const Form& form) const override;
    CapturedPicture capture(const Form& form, const PixelRect& area) override;
    void setBusyPointer(bool /*busy*/) override {}
    void beep() override;
    void processEvents() override;

    Resolution resolution() const override { return {screenWidth_, screenHeight_}; }
    int dotsPerInch() const override { return 96; }
    std::optional<std::string> language() const override { return "English"; }
    bool themed() const override { return false; }
    void openDisplaySettings(int /*page*/) override {}
    std::vector<std::string> volumes() const override { return {"/"}; }

  private:
    ScriptAnswer nextAnswer(const std::string& question);
    void ask(YNBx& question, const std::string& head);
    void ask(InptBx& input, const std::string& head);

    std::ostream& out_;
    int screenWidth_, screenHeight_;
    bool strict_;
    std::deque<ScriptAnswer> answers_;
    std::deque<std::optional<std::string>> files_;
    std::vector<PrintJob> jobs_;
    std::optional<CapturedPicture> clipboard_;
};

} // namespace vantore
