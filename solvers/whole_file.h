#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantore {

/// Writes lines to a file whole or leaves none behind. RuntimeErrors as `writeLines`.
void writeWhole(const std::filesystem::path& file, const std::vector<std::string>& lines);

/// Takes a plain file of that name away, in whatever spelling it is there.
void removeFile(const std::filesystem::path& file);

} // namespace vantore
