#pragma once

#include <deque>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "shell/platform.h"

namespace vantore {

/// The outside world of a script: answers wait in queues, and all that happens is told in the transcript.
class ScriptPlatform : public Dialogs, public Printer, public Clipboard, public Programs, public Display {
  public:
    /// `screen` in pixels; `out` takes the transcript.
    ScriptPlatform(std::ostream& out, int screenWidth, int screenHeight);

    Platform parts() { return {*this, *this, *this, *this, *this}; }

    /// The answer of the next question or file dialog; nothing is Cancel.
    void queueAnswer(std::optional<std::string> answer) { answers_.push_back(std::move(answer)); }
    void queueFile(std::optional<std::string> file) { files_.push_back(std::move(file)); }
    std::size_t answersLeft() const { return answers_.size() + files_.size(); }

    /// Prints the print jobs so far and forgets them.
    void tellPrinted();
    void tellClipboard();

    void showModal(DialogForm& dialog) override;
    std::optional<std::string> chooseFile(const FileDialog& dialog) override;

    Area printableArea(Orientation orientation) const override;
    void print(const PrintJob& job) override { jobs_.push_back(job); }

    void clear() override { clipboard_ = std::monostate{}; }
    void setText(const std::string& text) override { clipboard_ = text; }
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

  private:
    std::optional<std::string> nextAnswer(const std::string& question);

    std::ostream& out_;
    int screenWidth_, screenHeight_;
    std::deque<std::optional<std::string>> answers_;
    std::deque<std::optional<std::string>> files_;
    std::vector<PrintJob> jobs_;
    std::variant<std::monostate, std::string, CapturedPicture> clipboard_;
};

} // namespace vantore
