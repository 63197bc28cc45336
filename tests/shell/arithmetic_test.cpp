#include <gtest/gtest.h>

#include <cmath>

#include "shell/base/arithmetic.h"
#include "shell/base/runtime_error.h"
#include "tests/support/error_of.h"

namespace vantore::tests {
namespace {

TEST(Arithmetic, HasAnErrorWhereThereIsNoFiniteValue) {
    EXPECT_EQ(errorOf([] { divide(1, 0); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] { divide(0, 0); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] { divide(1E308, 1E-10); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([] { power(-2, .5); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorOf([] { power(0, -1); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] { power(1E200, 2); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([] { naturalLog(0); }), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorOf([] { squareRoot(-1); }), ErrorNumber::InvalidProcedureCall);
}

TEST(Arithmetic, ComputesWhatHasAValue) {
    EXPECT_EQ(divide(-6, 4), -1.5);
    EXPECT_EQ(divide(0, 4), 0);
    EXPECT_EQ(power(-2, 3), -8);
    EXPECT_EQ(power(0, 0), 1);
    EXPECT_EQ(power(0, .5), 0);
    EXPECT_EQ(power(9, -.5), 1.0 / 3);
    EXPECT_EQ(squareRoot(0), 0);
    EXPECT_EQ(squareRoot(6.25), 2.5);
    EXPECT_EQ(naturalLog(1), 0);
    EXPECT_EQ(truncated(1.5), 1);
    EXPECT_EQ(wholePart(1.5), 1);
    EXPECT_EQ(finite(-1E308), -1E308);
    EXPECT_EQ(errorOf([] { finite(std::nan("")); }), ErrorNumber::Overflow);
}

TEST(Arithmetic, RoundsTiesToTheEvenWholeNumber) {
    EXPECT_EQ(toInt16(2.5), 2);
    EXPECT_EQ(toInt16(3.5), 4);
    EXPECT_EQ(toInt32(-2.5), -2);
    EXPECT_EQ(errorOf([] { toInt16(32767.5); }), ErrorNumber::Overflow);
    EXPECT_EQ(toInt16(32767), 32767);
    EXPECT_EQ(toInt16(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { toInt16(-32769); }), ErrorNumber::Overflow);
    EXPECT_EQ(toInt32(2147483647), 2147483647);
    EXPECT_EQ(toInt32(-2147483648.0), -2147483647 - 1);
    EXPECT_EQ(errorOf([] { toInt32(3E9); }), ErrorNumber::Overflow);
}

TEST(Arithmetic, TakesTheWholePartDownwards) {
    EXPECT_EQ(wholePart(-1.5), -2);
    EXPECT_EQ(truncated(-1.5), -1);
}

} // namespace
} // namespace vantore::tests
