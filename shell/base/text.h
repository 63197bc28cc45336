#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vantore {

/// Texts are UTF-8 everywhere; a character is one code point.

/// Count of characters; each byte that is no valid UTF-8 counts as one.
std::size_t length(std::string_view text);

/// The first `count` characters.
std::string left(std::string_view text, std::size_t count);

/// `text` without its first `count` characters.
std::string withoutFirst(std::string_view text, std::size_t count);

/// `text` without its last character; an empty text stays empty.
std::string withoutLast(std::string_view text);

/// The characters of a text, each as a text of its own.
std::vector<std::string> characters(std::string_view text);

/// The code points of a text.
std::vector<char32_t> codePoints(std::string_view text);

/// One code point as UTF-8. What is no code point gives U+FFFD.
std::string utf8(char32_t codePoint);

/// True when the bytes are valid UTF-8 throughout.
bool isUtf8(std::string_view bytes);

/// Bytes of a file as UTF-8: valid UTF-8 as it is but for a byte order mark, anything else from
/// Windows-1252.
std::string decoded(std::string_view bytes);

/// `text` without blanks at both ends, at the right end.
std::string trimmed(std::string_view text);
std::string trimmedRight(std::string_view text);

/// ASCII letters in upper case, in lower case.
std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);

/// `text` with every Latin, Greek and Cyrillic letter in the form in which its cases compare equal: small,
/// with the sharp s, the long s and the final sigma as their plain forms. Bytes that are no valid UTF-8 stay.
std::string caseFolded(std::string_view text);

/// Equal but for the case of letters, accented ones too.
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// The lines of a text whose lines end in CR LF, LF or CR. A line end at the very end opens no
/// further line; an empty text has no line.
std::vector<std::string> lines(std::string_view text);

/// The lines of a text broken at blanks, so that none has more than `width` characters unless a single word
/// has.
std::vector<std::string> wrapped(std::string_view text, std::size_t width);

/// `text` with every `from` replaced by `to`.
std::string replaced(std::string_view text, std::string_view from, std::string_view to);

} // namespace vantore
