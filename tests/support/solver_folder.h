#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <utility>

#include "tests/support/solver_processes.h"
#include "tests/support/temporary_folder.h"

namespace vantore::tests {

/// An input/output folder, and a solver program run on it.
class SolverFolder {
  public:
    explicit SolverFolder(std::filesystem::path program) : program_(std::move(program)) {}

    std::filesystem::path file(std::string_view name) const { return folder_.path() / name; }

    void put(std::string_view name, std::string_view bytes) const {
        std::ofstream(file(name), std::ios::binary) << bytes;
    }

    /// The bytes of a file, none of one that isn't there.
    std::string contents(std::string_view name) const { return tests::contents(file(name)); }

    /// Runs the program to its end; the exit status, -1 after a signal.
    int run() { return take(runSolver(program_, folder_.path())); }

    /// Runs a command of the shell in the folder.
    int runCommand(const std::string& command) {
        const int status = runIn(folder_.path(), command + " >printed 2>complained");
        return take({status, contents("printed"), contents("complained")});
    }

    /// What the last run wrote to standard output and to standard error.
    const std::string& printed() const { return last_.printed; }
    const std::string& complained() const { return last_.complained; }

  private:
    int take(SolverRun run) {
        last_ = std::move(run);
        return last_.status;
    }

    std::filesystem::path program_;
    TemporaryFolder folder_;
    SolverRun last_;
};

} // namespace vantore::tests
