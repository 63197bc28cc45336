#include "demand/MULREG/transformation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "shell/base/runtime_error.h"

namespace vantore::mulreg {
namespace {

ErrorNumber errorOf(double x, Transformation transformation, double a) {
    try {
        transformed(x, transformation, a);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    throw std::logic_error("no error");
}

TEST(TransformationFor, KnowsSixAnswers) {
    EXPECT_EQ(transformationFor("1"), Transformation::Multiply);
    EXPECT_EQ(transformationFor(" 6 "), Transformation::Divide);
    for (const char* answer : {"", "0", "7", "12", "log", "1.5"})
        EXPECT_EQ(transformationFor(answer), std::nullopt);
}

TEST(Transformed, DoesWhatTheMenuSays) {
    EXPECT_EQ(transformed(3, Transformation::Multiply, -2), -6);
    EXPECT_EQ(transformed(3, Transformation::Power, 4), 81);
    EXPECT_DOUBLE_EQ(transformed(std::exp(2), Transformation::NaturalLog, 0), 2);
    EXPECT_EQ(transformed(3, Transformation::Add, .5), 3.5);
    EXPECT_EQ(transformed(3, Transformation::Subtract, .5), 2.5);
    EXPECT_EQ(transformed(3, Transformation::Divide, 4), .75);
}

TEST(Transformed, RefusesWhatHasNoValue) {
    EXPECT_EQ(errorOf(0, Transformation::NaturalLog, 0), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorOf(-1, Transformation::NaturalLog, 0), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorOf(1, Transformation::Divide, 0), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf(0, Transformation::Power, -1), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf(-8, Transformation::Power, .5), ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(errorOf(1e300, Transformation::Power, 2), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(1e300, Transformation::Multiply, 1e300), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf(1e300, Transformation::Divide, 1e-300), ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore::mulreg
