#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace vantore::tests {

/// The processes in which a solver program works that was started for this input/output folder, in rising
/// order: the program first, the search that it has started at last.
std::vector<pid_t> solverProcesses(const std::filesystem::path& ioFolder, const std::string& program);

/// How a run of a solver program ended, and what it printed.
struct SolverRun {
    int status = 0; ///< -1 where a signal ended it
    std::string printed;
    std::string complained; ///< on standard error
};

/// Runs a solver program on an input/output folder and waits for its end. `before` is what the shell does
/// first.
SolverRun runSolver(const std::filesystem::path& program, const std::filesystem::path& ioFolder,
                    const std::string& before = "");

/// Runs a command of the shell in a folder. The exit status, -1 where a signal ended it.
int runIn(const std::filesystem::path& folder, const std::string& command);

/// The bytes of a file; none where it can't be read.
std::string contents(const std::filesystem::path& path);

} // namespace vantore::tests
