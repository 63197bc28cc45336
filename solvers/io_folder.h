#pragma once

#include <filesystem>

namespace vantore {

/// The input/output folder of a solver program: the environment variable VANTORE_IO, which the suite sets
/// when it starts the program, else what VANTORE.DRV beside the program says. RuntimeErrors as `readTextFile`
/// and `DriverReader` give them.
std::filesystem::path solverIoFolder();

} // namespace vantore
