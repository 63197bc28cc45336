#include "shell/report_file.h"

#include <array>
#include <fstream>

#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t bytesOfCharacter = 4; // in UTF-8, at most
constexpr std::size_t mostLineBytes = mostLineCharacters * bytesOfCharacter + 1;
constexpr std::size_t mostBytes = 16 * 1024 * 1024; // of all lines together

/// Takes a file's bytes and keeps what is shown of them.
class ShownPart {
  public:
    /// False when there is no room for more.
    bool take(char byte) {
        const bool ends = byte == '\n' || byte == '\r';
        const bool pairEnds = byte == '\n' && last_ == '\r';
        last_ = byte;
        if ((lines_ == mostReportLines && !pairEnds) || isFull(kept_.size(), mostBytes, byte)) {
            cut_ = true;
            return false;
        }
        if (ends && !pairEnds) ++lines_;
        if (ends) inLine_ = 0;
        lineIsFull_ = !ends && (lineIsFull_ || isFull(inLine_++, mostLineBytes, byte));
        if (!lineIsFull_) kept_ += byte;
        return true;
    }

    std::vector<std::string> lines() const {
        std::vector<std::string> result = vantore::lines(decoded(kept_));
        for (std::string& line : result)
            if (line.size() > mostLineCharacters && length(line) > mostLineCharacters)
                line = left(line, mostLineCharacters) + " ... (the line is longer)";
        if (cut_) result.push_back("... (the report is longer)");
        if (result.empty()) result.emplace_back("(The report is empty.)");
        return result;
    }

  private:
    /// Cuts between two characters, not within one.
    static bool isFull(std::size_t bytes, std::size_t most, char byte) {
        constexpr unsigned marks = 0xC0;
        constexpr unsigned continues = 0x80;
        const bool within = (static_cast<unsigned char>(byte) & marks) == continues;
        return bytes >= most + (within ? bytesOfCharacter - 1 : 0);
    }

    std::string kept_;
    std::size_t lines_ = 0, inLine_ = 0;
    char last_ = 0;
    bool lineIsFull_ = false, cut_ = false;
};

} // namespace

std::vector<std::string> readReport(const fs::path& path) {
    constexpr std::uintmax_t small = 1U << 16U;
    const fs::path existing = existingSpelling(path);
    std::error_code error;
    // A file that isn't there or isn't a plain one: the text file reader says why.
    if (!fs::is_regular_file(existing, error) || fs::file_size(existing, error) == 0) {
        const std::string text = readTextFile(existing);
        if (text.empty()) return ShownPart().lines();
    }
    std::ifstream file(existing, std::ios::binary);
    if (!file) throw RuntimeError(ErrorNumber::PermissionDenied);
    ShownPart shown;
    std::array<char, small> block{};
    bool room = true;
    while (room && (file.read(block.data(), block.size()) || file.gcount() > 0))
        for (std::streamsize i = 0; room && i < file.gcount(); ++i)
            room = shown.take(block[static_cast<std::size_t>(i)]);
    if (file.bad()) throw RuntimeError(ErrorNumber::PathFileAccess);
    return shown.lines();
}

} // namespace vantore
