#include <gtest/gtest.h>

#include <vector>

#include "routing/destring.h"

namespace vantore::routing {
namespace {

std::vector<double> atBlanks(std::string_view text) {
    const CountedTable<double> numbers = destring(text);
    return {numbers.span().begin(), numbers.span().end()};
}

std::vector<double> atCommas(std::string_view text) {
    const CountedTable<double> numbers = destring2(text);
    return {numbers.span().begin(), numbers.span().end()};
}

TEST(Destring, TakesNumbersWithABlankInFrontOfEach) {
    EXPECT_EQ(atBlanks(" 3 1 2"), (std::vector<double>{3, 1, 2}));
    EXPECT_EQ(atBlanks(" 12"), (std::vector<double>{12}));
    EXPECT_EQ(destring(" 3 1 2")(1), 3);
}

TEST(Destring, NeedsNoBlankAtTheStart) {
    EXPECT_EQ(atBlanks("10 .5 -2"), (std::vector<double>{10, .5, -2}));
}

TEST(Destring, ReadsAnEmptyPlaceAsZero) {
    EXPECT_EQ(atBlanks(" 4  5"), (std::vector<double>{4, 0, 5}));
    EXPECT_EQ(atBlanks("  4"), (std::vector<double>{0, 4}));
    EXPECT_EQ(atBlanks("4 "), (std::vector<double>{4, 0}));
    EXPECT_EQ(atBlanks(""), (std::vector<double>{0}));
    EXPECT_EQ(atBlanks(" "), (std::vector<double>{0}));
}

TEST(Destring, TakesTheLeadingNumberOfEachPiece) {
    EXPECT_EQ(atBlanks(" 7x stop 8,9"), (std::vector<double>{7, 0, 8}));
}

TEST(Destring2, SplitsAtCommas) {
    EXPECT_EQ(atCommas("3, 1,2"), (std::vector<double>{3, 1, 2}));
    EXPECT_EQ(atCommas(",3,,1,"), (std::vector<double>{3, 0, 1, 0}));
    EXPECT_EQ(atCommas("5 6"), (std::vector<double>{5}));
}

} // namespace
} // namespace vantore::routing
