#include <gtest/gtest.h>

#include <clocale>
#include <cwctype>

#include "shell/base/case_folding.h"
#include "shell/base/text.h"

namespace vantore::tests {
namespace {

struct Block {
    char32_t first, last;
};
constexpr Block letterBlocks[] = {{0x0000, 0x024F}, {0x0370, 0x052F}, {0x1E00, 0x1FFF}};

/// The system's own tables of capitals and small letters.
class SystemCases : public testing::Test {
  protected:
    SystemCases() : locale_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)) {}
    ~SystemCases() override {
        if (locale_ != nullptr) freelocale(locale_);
    }
    void SetUp() override {
        if (locale_ == nullptr) GTEST_SKIP() << "no UTF-8 locale";
    }
    char32_t small(char32_t letter) const {
        return static_cast<char32_t>(towlower_l(static_cast<wint_t>(letter), locale_));
    }
    char32_t capital(char32_t letter) const {
        return static_cast<char32_t>(towupper_l(static_cast<wint_t>(letter), locale_));
    }

  private:
    locale_t locale_;
};

constexpr char32_t dottedCapitalI = 0x130; // its small letter is the plain i in Turkish only

TEST_F(SystemCases, CompareEqual) {
    for (const Block& block : letterBlocks)
        for (char32_t letter = block.first; letter <= block.last; ++letter) {
            if (letter == dottedCapitalI) continue;
            EXPECT_EQ(caseFolded(small(letter)), caseFolded(letter)) << std::hex << std::uint32_t{letter};
        }
}

TEST_F(SystemCases, AreTheOnlyLettersThatCompareEqual) {
    for (const Block& block : letterBlocks)
        for (char32_t letter = block.first; letter <= block.last; ++letter) {
            const char32_t folded = caseFolded(letter);
            EXPECT_TRUE(folded == letter || folded == small(letter) || capital(folded) == capital(letter) ||
                        folded == small(capital(letter)))
                << std::hex << std::uint32_t{letter};
        }
}

TEST(CaseFolded, TakesEachFormOfSigmaAndSForOneLetter) {
    EXPECT_EQ(caseFolded(U'\u03A3'), U'\u03C3');
    EXPECT_EQ(caseFolded(U'\u03C2'), U'\u03C3');
    EXPECT_EQ(caseFolded(U'\u017F'), U's');
    EXPECT_EQ(caseFolded(U'\u1E9E'), U'\u00DF');
}

TEST(CaseFolded, LeavesWhatHasNoCase) {
    for (const char32_t character : {U'0', U'@', U'[', U'\u00D7', U'\u00F7', U'\u4E2D', U'\U0001F69A'})
        EXPECT_EQ(caseFolded(character), character);
}

TEST(EqualIgnoringCase, GoesBeyondAsciiLetters) {
    EXPECT_TRUE(equalIgnoringCase("stra\u00DFe Zi\u00FCrich \u0416\u0443\u043A",
                                  "STRA\u1E9EE ZI\u00DCRICH \u0436\u0423\u041A"));
    EXPECT_FALSE(equalIgnoringCase("u", "\u00FC"));
    EXPECT_FALSE(equalIgnoringCase("\xFE", "\xFF"));
    EXPECT_FALSE(equalIgnoringCase("a", "ab"));
    EXPECT_FALSE(equalIgnoringCase("ab", "a"));
    EXPECT_TRUE(equalIgnoringCase("", ""));
}

TEST(EqualIgnoringCase, KnowsLettersThatAreWrittenInFewerBytes) {
    EXPECT_TRUE(equalIgnoringCase("We\u017Fer.dat", "WESER.DAT"));
    EXPECT_FALSE(equalIgnoringCase("We\u017F", "Weser"));
}

} // namespace
} // namespace vantore::tests
