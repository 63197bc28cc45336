#include "shell/base/text.h"

#include <algorithm>
#include <array>

#include "shell/base/case_folding.h"

namespace vantore {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

/// Windows-1252 from 0x80 to 0x9F; the five unassigned bytes keep their own value.
constexpr std::array<char32_t, 32> windows1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

unsigned char byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

bool isContinuation(std::string_view text, std::size_t at) {
    return at < text.size() && (byteAt(text, at) & 0xC0U) == 0x80U;
}

/// Length in bytes of the sequence that a first byte announces, 0 when no sequence starts with it.
std::size_t announcedLength(unsigned char first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    if (first >= 0xF0 && first <= 0xF4) return 4;
    return 0;
}

/// Overlong forms, surrogates and values above U+10FFFF show in the second byte.
bool secondByteFits(unsigned char first, unsigned char second) {
    switch (first) {
    case 0xE0: return second >= 0xA0;
    case 0xED: return second <= 0x9F;
    case 0xF0: return second >= 0x90;
    case 0xF4: return second <= 0x8F;
    default: return true;
    }
}

/// Length in bytes of the valid sequence at `at`, 0 when there is none.
std::size_t sequenceLength(std::string_view text, std::size_t at) {
    const std::size_t count = announcedLength(byteAt(text, at));
    if (count < 2) return count;
    for (std::size_t i = 1; i < count; ++i)
        if (!isContinuation(text, at + i)) return 0;
    return secondByteFits(byteAt(text, at), byteAt(text, at + 1)) ? count : 0;
}

/// The code point of the valid sequence at `at`.
char32_t codePointAt(std::string_view text, std::size_t at) {
    const std::size_t count = sequenceLength(text, at);
    if (count == 1) return byteAt(text, at);
    char32_t point = byteAt(text, at) & (0x7FU >> count);
    for (std::size_t i = 1; i < count; ++i) point = (point << 6U) | (byteAt(text, at + i) & 0x3FU);
    return point;
}

std::size_t step(std::string_view text, std::size_t at) {
    return std::max<std::size_t>(1, sequenceLength(text, at));
}

std::size_t offsetOf(std::string_view text, std::size_t count) {
    std::size_t at = 0;
    for (; count > 0 && at < text.size(); --count) at += step(text, at);
    return at;
}

} // namespace

std::size_t length(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t at = 0; at < text.size(); at += step(text, at)) ++count;
    return count;
}

std::string left(std::string_view text, std::size_t count) {
    return std::string(text.substr(0, offsetOf(text, count)));
}

std::string withoutFirst(std::string_view text, std::size_t count) {
    return std::string(text.substr(offsetOf(text, count)));
}

std::string withoutLast(std::string_view text) {
    std::size_t last = 0;
    for (std::size_t at = 0; at < text.size(); at += step(text, at)) last = at;
    return std::string(text.substr(0, last));
}

std::vector<std::string> characters(std::string_view text) {
    std::vector<std::string> result;
    for (std::size_t at = 0; at < text.size(); at += step(text, at))
        result.emplace_back(text.substr(at, step(text, at)));
    return result;
}

std::vector<char32_t> codePoints(std::string_view text) {
    std::vector<char32_t> result;
    for (std::size_t at = 0; at < text.size(); at += step(text, at))
        result.push_back(sequenceLength(text, at) == 0 ? replacementCharacter : codePointAt(text, at));
    return result;
}

std::string utf8(char32_t point) {
    if (point > 0x10FFFF || (point >= 0xD800 && point <= 0xDFFF)) point = replacementCharacter;
    const auto tail = [point](unsigned shift) {
        return static_cast<char>(0x80U | ((point >> shift) & 0x3FU));
    };
    if (point < 0x80) return {static_cast<char>(point)};
    if (point < 0x800) return {static_cast<char>(0xC0U | (point >> 6U)), tail(0)};
    if (point < 0x10000) return {static_cast<char>(0xE0U | (point >> 12U)), tail(6), tail(0)};
    return {static_cast<char>(0xF0U | (point >> 18U)), tail(12), tail(6), tail(0)};
}

bool isUtf8(std::string_view bytes) {
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t count = sequenceLength(bytes, at);
        if (count == 0) return false;
        at += count;
    }
    return true;
}

std::string decoded(std::string_view bytes) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (isUtf8(bytes)) {
        if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
        return std::string(bytes);
    }
    std::string result;
    result.reserve(bytes.size() + bytes.size() / 8);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        result += utf8(byte >= 0x80 && byte <= 0x9F ? windows1252.at(byte - 0x80U) : byte);
    }
    return result;
}

std::string trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string() : trimmedRight(text.substr(first));
}

std::string trimmedRight(std::string_view text) {
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    return result;
}

std::string lowerCase(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return result;
}

std::string caseFolded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); at += step(text, at)) {
        if (sequenceLength(text, at) == 0) {
            result += text[at];
        } else {
            result += utf8(caseFolded(codePointAt(text, at)));
        }
    }
    return result;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    // Controls and files are found by name among many: nearly always the first letters tell the difference.
    while (!a.empty() && !b.empty()) {
        const std::string_view first = a.substr(0, step(a, 0));
        const std::string_view other = b.substr(0, step(b, 0));
        if (first != other && caseFolded(first) != caseFolded(other)) return false;
        a.remove_prefix(first.size());
        b.remove_prefix(other.size());
    }
    return a.empty() && b.empty();
}

std::vector<std::string> lines(std::string_view text) {
    std::vector<std::string> result;
    std::size_t start = 0;
    while (start < text.size()) {
        const std::size_t end = text.find_first_of("\r\n", start);
        if (end == std::string_view::npos) {
            result.emplace_back(text.substr(start));
            break;
        }
        result.emplace_back(text.substr(start, end - start));
        start = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
    }
    return result;
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
    std::vector<std::string> result;
    for (std::string rest : lines(text)) {
        while (length(rest) > width) {
            const std::size_t inside = left(rest, width + 1).find_last_of(' ');
            const std::size_t blank = inside != std::string::npos ? inside : rest.find(' ');
            if (blank == std::string::npos) break;
            result.push_back(trimmedRight(rest.substr(0, blank)));
            rest = rest.substr(blank + 1);
        }
        result.push_back(std::move(rest));
    }
    return result;
}

std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t at = text.find(from); at != std::string_view::npos; at = text.find(from, start)) {
        result.append(text.substr(start, at - start)).append(to);
        start = at + from.size();
    }
    return result.append(text.substr(start));
}

} // namespace vantore
