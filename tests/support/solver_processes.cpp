#include "tests/support/solver_processes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

namespace vantore::tests {

std::vector<pid_t> solverProcesses(const std::filesystem::path& ioFolder, const std::string& program) {
    std::vector<pid_t> found;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename().string();
        if (name.find_first_not_of("0123456789") != std::string::npos) continue;
        const std::string environment = contents(entry.path() / "environ");
        if (environment.find("VANTORE_IO=" + ioFolder.string() + "/") != std::string::npos &&
            contents(entry.path() / "comm") == program + "\n")
            found.push_back(std::stoi(name));
    }
    std::sort(found.begin(), found.end());
    return found;
}

SolverRun runSolver(const std::filesystem::path& program, const std::filesystem::path& ioFolder,
                    const std::string& before) {
    SolverRun run;
    run.status = runIn(ioFolder, before + "VANTORE_IO='" + ioFolder.string() + "/' '" + program.string() +
                                     "' >printed 2>complained");
    run.printed = contents(ioFolder / "printed");
    run.complained = contents(ioFolder / "complained");
    return run;
}

int runIn(const std::filesystem::path& folder, const std::string& command) {
    const int status = std::system(("cd '" + folder.string() + "' && " + command).c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace vantore::tests
