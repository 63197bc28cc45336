#include "script/child_process.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace vantore {

namespace {

class ChildProcess final : public RunningProgram {
  public:
    explicit ChildProcess(pid_t id) : id_(id) {}
    ~ChildProcess() override {
        if (!running()) return;
        interrupt();
        waitpid(id_, nullptr, 0);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    bool running() override {
        if (!ended_) ended_ = waitpid(id_, nullptr, WNOHANG) != 0;
        return !ended_;
    }

    void interrupt() override {
        if (!ended_) kill(id_, SIGINT);
    }

  private:
    pid_t id_;
    bool ended_ = false;
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

struct SpawnActions {
    posix_spawn_file_actions_t actions{};
    SpawnActions() { posix_spawn_file_actions_init(&actions); }
    ~SpawnActions() { posix_spawn_file_actions_destroy(&actions); }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
};

} // namespace

std::unique_ptr<RunningProgram> startProcess(const std::filesystem::path& program,
                                             const std::filesystem::path& folder,
                                             const std::vector<Programs::Variable>& added) {
    if (access(program.c_str(), X_OK) != 0 || std::filesystem::is_directory(program)) return nullptr;
    std::vector<std::string> variables = environmentWith(added);
    std::vector<char*> environment;
    environment.reserve(variables.size() + 1);
    for (std::string& variable : variables) environment.push_back(variable.data());
    environment.push_back(nullptr);
    std::string path = program.string();
    std::vector<char*> arguments = {path.data(), nullptr};
    SpawnActions spawn;
    posix_spawn_file_actions_addchdir_np(&spawn.actions, folder.c_str());
    posix_spawn_file_actions_addopen(&spawn.actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    // The transcript alone goes to standard output; what a solver prints belongs beside the errors.
    posix_spawn_file_actions_adddup2(&spawn.actions, STDERR_FILENO, STDOUT_FILENO);
    pid_t id = 0;
    if (posix_spawn(&id, path.c_str(), &spawn.actions, nullptr, arguments.data(), environment.data()) != 0)
        return nullptr;
    return std::make_unique<ChildProcess>(id);
}

} // namespace vantore
