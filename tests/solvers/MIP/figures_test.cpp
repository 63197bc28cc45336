#include "solvers/MIP/figures.h"

#include <gtest/gtest.h>
#include <random>

#include "shell/base/number_text.h"

namespace vantore::mip::tests {
namespace {

std::string figureOf(const char* fraction) {
    Rational value(fraction);
    value.canonicalize();
    return figure(value);
}

TEST(Figure, ShowsAllDigitsWhereThereAreFew) {
    EXPECT_EQ(figureOf("0"), "0");
    EXPECT_EQ(figureOf("282"), "282");
    EXPECT_EQ(figureOf("-1/4"), "-.25");
    EXPECT_EQ(figureOf("1234567890123/100"), "12345678901.23");
    EXPECT_EQ(figureOf("3/100000"), ".00003");
    EXPECT_EQ(figureOf("123456789012345"), "123456789012345");
    EXPECT_EQ(figureOf("5/4"), "1.25");
}

TEST(Figure, RoundsToTenDigitsWhereThereAreMany) {
    EXPECT_EQ(figureOf("1/3"), ".3333333333");
    EXPECT_EQ(figureOf("-2/3"), "-.6666666667");
    EXPECT_EQ(figureOf("200000/3"), "66666.66667");
    EXPECT_EQ(figureOf("99999999999999999/100000000000000000"), "1");
    EXPECT_EQ(figureOf("1234567890123456"), "1.23456789E+15");
}

TEST(Figure, UsesAnExponentWhereNumbersAreLargeOrSmall) {
    EXPECT_EQ(figureOf("1000000000000000"), "1E+15");
    EXPECT_EQ(figureOf("1/200000"), "5E-06");
    EXPECT_EQ(figure(exact(-1.5E-300)), "-1.5E-300");
    EXPECT_EQ(figure(exact(1E+300) * exact(1.2E+300)), "1.2E+600");
}

TEST(Figure, IsTheDefaultTextOfAnyTypedNumber) {
    std::mt19937_64 random(3);
    for (int k = 0; k < 3000; ++k) {
        const auto digits = static_cast<double>(random() % 1000000000000000ULL);
        const double value =
            numberFrom(defaultText(digits) + "E" + std::to_string(static_cast<int>(random() % 40) - 30));
        ASSERT_EQ(figure(exact(value)), defaultText(value));
    }
}

TEST(FigureTable, HasColumnsAsWideAsWhatStandsInThem) {
    FigureTable table;
    table.column("", "No.", FigureTable::Side::Right, {"1", "2"});
    table.column("A", "name", FigureTable::Side::Left, {"Kühlhaus", "B"});
    table.column("", "Value", FigureTable::Side::Right, {"-1234567.25", "3"});
    PrintLines page;
    table.print(page);
    EXPECT_EQ(page.lines(),
              (std::vector<std::string>{"     A", "No.  name            Value", "  1  Kühlhaus  -1234567.25",
                                        "  2  B                   3"}));
}

} // namespace
} // namespace vantore::mip::tests
