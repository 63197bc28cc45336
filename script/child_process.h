#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "shell/platform.h"

namespace vantore {

/// Starts a program without arguments in a folder, with variables added to this process's environment and no
/// standard input; nullptr when it can't be started. The program ends with its owner: it is waited for, after
/// an interrupt, when its RunningProgram goes.
std::unique_ptr<RunningProgram> startProcess(const std::filesystem::path& program,
                                             const std::filesystem::path& folder,
                                             const std::vector<Programs::Variable>& environment);

} // namespace vantore
