#include "shell/base/output_file.h"

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace vantore {

namespace fs = std::filesystem;

RuntimeError fileError(int cause, const fs::path& path) {
    std::error_code ignored;
    switch (cause) {
    case ENOENT:
        return RuntimeError(fs::is_directory(path.parent_path(), ignored) ? ErrorNumber::FileNotFound
                                                                          : ErrorNumber::PathNotFound);
    case ENOTDIR: return RuntimeError(ErrorNumber::PathNotFound);
    case EACCES:
    case EPERM:
    case EROFS: return RuntimeError(ErrorNumber::PermissionDenied);
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return RuntimeError(ErrorNumber::DiskFull);
    case ENAMETOOLONG:
    case EINVAL: return RuntimeError(ErrorNumber::BadFileName);
    case ENODEV:
    case ENXIO: return RuntimeError(ErrorNumber::DeviceUnavailable);
    default: return RuntimeError(ErrorNumber::PathFileAccess);
    }
}

OutputFile::OutputFile(fs::path path, int flags, unsigned mode)
    : path_(std::move(path)), descriptor_(open(path_.c_str(), O_WRONLY | O_CLOEXEC | flags, mode)) {
    if (descriptor_ < 0) throw fileError(errno, path_);
}

OutputFile::OutputFile(OutputFile&& other) noexcept
    : path_(std::move(other.path_)), descriptor_(std::exchange(other.descriptor_, -1)) {}

OutputFile::~OutputFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

void OutputFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor_, bytes.data(), bytes.size());
        if (count >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            throw fileError(errno, path_);
        }
    }
}

void OutputFile::flush() {
    if (fsync(descriptor_) != 0) throw fileError(errno, path_);
}

void OutputFile::close() {
    if (::close(std::exchange(descriptor_, -1)) != 0) throw fileError(errno, path_);
}

} // namespace vantore
