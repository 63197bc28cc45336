#include "solvers/whole_file.h"

#include <exception>
#include <system_error>

#include "shell/base/text_file.h"

namespace vantore {

void writeWhole(const std::filesystem::path& file, const std::vector<std::string>& lines) {
    try {
        writeLines(file, lines);
    } catch (const std::exception&) {
        removeFile(file);
        throw;
    }
}

void removeFile(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto written = existingSpelling(file);
    if (std::filesystem::is_regular_file(written, ignored)) std::filesystem::remove(written, ignored);
}

} // namespace vantore
