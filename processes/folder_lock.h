#pragma once

#include <filesystem>
#include <memory>

#include "shell/platform.h"

namespace vantore {

/// Locks a folder for a solver's run by a lock file in it, which lies there until the lock goes. Nothing when
/// another process holds the lock; a file that a dead process has left doesn't count. Where the folder can't
/// be locked at all there is nobody to share it with: the lock then is none, but not nothing.
std::unique_ptr<FolderLock> lockFolder(const std::filesystem::path& folder);

} // namespace vantore
