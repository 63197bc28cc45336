#pragma once

#include <filesystem>
#include <string>

namespace vantore {

/// The install folder of a program that lies in `programFolder`, without a separator at its end: where
/// VANTORE.DRV, the sample problems and the solver programs are.
///
/// Where it was built or unpacked, all of them lie beside the program. Where it was installed for all users,
/// each user has a folder of his own (`vantore` in XDG_DATA_HOME or ~/.local/share): the samples that aren't
/// there are copied into it, and links lead from it to the solver programs. What can't be written there is
/// left out; the suite's start tells of a folder that isn't to be written.
std::string installFolder(const std::filesystem::path& programFolder);

} // namespace vantore
