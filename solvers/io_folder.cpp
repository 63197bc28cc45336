#include "solvers/io_folder.h"

#include <cstdlib>

#include "shell/base/driver_file.h"
#include "shell/base/text_file.h"

namespace vantore {

std::filesystem::path solverIoFolder() {
    // Nothing else runs yet that could change the environment.
    const char* folder = std::getenv("VANTORE_IO");
    if (folder != nullptr && *folder != '\0') return pathOf(folder);
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    return pathOf(DriverReader(program.parent_path() / "VANTORE.DRV").readFolder());
}

} // namespace vantore
