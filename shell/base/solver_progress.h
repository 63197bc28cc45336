#pragma once

#include <filesystem>
#include <string>

namespace vantore {

/// How far a solver has come: one line in a small file of the input/output folder, which the solver replaces
/// whenever it has something to tell and the suite shows while it waits. Neither needs the other: what can't
/// be written or read is passed over.

void writeProgress(const std::filesystem::path& ioFolder, const std::string& line);

/// The line as it stands; empty where there is none.
std::string readProgress(const std::filesystem::path& ioFolder);

void removeProgress(const std::filesystem::path& ioFolder);

} // namespace vantore
