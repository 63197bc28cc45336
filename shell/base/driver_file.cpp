#include "shell/base/driver_file.h"

#include <algorithm>

#include "shell/base/number_text.h"
#include "shell/base/print_lines.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"
#include "shell/base/text_file.h"

namespace vantore {

namespace {

constexpr int secondPrintZone = 15;

} // namespace

void writeDriverFile(const std::filesystem::path& path, const DriverSettings& settings) {
    PrintLines page;
    page.line(settings.ioFolder);
    page.number(settings.screenWidth).tab(secondPrintZone).number(settings.screenHeight).endLine();
    page.number(settings.setupDone).endLine();
    std::string content;
    for (const std::string& line : page.lines()) content.append(line).append("\r\n");
    replaceFile(path, content);
}

DriverReader::DriverReader(const std::filesystem::path& path) : text_(readTextFile(path)) {}

std::string DriverReader::readFolder() {
    return trimmed(take(",\r\n"));
}

double DriverReader::readNumber() {
    skip(" \t");
    return val(take(" ,\r\n"));
}

void DriverReader::skip(const char* characters) {
    at_ = std::min(text_.find_first_not_of(characters, at_), text_.size());
}

std::string DriverReader::take(const char* delimiters) {
    if (at_ >= text_.size()) throw RuntimeError(ErrorNumber::InputPastEnd);
    const std::size_t end = std::min(text_.find_first_of(delimiters, at_), text_.size());
    std::string item = text_.substr(at_, end - at_);
    at_ = end;
    skip(" \t");
    if (at_ < text_.size() && text_[at_] == ',') {
        ++at_;
    } else if (at_ < text_.size()) {
        at_ +=
            text_.compare(at_, 2, "\r\n") == 0 ? 2U : std::size_t{text_[at_] == '\r' || text_[at_] == '\n'};
    }
    return item;
}

} // namespace vantore
