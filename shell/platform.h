#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/forms/form.h"
#include "shell/forms/print_job.h"

namespace vantore {

class DialogForm;

/// The outside world as the suite needs it. The desktop implements it with windows, the script player with
/// queued answers and a transcript.

/// Thrown by a platform that can't go on, such as a script without an answer; no window catches it.
class PlatformFailure : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct FileDialog {
    enum class Kind { Open, Save };
    Kind kind = Kind::Open;
    std::string title;
    std::string folder; ///< Empty: the current folder.
    std::string filter; ///< "Center of gravity (COG*.dat)|COG*.dat|"
    std::string name;   ///< Proposed to the user; empty: none.
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// Shows a message, question or input dialog until one of its buttons, its title bar or Escape has closed
    /// it.
    virtual void showModal(DialogForm& dialog) = 0;

    /// The chosen path, or nothing on Cancel. The file need not exist.
    virtual std::optional<std::string> chooseFile(const FileDialog& dialog) = 0;

    /// Something that was asked for has failed, or wasn't there and had to be made new. The user has been
    /// told; who plays the suite unattended may end here by a PlatformFailure.
    virtual void failed(const std::string& /*what*/) {}
};

class Printer {
  public:
    virtual ~Printer() = default;

    /// The printable area of a page in hundredths of a millimetre.
    struct Area {
        double width = 0;
        double height = 0;
    };
    virtual Area printableArea(Orientation orientation) const = 0;

    /// Prints one document; a RuntimeError says why it can't be printed.
    virtual void print(const PrintJob& job) = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void clear() = 0;
    virtual void setPicture(const CapturedPicture& picture) = 0;
};

/// How a program ended.
struct ProgramEnd {
    int status = 0;        ///< its exit status
    int signal = 0;        ///< the signal that ended it; 0 where it came to its own end
    std::string lastError; ///< the last line that it wrote to standard error
};

/// A started program.
class RunningProgram {
  public:
    virtual ~RunningProgram() = default;
    virtual bool running() = 0;

    /// Asks the program to stop as Ctrl+C in a terminal does; ends it at once when it has been asked before.
    virtual void interrupt() = 0;

    /// How it ended, once it is no longer running.
    virtual const ProgramEnd& end() const = 0;
};

/// Keeps other solvers out of a folder for as long as it lives.
class FolderLock {
  public:
    virtual ~FolderLock() = default;
};

class Programs {
  public:
    virtual ~Programs() = default;

    struct Variable {
        std::string name, value;
    };

    /// Starts a program without arguments in `folder`, hidden, with `environment` added to the suite's own;
    /// nullptr when it can't be started.
    virtual std::unique_ptr<RunningProgram> start(const std::filesystem::path& program,
                                                  const std::filesystem::path& folder,
                                                  const std::vector<Variable>& environment) = 0;

    /// Locks a folder for a solver's run; nothing when another solver is running there.
    virtual std::unique_ptr<FolderLock> lock(const std::filesystem::path& folder) = 0;

    /// Starts the spreadsheet program with an empty document; false when there is none.
    virtual bool startSpreadsheet() = 0;
};

/// Width and height in twips.
struct Extent {
    double width = 0;
    double height = 0;
};

class Display {
  public:
    virtual ~Display() = default;

    virtual Extent screen() const = 0;

    /// The room that a text takes in a font, its lines broken at `width`.
    virtual Extent textExtent(const std::string& text, const Font& font, double width) const = 0;

    /// Width and height of a window's client area in pixels and a picture of part of it.
    struct PixelRect {
        int left = 0, top = 0, width = 0, height = 0;

        bool operator==(const PixelRect&) const = default;
    };
    virtual PixelRect clientArea(const Form& form) const = 0;
    virtual CapturedPicture capture(const Form& form, const PixelRect& area) = 0;

    virtual void setBusyPointer(bool busy) = 0;
    virtual void beep() = 0;

    /// Lets window events run, waiting a moment for them where there are none.
    virtual void processEvents() = 0;
};

/// The system's settings that the suite looks at when it is set up. Where a system has no such setting the
/// answer is the one that calls for nothing.
class Settings {
  public:
    virtual ~Settings() = default;

    /// The display's size in pixels.
    struct Resolution {
        int width = 0, height = 0;

        bool operator==(const Resolution&) const = default;
    };
    virtual Resolution resolution() const = 0;
    virtual int dotsPerInch() const = 0;

    /// The name of the user's language in English; nothing when it can't be told.
    virtual std::optional<std::string> language() const = 0;

    virtual bool themed() const = 0;

    /// Shows the system's display settings on a page.
    virtual void openDisplaySettings(int page) = 0;

    /// The volumes that folders may lie on, such as "/" and "/media/stick".
    virtual std::vector<std::string> volumes() const = 0;
};

struct Platform {
    Dialogs& dialogs;
    Printer& printer;
    Clipboard& clipboard;
    Programs& programs;
    Display& display;
    Settings& settings;
};

} // namespace vantore
