#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "shell/platform.h"

namespace vantore {

/// Starts a program without arguments in a folder, without input and with its output thrown away, with
/// variables added to this process's environment; nullptr when it can't be started. The program and what it
/// starts in turn are a group of their own. It ends with this process, and is killed when its RunningProgram
/// goes before it has ended.
std::unique_ptr<RunningProgram> startProcess(const std::filesystem::path& program,
                                             const std::filesystem::path& folder,
                                             const std::vector<Programs::Variable>& environment);

} // namespace vantore
