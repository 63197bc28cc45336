#include <gtest/gtest.h>

#include "shell/base/print_lines.h"
#include "shell/base/runtime_error.h"

namespace vantore {
namespace {

using Lines = std::vector<std::string>;

TEST(PrintLines, PutsItemsDirectlyBehindEachOther) {
    PrintLines page;
    page.text("a").text("b").number(3).number(-4).text("c").endLine();
    EXPECT_EQ(page.lines(), Lines{"ab 3 -4 c"});
}

TEST(PrintLines, CountsPositionsFromOne) {
    PrintLines page;
    page.tab(1).text("a").tab(4).text("d").endLine();
    EXPECT_EQ(page.lines(), Lines{"a  d"});
}

TEST(PrintLines, GoesToTheNextLineWhenThePositionIsPassed) {
    PrintLines page;
    page.text("abcd").tab(4).text("x").endLine();
    EXPECT_EQ(page.lines(), (Lines{"abcd", "   x"}));
    PrintLines fits;
    fits.text("abc").tab(4).text("x").endLine();
    EXPECT_EQ(fits.lines(), Lines{"abcx"});
}

TEST(PrintLines, TakesPositionsBelowOneAsOneAndRoundsTiesToEven) {
    PrintLines page;
    page.tab(-3).text("a").tab(4.5).text("d").endLine();
    EXPECT_EQ(page.lines(), Lines{"a  d"});
}

TEST(PrintLines, StartsEachLineAtItsFirstPosition) {
    PrintLines page;
    page.text("abc").endLine().tab(2).text("x").endLine().endLine().line("y").line("");
    EXPECT_EQ(page.lines(), (Lines{"abc", " x", "", "y", ""}));
}

TEST(PrintLines, EndsATextBeforeItsRightPosition) {
    PrintLines page;
    page.right(6, "12.50").right(10, "7").endLine();
    EXPECT_EQ(page.lines(), Lines{"12.50   7"});
}

TEST(PrintLines, CountsCharactersNotBytes) {
    PrintLines page;
    page.text("\xC3\xBC")
        .tab(3)
        .text("x")
        .right(8, "\xE2\x82\xAC"
                  "5")
        .endLine();
    EXPECT_EQ(page.lines(), Lines{"\xC3\xBC x  \xE2\x82\xAC"
                                  "5"});
}

TEST(PrintLines, RefusesPositionsThatNoLineHas) {
    PrintLines page;
    EXPECT_THROW(page.tab(1E9), RuntimeError);
    EXPECT_THROW(page.tab(32768), RuntimeError);
    EXPECT_EQ(page.tab(32767).text("x").endLine().lines().at(0).size(), 32767U);
}

} // namespace
} // namespace vantore
