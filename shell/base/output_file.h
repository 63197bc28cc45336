#pragma once

#include <filesystem>
#include <string_view>

#include "shell/base/runtime_error.h"

namespace vantore {

/// The RuntimeError for what the system calls say about a file (an errno value).
RuntimeError fileError(int cause, const std::filesystem::path& path);

/// A file opened for writing. All failures are RuntimeErrors as `fileError` gives them.
class OutputFile {
  public:
    /// `flags` and `mode` are those of open(2) besides writing.
    OutputFile(std::filesystem::path path, int flags, unsigned mode);
    ~OutputFile();
    OutputFile(OutputFile&& other) noexcept;
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    OutputFile& operator=(OutputFile&&) = delete;

    const std::filesystem::path& path() const { return path_; }
    int descriptor() const { return descriptor_; }

    /// Appends all of the bytes.
    void write(std::string_view bytes);

    /// Returns when what was written lies on the disk.
    void flush();

    /// Closes the file, which may tell of a write that failed late.
    void close();

  private:
    std::filesystem::path path_;
    int descriptor_ = -1;
};

} // namespace vantore
