#pragma once

#include <QElapsedTimer>

#include "desktop/open_windows.h"
#include "shell/platform.h"

namespace vantore {

/// The outside world on a desktop: windows, printers, the clipboard, programs, the screen and its settings.
class DesktopPlatform : public Dialogs,
                        public Printer,
                        public Clipboard,
                        public Programs,
                        public Display,
                        public Settings {
  public:
    DesktopPlatform(OpenWindows& windows, WindowSteps& steps) : windows_(windows), steps_(steps) {}

    Platform parts() { return {*this, *this, *this, *this, *this, *this}; }

    void showModal(DialogForm& dialog) override;
    std::optional<std::string> chooseFile(const FileDialog& dialog) override;

    Area printableArea(Orientation orientation) const override;

    /// Shows the document first; a user who cancels there prints nothing, which is no error.
    void print(const PrintJob& job) override;

    void clear() override;
    void setPicture(const CapturedPicture& picture) override;

    std::unique_ptr<RunningProgram> start(const std::filesystem::path& program,
                                          const std::filesystem::path& folder,
                                          const std::vector<Variable>& environment) override;
    std::unique_ptr<FolderLock> lock(const std::filesystem::path& folder) override;
    bool startSpreadsheet() override;

    Extent screen() const override;
    Extent textExtent(const std::string& text, const Font& font, double width) const override;
    PixelRect clientArea(const Form& form) const override;
    CapturedPicture capture(const Form& form, const PixelRect& area) override;
    void setBusyPointer(bool busy) override;
    void beep() override;
    void processEvents() override;

    Resolution resolution() const override;
    int dotsPerInch() const override;
    std::optional<std::string> language() const override;

    /// Themes don't disturb the suite's look: none is told of.
    bool themed() const override { return false; }
    void openDisplaySettings(int page) override;
    std::vector<std::string> volumes() const override;

  private:
    OpenWindows& windows_;
    WindowSteps& steps_;
    QElapsedTimer sinceRefresh_;
};

} // namespace vantore
