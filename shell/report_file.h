#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantore {

/// How much of a report file is shown or printed.
constexpr std::size_t mostReportLines = 100000;
constexpr std::size_t mostLineCharacters = 10000;

/// The lines of a report file as they are shown: no more than so many lines and characters a line, each cut
/// told where it is, and a file without a line told to be empty. Whatever the file's size, no more of it is
/// read than is shown. Errors as `readTextFile` gives them.
std::vector<std::string> readReport(const std::filesystem::path& path);

} // namespace vantore
