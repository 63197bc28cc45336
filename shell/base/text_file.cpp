#include "shell/base/text_file.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <optional>
#include <system_error>

#include "shell/base/output_file.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

namespace vantore {

namespace fs = std::filesystem;

namespace {

constexpr std::uintmax_t largestFile = 256ULL * 1024 * 1024;
constexpr unsigned modeOfNewFiles = 0666; // less the user's mask

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File openFile(const fs::path& path) {
    File file(std::fopen(path.c_str(), "rb"));
    if (!file) throw fileError(errno, path);
    return file;
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
    std::optional<fs::path> found;
    fs::directory_iterator entry(folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error))
        if (equalIgnoringCase(textOf(entry->path().filename()), wanted) && (!found || entry->path() < *found))
            found = entry->path();
    return found.value_or(path);
}

std::string readTextFile(const fs::path& path) {
    const fs::path existing = existingSpelling(path);
    std::error_code error;
    const fs::file_status status = fs::status(existing, error);
    if (fs::exists(status) && !fs::is_regular_file(status)) throw RuntimeError(ErrorNumber::PathFileAccess);
    const File file = openFile(existing);
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
    OutputFile file(existingSpelling(path), O_CREAT | O_TRUNC, modeOfNewFiles);
    file.write(content);
    file.close();
}

} // namespace vantore
