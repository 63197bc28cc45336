#pragma once

#include <filesystem>
#include <string>
#include <sys/types.h>
#include <vector>

namespace vantore::tests {

/// The processes in which a solver program works that was started for this input/output folder, in rising
/// order: the program first, the search that it has started at last.
std::vector<pid_t> solverProcesses(const std::filesystem::path& ioFolder, const std::string& program);

} // namespace vantore::tests
