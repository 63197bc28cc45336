#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

#include "shell/base/double_double.h"
#include "tests/support/error_of.h"

namespace vantore::tests {
namespace {

__extension__ using Exact = __int128;

/// What the nearest double leaves of a number.
double rest(DoubleDouble number) {
    return (number - number.value()).value();
}

/// A number that is whole.
Exact exact(DoubleDouble number) {
    return static_cast<Exact>(number.value()) + static_cast<Exact>(rest(number));
}

TEST(DoubleDouble, KeepsWhatADoubleLoses) {
    EXPECT_EQ((DoubleDouble(1) + 1e-25 - 1).value(), 1e-25);
    EXPECT_EQ((DoubleDouble(1e-25) + 1 - 1).value(), 1e-25);
    EXPECT_EQ((DoubleDouble(1e16) + 1 - 1e16).value(), 1);
    EXPECT_EQ((1 - DoubleDouble(1e-25) - 1).value(), -1e-25);
    // .1 as a double lies 5.55E-18 above a tenth.
    EXPECT_NEAR((DoubleDouble(.1) * 10 - 1).value(), 5.551115123125783e-17, 1e-31);
    EXPECT_NEAR((1 / DoubleDouble(3) * 3 - 1).value(), 0, 1e-31);
}

TEST(DoubleDouble, AddsAndMultipliesWholeNumbersExactly) {
    std::mt19937_64 random(1);
    std::uniform_int_distribution<std::int64_t> number(-(1LL << 50), 1LL << 50);
    for (int i = 0; i < 1000; ++i) {
        const auto a = number(random);
        const auto b = number(random);
        const auto c = number(random);
        const DoubleDouble product = DoubleDouble(static_cast<double>(a)) * static_cast<double>(b);
        EXPECT_TRUE(exact(product) == Exact{a} * b) << a << " * " << b;
        EXPECT_TRUE(exact(product + static_cast<double>(c)) == Exact{a} * b + c) << a << ' ' << b << ' ' << c;
        EXPECT_TRUE(exact(static_cast<double>(c) - product) == c - Exact{a} * b) << a << ' ' << b << ' ' << c;
        const DoubleDouble other = DoubleDouble(static_cast<double>(c)) * static_cast<double>(b);
        EXPECT_TRUE(exact(product - other) == Exact{a} * b - Exact{c} * b) << a << ' ' << b << ' ' << c;
    }
}

TEST(DoubleDouble, DividesToThirtyDigits) {
    std::mt19937_64 random(2);
    std::uniform_real_distribution<double> number(-1000, 1000);
    for (int i = 0; i < 1000; ++i) {
        const DoubleDouble a = DoubleDouble(number(random)) + number(random) * 1e-20;
        const DoubleDouble b = DoubleDouble(number(random)) + number(random) * 1e-20;
        EXPECT_LE(std::abs((a / b * b - a).value()), 1e-30 * std::abs(a.value()));
    }
}

TEST(DoubleDouble, ComparesBeyondTheDigitsOfADouble) {
    const DoubleDouble more = DoubleDouble(1) + 1e-25;
    EXPECT_TRUE(more > 1);
    EXPECT_TRUE(-more < -1);
    EXPECT_TRUE(more != 1);
    EXPECT_TRUE(DoubleDouble(.5) + .5 == 1);
    EXPECT_EQ(abs(-more), more);
    EXPECT_EQ(abs(more), more);
}

TEST(DoubleDouble, ChecksItself) {
    const DoubleDouble large = std::numeric_limits<double>::max();
    EXPECT_EQ(errorOf([] { DoubleDouble(1) / 0; }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] { DoubleDouble(0) / 0; }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([&] { large + large; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { -large - large; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { large * 2; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { large / .5; }), ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore::tests
