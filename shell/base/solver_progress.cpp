#include "shell/base/solver_progress.h"

#include <fstream>
#include <system_error>

namespace vantore {

namespace fs = std::filesystem;

namespace {

fs::path progressFile(const fs::path& ioFolder) {
    return ioFolder / "PROGRESS.DAT";
}

} // namespace

void writeProgress(const fs::path& ioFolder, const std::string& line) {
    // renamed into place, so that a reader never sees half a line
    const fs::path beside = ioFolder / ".PROGRESS.new";
    {
        std::ofstream file(beside, std::ios::binary);
        file << line << "\r\n";
        if (!file.flush()) return;
    }
    std::error_code ignored;
    fs::rename(beside, progressFile(ioFolder), ignored);
    if (ignored) fs::remove(beside, ignored);
}

std::string readProgress(const fs::path& ioFolder) {
    std::ifstream file(progressFile(ioFolder), std::ios::binary);
    std::string line;
    std::getline(file, line);
    if (line.ends_with('\r')) line.pop_back();
    return line;
}

void removeProgress(const fs::path& ioFolder) {
    std::error_code ignored;
    fs::remove(progressFile(ioFolder), ignored);
}

} // namespace vantore
