#include "shell/base/text_file.h"

#include <cerrno>
#include <cstdio>
#include <memory>
#include <random>
#include <system_error>

#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

namespace vantore {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = 256ULL * 1024 * 1024;

RuntimeError errorFor(int cause, const fs::path& path) {
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

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File openFile(const fs::path& path, const char* mode) {
    errno = 0;
    File file(std::fopen(path.c_str(), mode));
    if (!file) throw errorFor(errno, path);
    return file;
}

void writeContent(const fs::path& path, std::string_view content) {
    File file = openFile(path, "wb");
    errno = 0;
    const std::size_t written = std::fwrite(content.data(), 1, content.size(), file.get());
    if (written != content.size() || std::fflush(file.get()) != 0) throw errorFor(errno, path);
    if (std::fclose(file.release()) != 0) throw errorFor(errno, path);
}

/// A free name beside the file, so that the rename stays on one file system.
fs::path besideName(const fs::path& path) {
    std::random_device random;
    fs::path beside = path.parent_path();
    beside /= "." + path.filename().string().substr(0, 200) + "." + std::to_string(random()) + ".tmp";
    return beside;
}

} // namespace

fs::path pathOf(std::string_view utf8) {
    if (utf8.find('\0') != std::string_view::npos) throw RuntimeError(ErrorNumber::BadFileName);
    return {std::u8string(utf8.begin(), utf8.end())};
}

std::string textOf(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

fs::path existingSpelling(const fs::path& path) {
    std::error_code error;
    if (path.filename().empty() || fs::exists(fs::symlink_status(path, error))) return path;
    const std::string wanted = textOf(path.filename());
    const fs::path folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (equalIgnoringCase(textOf(entry->path().filename()), wanted)) return entry->path();
    return path;
}

std::string readTextFile(const fs::path& path) {
    const fs::path existing = existingSpelling(path);
    std::error_code error;
    const fs::file_status status = fs::status(existing, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) throw RuntimeError(ErrorNumber::PathFileAccess);
    const File file = openFile(existing, "rb");
    if (fs::file_size(existing, error) > largestFile && !error)
        throw RuntimeError(ErrorNumber::PathFileAccess);
    std::string bytes;
    std::string block(1U << 16U, '\0');
    while (const std::size_t count = std::fread(block.data(), 1, block.size(), file.get())) {
        bytes.append(block, 0, count);
        if (bytes.size() > largestFile) throw RuntimeError(ErrorNumber::PathFileAccess);
    }
    if (std::ferror(file.get()) != 0) throw RuntimeError(ErrorNumber::PathFileAccess);
    return decoded(bytes);
}

std::vector<std::string> readLines(const fs::path& path) {
    return lines(readTextFile(path));
}

void writeLines(const fs::path& path, const std::vector<std::string>& lines) {
    std::string content;
    for (const std::string& line : lines) content.append(line).append("\r\n");
    writeContent(existingSpelling(path), content);
}

void replaceFile(const fs::path& path, std::string_view content) {
    fs::path target = existingSpelling(path);
    std::error_code error;
    if (fs::is_symlink(target, error)) target = fs::weakly_canonical(target, error);
    if (fs::is_directory(target, error)) throw RuntimeError(ErrorNumber::PathFileAccess);
    const fs::path beside = besideName(target);
    try {
        writeContent(beside, content);
        const fs::file_status old = fs::status(target, error);
        if (fs::exists(old)) fs::permissions(beside, old.permissions(), error);
        fs::rename(beside, target, error);
        if (error) throw errorFor(error.value(), target);
    } catch (const RuntimeError& failure) {
        std::error_code ignored;
        fs::remove(beside, ignored);
        // A folder that isn't there makes the file beside it fail as "not found".
        if (failure.number() == ErrorNumber::FileNotFound) throw RuntimeError(ErrorNumber::PathNotFound);
        throw;
    }
}

} // namespace vantore
