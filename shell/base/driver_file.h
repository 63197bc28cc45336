#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace vantore {

/// VANTORE.DRV: the input/output folder, the screen size and the set-up flag, three lines in print style.
struct DriverSettings {
    std::string ioFolder; ///< ends in a separator
    double screenWidth = 1024;
    double screenHeight = 768;
    double setupDone = 0;
};

/// Replaces the file whole. RuntimeErrors as `replaceFile`.
void writeDriverFile(const std::filesystem::path& path, const DriverSettings& settings);

/// Reads the items of VANTORE.DRV one after another.
class DriverReader {
  public:
    /// Opens the file. RuntimeErrors as `readTextFile`.
    explicit DriverReader(const std::filesystem::path& path);

    /// The first line up to a comma. InputPastEnd when the file has no further item.
    std::string readFolder();

    /// A number, ended by a blank, a comma or a line end. InputPastEnd as above, Overflow.
    double readNumber();

  private:
    void skip(const char* characters);
    std::string take(const char* delimiters);

    std::string text_;
    std::size_t at_ = 0;
};

} // namespace vantore
