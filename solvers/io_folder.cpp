#include "solvers/io_folder.h"

#include <cstdlib>
#include <exception>
#include <system_error>

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

void writeWhole(const std::filesystem::path& file, const std::vector<std::string>& lines) {
    try {
        writeLines(file, lines);
    } catch (const std::exception&) {
        std::error_code ignored;
        const auto written = existingSpelling(file);
        if (std::filesystem::is_regular_file(written, ignored)) std::filesystem::remove(written, ignored);
        throw;
    }
}

} // namespace vantore
