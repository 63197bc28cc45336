#include "processes/folder_lock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantore {

namespace {

constexpr const char* lockName = ".vantore-solver.lock";

class LockFile final : public FolderLock {
  public:
    LockFile(std::filesystem::path path, int file) : path_(std::move(path)), file_(file) {}
    ~LockFile() override {
        if (file_ < 0) return;
        unlink(path_.c_str());
        close(file_);
    }
    LockFile(const LockFile&) = delete;
    LockFile& operator=(const LockFile&) = delete;

  private:
    std::filesystem::path path_;
    int file_;
};

/// Whether the file that is open is still the one of that name: the holder before may have taken it away
/// between opening and locking.
bool isFileOf(const std::filesystem::path& path, int file) {
    struct stat named {};
    struct stat opened {};
    return stat(path.c_str(), &named) == 0 && fstat(file, &opened) == 0 && named.st_ino == opened.st_ino &&
           named.st_dev == opened.st_dev;
}

} // namespace

std::unique_ptr<FolderLock> lockFolder(const std::filesystem::path& folder) {
    const std::filesystem::path path = folder / lockName;
    while (true) {
        const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0666);
        if (file < 0) return std::make_unique<LockFile>(path, -1);
        const bool locked = flock(file, LOCK_EX | LOCK_NB) == 0;
        if (!locked && errno == EWOULDBLOCK) {
            close(file);
            return nullptr;
        }
        if (!locked || isFileOf(path, file)) return std::make_unique<LockFile>(path, file);
        close(file);
    }
}

} // namespace vantore
