#include <gtest/gtest.h>

#include "shell/base/text.h"

namespace vantore {
namespace {

TEST(Decoded, SkipsAByteOrderMark) {
    EXPECT_EQ(decoded("\xEF\xBB\xBF"
                      "abc"),
              "abc");
}

TEST(Decoded, ReadsWhatIsNoUtf8AsWindows1252) {
    EXPECT_EQ(decoded("M\xFCnster \x80"), "M\xC3\xBCnster \xE2\x82\xAC");
    EXPECT_EQ(decoded("\x7F\x80\x81\x9F\xA0\xFF"), "\x7F\u20AC\u0081\u0178\u00A0\u00FF");
    EXPECT_EQ(decoded("M\xC3\xBCnster"), "M\xC3\xBCnster");
}

TEST(IsUtf8, RefusesOverlongFormsSurrogatesAndCutSequences) {
    EXPECT_FALSE(isUtf8("\xC0\x80"));
    EXPECT_FALSE(isUtf8("\xE0\x80\x80"));
    EXPECT_FALSE(isUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(isUtf8("\xF4\x90\x80\x80"));
    EXPECT_FALSE(isUtf8("\xE2\x82"));
    EXPECT_TRUE(isUtf8("\xF0\x9F\x9A\x9A"));
}

TEST(Characters, AreCodePoints) {
    EXPECT_EQ(length("a\xC3\xBC\xF0\x9F\x9A\x9A"), 3U);
    EXPECT_EQ(left("\xC3\xBC"
                   "bc",
                   2),
              "\xC3\xBC"
              "b");
    EXPECT_EQ(withoutLast("a\xC3\xBC"), "a");
    EXPECT_EQ(withoutLast(""), "");
    EXPECT_EQ(utf8(codePoints("\xF0\x9F\x9A\x9A").at(0)), "\xF0\x9F\x9A\x9A");
    EXPECT_EQ(utf8(0xD800), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8(0xDFFF), "\xEF\xBF\xBD");
    EXPECT_EQ(utf8(0x110000), "\xEF\xBF\xBD");
}

TEST(Utf8, TakesAsManyBytesAsItsCodePointNeeds) {
    // The ends of each length, and the neighbours of the surrogates.
    for (const char32_t point : {0x0, 0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xE000, 0xFFFF, 0x10000, 0x10FFFF}) {
        const std::string bytes = utf8(point);
        const std::size_t expected = point < 0x80 ? 1 : point < 0x800 ? 2 : point < 0x10000 ? 3 : 4;
        EXPECT_EQ(bytes.size(), expected) << std::hex << std::uint32_t{point};
        EXPECT_TRUE(isUtf8(bytes)) << std::hex << std::uint32_t{point};
        EXPECT_EQ(codePoints(bytes), std::vector<char32_t>{point}) << std::hex << std::uint32_t{point};
    }
}

TEST(Text, GoesOnBehindBytesThatAreNoUtf8) {
    EXPECT_EQ(length("a\xFF\xC3z"), 4U);
    EXPECT_EQ(codePoints("\xFFz"), (std::vector<char32_t>{0xFFFD, 'z'}));
    EXPECT_EQ(characters("\xE2\x82z").size(), 3U);
    EXPECT_EQ(left("abc", 5), "abc");
    EXPECT_EQ(withoutFirst("\xC3\xBC"
                           "bc",
                           1),
              "bc");
    EXPECT_EQ(upperCase("az{`AZ"), "AZ{`AZ");
    EXPECT_EQ(lowerCase("AZ[@az"), "az[@az");
}

TEST(Replaced, TakesEachPlaceOnce) {
    EXPECT_EQ(replaced("aaa", "aa", "a"), "aa");
    EXPECT_EQ(replaced("a,b,", ",", ", "), "a, b, ");
    EXPECT_EQ(replaced("abc", "x", "y"), "abc");
}

TEST(Lines, EndInCrLfLfOrCr) {
    EXPECT_EQ(lines("a\r\nb\nc\rd"), (std::vector<std::string>{"a", "b", "c", "d"}));
    EXPECT_EQ(lines("a\n\nb\n"), (std::vector<std::string>{"a", "", "b"}));
    EXPECT_TRUE(lines("").empty());
}

TEST(Trimmed, TakesBlanksOff) {
    EXPECT_EQ(trimmed("  a b "), "a b");
    EXPECT_EQ(trimmedRight("  a "), "  a");
    EXPECT_EQ(trimmed("   "), "");
}

} // namespace
} // namespace vantore
