#include "processes/child_process.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

#include "shell/base/text.h"

namespace vantore {

namespace {

/// The last line that isn't blank of what a program says, however much that is.
class LastLine {
  public:
    void add(std::string_view bytes) {
        for (const char byte : bytes) {
            if (byte == '\n' || byte == '\r') {
                if (!trimmed(current_).empty()) last_ = current_;
                current_.clear();
            } else if (current_.size() < mostBytes) {
                current_ += byte;
            }
        }
    }

    std::string text() const { return decoded(trimmed(trimmed(current_).empty() ? last_ : current_)); }

  private:
    static constexpr std::size_t mostBytes = 500;
    std::string last_, current_;
};

struct Pipe {
    std::array<int, 2> ends{-1, -1};
    bool made = pipe2(ends.data(), O_CLOEXEC) == 0;

    Pipe() = default;
    ~Pipe() {
        closeEnd(0);
        closeEnd(1);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    int& end(std::size_t which) { return ends.at(which); }
    void closeEnd(std::size_t which) {
        if (end(which) >= 0) close(end(which));
        end(which) = -1;
    }
};

class ChildProcess final : public RunningProgram {
  public:
    ChildProcess(pid_t id, int errors) : id_(id), errors_(errors) { fcntl(errors, F_SETFL, O_NONBLOCK); }
    ~ChildProcess() override {
        if (running()) {
            kill(-id_, SIGKILL);
            waitpid(id_, nullptr, 0);
        }
        close(errors_);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool running() override {
        if (ended_) return false;
        int status = 0;
        ended_ = waitpid(id_, &status, WNOHANG) == id_;
        takeErrors();
        if (!ended_) return true;
        if (WIFEXITED(status)) end_.status = WEXITSTATUS(status);
        if (WIFSIGNALED(status)) end_.signal = WTERMSIG(status);
        end_.lastError = lastLine_.text();
        return false;
    }

    void interrupt() override {
        if (!ended_) kill(-id_, interrupted_ ? SIGKILL : SIGINT);
        interrupted_ = true;
    }

    const ProgramEnd& end() const override { return end_; }

  private:
    /// Reads on while there is something, but returns to the window soon.
    void takeErrors() {
        constexpr int mostBlocks = 64;
        std::array<char, 1U << 14U> block{};
        for (int k = 0; k < mostBlocks; ++k) {
            const ssize_t count = read(errors_, block.data(), block.size());
            if (count <= 0) return;
            lastLine_.add({block.data(), static_cast<std::size_t>(count)});
        }
    }

    pid_t id_;
    int errors_; // what the program writes to standard error
    bool ended_ = false, interrupted_ = false;
    LastLine lastLine_;
    ProgramEnd end_;
};

/// The environment of the child: this process's own, with the added variables in place of others of their
/// name.
std::vector<std::string> environmentWith(const std::vector<Programs::Variable>& added) {
    std::vector<std::string> result;
    result.reserve(added.size());
    for (const auto& variable : added) result.push_back(variable.name + "=" + variable.value);
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view text(*entry);
        bool replaced = false;
        for (const auto& variable : added) replaced = replaced || text.starts_with(variable.name + "=");
        if (!replaced) result.emplace_back(text);
    }
    return result;
}

/// What the child needs between its birth and the program's start: nothing may be allocated there.
struct Launch {
    std::string program, folder;
    std::vector<char*> environment;
    pid_t parent = getpid();
    int errors = -1;  // where standard error goes
    int failure = -1; // where a failed start is told; closed by a start
};

[[noreturn]] void becomeProgram(const Launch& launch) {
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGPIPE, SIG_DFL);
    setpgid(0, 0);
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() == launch.parent && chdir(launch.folder.c_str()) == 0 && dup2(nothing, STDIN_FILENO) >= 0 &&
        dup2(nothing, STDOUT_FILENO) >= 0 && dup2(launch.errors, STDERR_FILENO) >= 0) {
        std::array<char*, 2> arguments = {const_cast<char*>(launch.program.c_str()), nullptr};
        execve(launch.program.c_str(), arguments.data(), launch.environment.data());
    }
    [[maybe_unused]] const ssize_t told = write(launch.failure, "x", 1);
    _exit(EXIT_FAILURE);
}

/// True when the program has taken the child's place.
bool hasStarted(Pipe& failure) {
    failure.closeEnd(1);
    char byte = 0;
    ssize_t count = 0;
    while ((count = read(failure.end(0), &byte, 1)) < 0 && errno == EINTR) {
    }
    return count == 0;
}

} // namespace

std::unique_ptr<RunningProgram> startProcess(const std::filesystem::path& program,
                                             const std::filesystem::path& folder,
                                             const std::vector<Programs::Variable>& added) {
    if (access(program.c_str(), X_OK) != 0 || std::filesystem::is_directory(program)) return nullptr;
    std::vector<std::string> variables = environmentWith(added);
    Pipe errors, failure;
    if (!errors.made || !failure.made) return nullptr;
    Launch launch{.program = program.string(), .folder = folder.string(), .environment = {}};
    launch.environment.reserve(variables.size() + 1);
    for (std::string& variable : variables) launch.environment.push_back(variable.data());
    launch.environment.push_back(nullptr);
    launch.errors = errors.end(1);
    launch.failure = failure.end(1);
    const pid_t id = fork();
    if (id < 0) return nullptr;
    if (id == 0) becomeProgram(launch);
    if (!hasStarted(failure)) {
        waitpid(id, nullptr, 0);
        return nullptr;
    }
    return std::make_unique<ChildProcess>(id, std::exchange(errors.end(0), -1));
}

} // namespace vantore
