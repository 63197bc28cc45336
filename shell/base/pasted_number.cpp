#include "shell/base/pasted_number.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"
#include "shell/base/text.h"

namespace vantore {

namespace {

constexpr std::size_t groupLength = 3;

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// All kinds of narrow and unbreakable blanks and curved apostrophes as the plain ones.
std::string withPlainMarks(std::string_view text) {
    constexpr std::array<const char*, 3> blanks = {"\u00A0", "\u2009", "\u202F"};
    std::string plain = replaced(trimmed(text), "\u2019", "'");
    for (const char* blank : blanks) plain = replaced(plain, blank, " ");
    return replaced(plain, "\u2212", "-");
}

/// The digits of a whole number without the marks between its groups of three; nothing when the groups
/// aren't whole or of several kinds.
std::optional<std::string> ungrouped(std::string_view whole, char decimal) {
    std::string digits;
    char mark = 0;
    std::size_t inGroup = 0;
    for (const char c : whole) {
        if (isDigit(c)) {
            digits += c;
            ++inGroup;
            continue;
        }
        const bool marks = (c == '.' || c == ',' || c == ' ' || c == '\'') && c != decimal;
        const bool first = mark == 0;
        if (!marks || (!first && c != mark)) return std::nullopt;
        if (first ? inGroup == 0 || inGroup > groupLength : inGroup != groupLength) return std::nullopt;
        mark = c;
        inGroup = 0;
    }
    if (mark != 0 && inGroup != groupLength) return std::nullopt;
    return digits;
}

bool isPlainNumber(const std::string& text) {
    try {
        numberFrom(text);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

/// The plain text of a number with that decimal mark.
std::optional<std::string> readWith(char decimal, std::string_view text) {
    const std::size_t sign = !text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0;
    const std::size_t end = std::min(text.find_first_of("eEdD"), text.size());
    const std::size_t point = std::min(text.substr(0, end).find(decimal), end);
    const auto whole = ungrouped(text.substr(sign, point - sign), decimal);
    if (!whole) return std::nullopt;
    std::string plain = std::string(text.substr(0, sign)) + *whole;
    if (point < end) plain += "." + std::string(text.substr(point + 1, end - point - 1));
    plain += text.substr(end);
    return isPlainNumber(plain) ? std::optional(plain) : std::nullopt;
}

} // namespace

std::optional<std::string> pastedNumber(std::string_view text, NumberMarks marks) {
    const std::string written = withPlainMarks(text);
    const char other = marks.decimal == '.' ? ',' : '.';
    if (auto number = readWith(marks.decimal, written)) return number;
    return readWith(other, written);
}

} // namespace vantore
