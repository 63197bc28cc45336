#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "shell/platform.h"

namespace vantore {

/// Starts a program without arguments in a folder, without a window and without input, with variables added
/// to this process's environment; nullptr when it can't be started. A program that still runs when its
/// RunningProgram goes is interrupted and waited for.
std::unique_ptr<RunningProgram> startProgram(const std::filesystem::path& program,
                                             const std::filesystem::path& folder,
                                             const std::vector<Programs::Variable>& environment);

/// Starts LibreOffice Calc with an empty document; false when it isn't installed.
bool startSpreadsheetProgram();

/// Shows the desktop's display settings; false where none of the known programs is installed.
bool startDisplaySettingsProgram();

} // namespace vantore
