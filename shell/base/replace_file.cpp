#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <random>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "shell/base/output_file.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace fs = std::filesystem;

namespace {

constexpr unsigned modeOfNewFiles = 0666; // less the user's mask
constexpr unsigned permissionBits = 0777;
constexpr int mostLinks = 40; // in a row, as the system itself follows them

std::optional<struct stat> statusOf(const fs::path& path) {
    struct stat status {};
    if (stat(path.c_str(), &status) == 0) return status;
    if (errno == ENOENT) return std::nullopt;
    throw fileError(errno, path);
}

/// The file that a symbolic link leads to, there or not. PathFileAccess for a loop.
fs::path linkTarget(fs::path path) {
    std::error_code error;
    for (int links = 0; fs::is_symlink(path, error); ++links) {
        if (links == mostLinks) throw RuntimeError(ErrorNumber::PathFileAccess);
        path = path.parent_path() / fs::read_symlink(path, error);
    }
    return path;
}

fs::path folderOf(const fs::path& path) {
    return path.has_parent_path() ? path.parent_path() : fs::path(".");
}

bool isWriteProtected(const struct stat& status) {
    const mode_t own = status.st_uid == geteuid() ? S_IWUSR : S_IWUSR | S_IWGRP | S_IWOTH;
    return (status.st_mode & own) == 0;
}

/// A superuser may write anything; that the mode of the file or of its folder says otherwise is somebody's
/// wish all the same. Where both say so nobody has wished it for this file: it lies in a copy of a read-only
/// tree.
bool isMeantToStay(const struct stat& file, const struct stat& folder) {
    return isWriteProtected(file) != isWriteProtected(folder);
}

void requireWritable(const fs::path& path) {
    if (faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) throw fileError(errno, path);
}

/// What the names of a file's temporary files have before their number. A name too long to be lengthened is
/// cut.
std::string temporaryPrefix(const fs::path& target) {
    return "." + target.filename().string().substr(0, 200) + ".";
}

constexpr const char* temporarySuffix = ".tmp";

bool isTemporaryOf(const std::string& name, const std::string& prefix) {
    if (!name.starts_with(prefix) || !name.ends_with(temporarySuffix)) return false;
    const std::size_t end = name.size() - std::string(temporarySuffix).size();
    return end > prefix.size() && name.find_first_not_of("0123456789", prefix.size()) == end;
}

/// Takes the lock that a temporary file's writer holds as long as it lives.
bool lock(const OutputFile& file) {
    return flock(file.descriptor(), LOCK_EX | LOCK_NB) == 0;
}

/// Removes what writers that were killed have left. A file that another program is writing is locked by it.
void removeStaleTemporaries(const fs::path& target) {
    const std::string prefix = temporaryPrefix(target);
    std::error_code error;
    for (fs::directory_iterator entry(folderOf(target), error), end; !error && entry != end;
         entry.increment(error)) {
        if (!isTemporaryOf(entry->path().filename().string(), prefix)) continue;
        try {
            if (lock(OutputFile(entry->path(), O_NOFOLLOW | O_NONBLOCK, 0))) {
                std::error_code ignored;
                fs::remove(entry->path(), ignored);
            }
        } catch (const RuntimeError&) {
            // What can't be opened is somebody else's to remove.
        }
    }
}

/// A new file beside `target`, so that the rename stays on one file system, locked by this program.
OutputFile createTemporary(const fs::path& target, unsigned mode) {
    std::random_device random;
    while (true) {
        const std::string name = temporaryPrefix(target) + std::to_string(random()) + temporarySuffix;
        OutputFile file(target.parent_path() / name, O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        // Where the file system has no locks nobody takes the file for stale either.
        const bool ours = lock(file) || errno != EWOULDBLOCK;
        struct stat status {};
        // Between its creation and its lock another program may have locked and removed it.
        if (ours && fstat(file.descriptor(), &status) == 0 && status.st_nlink > 0) return file;
    }
}

/// The owner and mode of the file that is replaced. A user who may not give it away keeps what he writes.
void takeOwnerAndMode(const OutputFile& file, const struct stat& old) {
    if (fchown(file.descriptor(), old.st_uid, old.st_gid) != 0) errno = 0;
    fchmod(file.descriptor(), old.st_mode & permissionBits);
}

/// So that a loss of power doesn't undo the rename. Not every file system can flush a folder.
void flushFolder(const fs::path& folder) {
    const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    fsync(descriptor);
    close(descriptor);
}

void writeBeside(const fs::path& target, const std::optional<struct stat>& old, std::string_view content) {
    OutputFile beside = createTemporary(target, old ? old->st_mode & permissionBits : modeOfNewFiles);
    try {
        if (old) takeOwnerAndMode(beside, *old);
        beside.write(content);
        beside.flush();
        std::error_code error;
        fs::rename(beside.path(), target, error);
        if (error) throw fileError(error.value(), target);
        beside.close();
    } catch (const RuntimeError&) {
        std::error_code ignored;
        fs::remove(beside.path(), ignored);
        throw;
    }
}

} // namespace

void replaceFile(const fs::path& path, std::string_view content) {
    const fs::path target = linkTarget(existingSpelling(path));
    const fs::path folder = folderOf(target);
    const auto folderStatus = statusOf(folder);
    if (!folderStatus || !S_ISDIR(folderStatus->st_mode)) throw RuntimeError(ErrorNumber::PathNotFound);
    const auto old = statusOf(target);
    if (old && !S_ISREG(old->st_mode)) throw RuntimeError(ErrorNumber::PathFileAccess);
    if (old) {
        if (isMeantToStay(*old, *folderStatus)) throw RuntimeError(ErrorNumber::PermissionDenied);
        requireWritable(target);
        requireWritable(folder);
    }
    removeStaleTemporaries(target);
    writeBeside(target, old, content);
    flushFolder(folder);
}

} // namespace vantore
