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
