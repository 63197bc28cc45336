#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <utility>

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
    std::string contents(std::string_view name) const {
        std::ifstream stream(file(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    /// Runs the program to its end; the exit status, -1 after a signal.
    int run() const {
        return runCommand("VANTORE_IO='" + folder_.path().string() + "/' '" + program_.string() + "'");
    }

    /// Runs a command of the shell in the folder.
    int runCommand(const std::string& command) const {
        const int status = std::system(
            ("cd '" + folder_.path().string() + "' && " + command + " >printed 2>complained").c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    /// What the last run wrote to standard output and to standard error.
    std::string printed() const { return contents("printed"); }
    std::string complained() const { return contents("complained"); }

  private:
    std::filesystem::path program_;
    TemporaryFolder folder_;
};

} // namespace vantore::tests
