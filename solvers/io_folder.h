#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace vantore {

/// The input/output folder of a solver program: the environment variable VANTORE_IO, which the suite sets
/// when it starts the program, else what VANTORE.DRV beside the program says. RuntimeErrors as `readTextFile`
/// and `DriverReader` give them.
std::filesystem::path solverIoFolder();

/// Writes the lines of a file whole or leaves none behind. Errors as `writeLines` gives them.
void writeWhole(const std::filesystem::path& file, const std::vector<std::string>& lines);

} // namespace vantore
