#include <gtest/gtest.h>

#include <limits>

#include "shell/base/number_text.h"
#include "shell/base/runtime_error.h"

namespace vantore {
namespace {

TEST(DefaultText, HasNoZeroBeforeThePoint) {
    EXPECT_EQ(defaultText(.5), ".5");
    EXPECT_EQ(defaultText(-.25), "-.25");
    EXPECT_EQ(defaultText(3), "3");
    EXPECT_EQ(defaultText(1234.5), "1234.5");
    EXPECT_EQ(defaultText(0), "0");
    EXPECT_EQ(defaultText(-0.0), "0");
}

TEST(DefaultText, KeepsFifteenDigits) {
    EXPECT_EQ(defaultText(10.0 / 3), "3.33333333333333");
    EXPECT_EQ(defaultText(123456789012345), "123456789012345");
    EXPECT_EQ(defaultText(.1 + .2), ".3");
}

TEST(DefaultText, TakesAnExponentOutsideThePlainRange) {
    EXPECT_EQ(defaultText(1E15), "1E+15");
    EXPECT_EQ(defaultText(999999999999999.9), "1E+15");
    EXPECT_EQ(defaultText(.00001), ".00001");
    EXPECT_EQ(defaultText(.0000015), "1.5E-06");
    EXPECT_EQ(defaultText(-1.5E300), "-1.5E+300");
}

TEST(DefaultText, RefusesInfinity) {
    EXPECT_THROW(defaultText(std::numeric_limits<double>::infinity()), RuntimeError);
}

TEST(Fitted, IsTheDefaultTextWhereThatHasRoom) {
    EXPECT_EQ(fitted(1234.5, 7), "1234.5");
    EXPECT_EQ(fitted(-.25, 7), "-.25");
    EXPECT_EQ(fitted(0, 7), "0");
}

TEST(Fitted, LeavesOffDigitsAndThenTakesAnExponent) {
    EXPECT_EQ(fitted(1.0 / 3, 8), ".3333333");
    EXPECT_EQ(fitted(-2.0 / 3, 8), "-.666667");
    EXPECT_EQ(fitted(123456789, 8), "1.23E+08");
    EXPECT_EQ(fitted(999999999.5, 8), "1E+09");
    EXPECT_EQ(fitted(-1.23456E-300, 7), "-1E-300");
    EXPECT_EQ(fitted(1.0 / 7E+6, 10), "1.4286E-07");
}

TEST(Fitted, NeedsRoomForAnyNumber) {
    EXPECT_THROW(fitted(1, 6), RuntimeError);
}

TEST(Fitted, ShowsAsManyDigitsAsFit) {
    EXPECT_EQ(fitted(1234567, 7), "1234567");
    EXPECT_EQ(fitted(12345678, 7), "1.2E+07");
    EXPECT_EQ(fitted(1234.5678, 8), "1234.568");
    EXPECT_EQ(fitted(.000123456, 8), ".0001235");
    EXPECT_EQ(fitted(1.5E-10, 7), "1.5E-10");
    EXPECT_EQ(fitted(99999.996, 8), "100000");
}

TEST(Joined, AlwaysHasOneBlankBetween) {
    EXPECT_EQ(joined("Check point ", 6), "Check point 6");
    EXPECT_EQ(joined("Limit is", 500), "Limit is 500");
    EXPECT_EQ(joined("", 1), "1");
}

TEST(Val, TakesTheLongestNumericPrefix) {
    EXPECT_EQ(val("12abc"), 12);
    EXPECT_EQ(val("1,234"), 1);
    EXPECT_EQ(val("$5"), 0);
    EXPECT_EQ(val("."), 0);
    EXPECT_EQ(val(" \t+7."), 7);
    EXPECT_EQ(val("1.2.3"), 1.2);
    EXPECT_EQ(val("1d3"), 1000);
    EXPECT_EQ(val("2E"), 2);
    EXPECT_EQ(val("2e+"), 2);
    EXPECT_EQ(val(""), 0);
}

TEST(Val, TakesOneSignAndOneExponent) {
    EXPECT_EQ(val("-.5"), -.5);
    EXPECT_EQ(val("-"), 0);
    EXPECT_EQ(val("+-5"), 0);
    EXPECT_EQ(val("\n-3"), -3);
    EXPECT_EQ(val("\r3"), 0);
    EXPECT_EQ(val("1e2e3"), 100);
    EXPECT_EQ(val("1E-2"), .01);
    EXPECT_EQ(val("1D+2"), 100);
    EXPECT_EQ(val("e5"), 0);
    EXPECT_EQ(val(".e5"), 0);
    EXPECT_EQ(val("09"), 9);
}

TEST(Val, OverflowsOnlyUpwards) {
    EXPECT_THROW(val("1E999"), RuntimeError);
    EXPECT_EQ(val("1E-999"), 0);
    EXPECT_THROW(val("1" + std::string(400, '0')), RuntimeError);
    EXPECT_THROW(val("-1" + std::string(400, '0') + ".5"), RuntimeError);
    EXPECT_EQ(val("." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(val("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(val("0E999"), 0);
}

TEST(NumberFrom, TakesNothingButANumber) {
    EXPECT_EQ(numberFrom(" 2.5 "), 2.5);
    EXPECT_THROW(numberFrom("2x"), RuntimeError);
    EXPECT_THROW(numberFrom(""), RuntimeError);
    EXPECT_THROW(numberFrom("1,5"), RuntimeError);
}

TEST(Format, RoundsHalfAwayFromZeroOnFifteenDigits) {
    EXPECT_EQ(format(1.005, "0.00"), "1.01");
    EXPECT_EQ(format(-2.5, "0"), "-3");
    EXPECT_EQ(format(.05, "#.#"), ".1");
    EXPECT_EQ(format(999.995, "###,###.#0"), "1,000.00");
}

TEST(Format, PrintsThePlacesUpToAZero) {
    EXPECT_EQ(format(5, "###,###.#0"), "5.00");
    EXPECT_EQ(format(7, "##0#"), "07");
    EXPECT_EQ(format(0, "#.00"), ".00");
    EXPECT_EQ(format(12, "#000"), "012");
    EXPECT_EQ(format(0, "###"), "");
}

TEST(Format, AlwaysPrintsAPoint) {
    EXPECT_EQ(format(5, "0.####"), "5.");
    EXPECT_EQ(format(.5, "#.0"), ".5");
}

TEST(Format, GroupsByThreeAndNeverCutsIntegerDigits) {
    EXPECT_EQ(format(1234567, "#,##0"), "1,234,567");
    EXPECT_EQ(format(1234567, "##0"), "1234567");
    EXPECT_EQ(format(123, "#,##0"), "123");
}

TEST(Format, GroupsAtEachThousand) {
    EXPECT_EQ(format(999, "#,##0"), "999");
    EXPECT_EQ(format(1000, "#,##0"), "1,000");
    EXPECT_EQ(format(999999.5, "#,##0"), "1,000,000");
    EXPECT_EQ(format(1E15, "#,##0"), "1,000,000,000,000,000");
    EXPECT_EQ(format(7, "0,000"), "0,007");
    EXPECT_EQ(format(1234, "##0, units"), "1,234 units");
}

TEST(Format, RoundsAwayToTheNextPlace) {
    EXPECT_EQ(format(.5, "0"), "1");
    EXPECT_EQ(format(.49, "0"), "0");
    EXPECT_EQ(format(.04, "0.0"), "0.0");
    EXPECT_EQ(format(.004, "0.0"), "0.0");
    EXPECT_EQ(format(9.96, "0.0"), "10.0");
    EXPECT_EQ(format(.00096, "0.000"), "0.001");
    EXPECT_EQ(format(-1234.565, "###,###.#0"), "-1,234.57");
    EXPECT_EQ(format(1.10, "0.##"), "1.1");
    EXPECT_EQ(format(1.23456, "0.0##"), "1.235");
    EXPECT_EQ(format(123000, "0"), "123000");
}

TEST(Format, KeepsOtherCharactersWhereTheyStand) {
    EXPECT_EQ(format(-1234, "$#,###,###,##0"), "-$1,234");
    EXPECT_EQ(format(5, "$#,###,###,##0#"), "$05");
    EXPECT_EQ(format(.256, "####.0%"), "25.6%");
    EXPECT_EQ(format(42, " #####0"), " 42");
    EXPECT_EQ(format(3, "##0 "), "3 ");
    EXPECT_EQ(format(2.5, "   #####.#"), "   2.5");
}

TEST(Format, LeavesTheMinusOutWhenOnlyZerosArePrinted) {
    EXPECT_EQ(format(-.001, "0.00"), "0.00");
    EXPECT_EQ(format(-.005, "0.00"), "-0.01");
}

} // namespace
} // namespace vantore
