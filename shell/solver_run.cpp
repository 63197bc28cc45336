#include "shell/solver_run.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "shell/base/solver_progress.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace fs = std::filesystem;

namespace {

using Clock = std::chrono::steady_clock;

std::string elapsedText(Clock::duration elapsed) {
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(elapsed).count();
    const std::string rest = std::to_string(seconds % 60);
    return std::to_string(seconds / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

/// What a window is like while a solver runs: the hourglass and a note. However the run ends, the window is
/// as before, and what the solver has told of its progress is gone.
class WindowWhileRunning {
  public:
    WindowWhileRunning(Suite& suite, Form& window) : suite_(suite), window_(window) {
        suite.platform.display.setBusyPointer(true);
        removeProgress(pathOf(suite.ioFolder));
    }
    ~WindowWhileRunning() {
        removeProgress(pathOf(suite_.ioFolder));
        window_.runningNote.clear();
        suite_.platform.display.setBusyPointer(false);
    }
    WindowWhileRunning(const WindowWhileRunning&) = delete;
    WindowWhileRunning& operator=(const WindowWhileRunning&) = delete;

  private:
    Suite& suite_;
    Form& window_;
};

/// An old output file, out of the way of the run under another name.
class SetAside {
  public:
    /// PathFileAccess when there is such a file and it can't be moved.
    explicit SetAside(fs::path path) : path_(std::move(path)) {
        aside_ = path_.parent_path() / ("." + path_.filename().string() + ".before");
        std::error_code error;
        if (!fs::exists(fs::symlink_status(path_, error))) return;
        fs::rename(path_, aside_, error);
        if (error) throw RuntimeError(ErrorNumber::PathFileAccess);
        exists_ = true;
    }

    void putBack() const {
        std::error_code error;
        if (exists_) fs::rename(aside_, path_, error);
    }

    /// The run has its own file now, or none. It keeps the spelling of the old file's name.
    void forget() const {
        if (!exists_) return;
        std::error_code error;
        fs::remove(aside_, error);
        const fs::path written = existingSpelling(path_);
        if (written != path_ && fs::exists(written, error)) fs::rename(written, path_, error);
    }

  private:
    fs::path path_, aside_;
    bool exists_ = false;
};

} // namespace

std::unique_ptr<FolderLock> SolverRun::lock() {
    auto lock = suite_.platform.programs.lock(pathOf(suite_.ioFolder));
    if (!lock) report("Another solver is running in this folder.");
    return lock;
}

void SolverRun::report(const std::string& fault) {
    suite_.messageBx(fault, window_.name());
    suite_.platform.dialogs.failed(fault);
}

bool SolverRun::writeInput(const SolverJob& job) {
    const auto held = lock();
    if (held) job.writeInput();
    return held != nullptr;
}

bool SolverRun::run(const SolverJob& job) {
    const auto held = lock();
    if (!held) return false;
    job.writeInput();
    std::vector<SetAside> old;
    for (const std::string& name : job.outputs) old.emplace_back(suite_.ioPath(name));
    const bool started = start(job);
    for (const SetAside& file : old) started ? file.forget() : file.putBack();
    return !started || succeeded(job);
}

/// Runs the program to its end; false when it can't be started.
bool SolverRun::start(const SolverJob& job) {
    const WindowWhileRunning window(suite_, window_);
    program_ = suite_.platform.programs.start(suite_.installPath(job.program), pathOf(suite_.installFolder),
                                              {{"VANTORE_IO", suite_.ioFolder}});
    if (!program_) return false;
    try {
        await(job.program);
    } catch (...) {
        program_.reset(); // which ends it
        throw;
    }
    return true;
}

void SolverRun::await(const std::string& program) {
    interrupted_ = false;
    const auto started = Clock::now();
    while (program_->running()) {
        const std::string time = elapsedText(Clock::now() - started);
        const std::string progress = readProgress(pathOf(suite_.ioFolder));
        window_.runningNote =
            interrupted_ ? program + " is stopping, " + time + ".  Press Ctrl+C again to end it at once."
                         : program + " is running, " + time +
                               ".  Press Ctrl+C to stop it with the best solution so far.";
        if (!progress.empty()) window_.runningNote += "  " + progress;
        suite_.platform.display.processEvents();
    }
}

/// Tells the user of a run that failed, and takes away what it has left.
bool SolverRun::succeeded(const SolverJob& job) {
    const ProgramEnd end = std::exchange(program_, nullptr)->end();
    std::string fault;
    if (end.signal != 0)
        fault = " was ended by signal " + std::to_string(end.signal) + ".";
    else if (end.status != 0)
        fault = " ended with status " + std::to_string(end.status) + ".";
    std::error_code error;
    bool complete = true;
    for (const std::string& name : job.outputs) {
        const fs::path file = suite_.ioPath(name);
        complete = complete && fs::exists(file, error);
        if (!fault.empty() && fs::is_regular_file(file, error)) fs::remove(file, error);
    }
    if (!fault.empty()) fault = job.program + fault + "  It has given no report.";
    if (fault.empty() && !complete && !end.lastError.empty()) fault = job.program + " has written no report.";
    if (fault.empty()) return true;
    report(fault + (end.lastError.empty() ? "" : "\r\n\r\n" + end.lastError));
    return end.signal == 0 && end.status == 0;
}

void SolverRun::interrupt() {
    if (!program_) return;
    program_->interrupt();
    interrupted_ = true;
}

} // namespace vantore
