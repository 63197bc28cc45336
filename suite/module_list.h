#pragma once

#include <vector>

#include "shell/suite.h"

namespace vantore {

/// The modules that the suite offers, by their captions on the launcher.
std::vector<ModuleEntry> moduleList();

} // namespace vantore
