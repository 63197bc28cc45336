#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace vantore {

/// Text files of the suite. All failures are RuntimeErrors with the number that fits the cause.

/// A path from a UTF-8 text, and back.
std::filesystem::path pathOf(std::string_view utf8);
std::string textOf(const std::filesystem::path& path);

/// The file of that path; where there is none, the one whose name differs only in the case of its letters, of
/// several the alphabetically first. Where there is neither, the path as it is.
std::filesystem::path existingSpelling(const std::filesystem::path& path);

/// The whole text as UTF-8. Errors: FileNotFound, PathNotFound, PermissionDenied, PathFileAccess (no plain
/// file, or more than 256 MiB), BadFileName.
std::string readTextFile(const std::filesystem::path& path);

/// The lines of a text file, as readTextFile and lines give them.
std::vector<std::string> readLines(const std::filesystem::path& path);

/// Writes lines, each ended by CR LF, in place of what the file held. Errors as above, and DiskFull.
void writeLines(const std::filesystem::path& path, const std::vector<std::string>& lines);

/// Replaces a file whole or not at all: written beside it, flushed to the disk, then renamed over it with its
/// owner and mode. When it fails the old file stands as it was and nothing is left beside it; what a writer
/// that was killed has left there is removed. PermissionDenied where the user may not write, and for an old
/// file whose mode, or whose folder's mode, forbids it even where a superuser's rights would pass over that;
/// in a tree that is read-only as a whole the rights decide. PathFileAccess for what is no plain file and for
/// a loop of links.
void replaceFile(const std::filesystem::path& path, std::string_view content);

} // namespace vantore
