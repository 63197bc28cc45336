#include "script/script_line.h"

#include <algorithm>
#include <charconv>

#include "shell/platform.h"

namespace vantore {

namespace {

constexpr const char* blanks = " \t";
constexpr int largestNumber = 1000000;

std::string_view withoutBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

} // namespace

ScriptLine::ScriptLine(std::string_view line) : rest_(withoutBlanks(line)) {}

std::string ScriptLine::word(const char* meaning) {
    if (rest_.empty()) throw PlatformFailure(std::string("missing ") + meaning);
    const std::size_t end = std::min(rest_.find_first_of(blanks), rest_.size());
    const std::string word(rest_.substr(0, end));
    rest_ = withoutBlanks(rest_.substr(end));
    return word;
}

int ScriptLine::number(const char* meaning) {
    const std::string text = word(meaning);
    int value = -1;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ptr != text.data() + text.size() || value < 0 || value > largestNumber)
        throw PlatformFailure(text + " is no " + meaning);
    return value;
}

ScriptLine::Text ScriptLine::rest() {
    const bool quoted = rest_.size() >= 2 && rest_.front() == '"' && rest_.back() == '"';
    Text result{std::string(quoted ? rest_.substr(1, rest_.size() - 2) : rest_), quoted};
    rest_ = {};
    return result;
}

void ScriptLine::end() const {
    if (!rest_.empty()) throw PlatformFailure("unexpected " + std::string(rest_));
}

} // namespace vantore
