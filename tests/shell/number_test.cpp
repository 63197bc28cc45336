#include <gtest/gtest.h>

#include <limits>

#include "shell/base/number.h"
#include "tests/support/error_of.h"

namespace vantore::tests {
namespace {

constexpr double largest = std::numeric_limits<double>::max();

TEST(Number, ComputesAsADouble) {
    const Number a = .1;
    EXPECT_EQ(double{a + .2}, .1 + .2);
    EXPECT_EQ(double{3 - a}, 3 - .1);
    EXPECT_EQ(double{a * 3}, .1 * 3);
    EXPECT_EQ(double{1 / a}, 1 / .1);
    EXPECT_EQ(double{a / 3}, .1 / 3);
    EXPECT_EQ(double{-a}, -.1);
    Number sum;
    sum += a;
    sum -= .3;
    sum *= 7;
    sum /= 2;
    EXPECT_EQ(double{sum}, (.1 - .3) * 7 / 2);
    EXPECT_TRUE(a < .2 && a > 0 && a == .1);
}

TEST(Number, DividesByNothingButNumbersOtherThanZero) {
    const Number zero;
    EXPECT_EQ(errorOf([&] { 1 / zero; }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([&] { zero / zero; }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([&] { Number(2) / 0; }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([&] { Number(2) / -0.0; }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([&] { Number(largest) / .5; }), ErrorNumber::Overflow);
}

TEST(Number, NeverLeavesTheRange) {
    const Number large = largest;
    EXPECT_EQ(errorOf([&] { large + largest; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { -large - large; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { 2 * large; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { Number{2 * largest}; }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] { Number{std::numeric_limits<double>::quiet_NaN()}; }), ErrorNumber::Overflow);
    EXPECT_EQ(double{large - largest}, 0);
}

} // namespace
} // namespace vantore::tests
