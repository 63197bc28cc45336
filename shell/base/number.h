#pragma once

#include <cmath>
#include <type_traits>

#include "shell/base/runtime_error.h"

namespace vantore {

/// A double that checks itself, so that a formula stands as in the textbook and yet never yields an infinity
/// or a NaN: DivisionByZero for a divisor of 0, Overflow for what is beyond the range.
///
///     const Number demand = product.avgDemand;
///     const Number cycles = demand / orderQuantity;
///
/// An operation is checked when one of its operands is a Number; of plain doubles the result is, once it
/// becomes one. In the innermost loops a check of the whole row is cheaper.
class Number {
  public:
    Number() = default;

    // Both conversions lose nothing but the check.
    // NOLINTBEGIN(google-explicit-constructor)
    template <class T>
    requires std::is_arithmetic_v<T> Number(T value) : value_(static_cast<double>(value)) {
        if (!std::isfinite(value_)) throw RuntimeError(ErrorNumber::Overflow);
    }
    operator double() const { return value_; }
    // NOLINTEND(google-explicit-constructor)

    Number operator-() const { return -value_; }
    Number& operator+=(Number other) { return *this = value_ + other.value_; }
    Number& operator-=(Number other) { return *this = value_ - other.value_; }
    Number& operator*=(Number other) { return *this = value_ * other.value_; }
    Number& operator/=(Number other) {
        if (other.value_ == 0) throw RuntimeError(ErrorNumber::DivisionByZero);
        return *this = value_ / other.value_;
    }

  private:
    double value_ = 0;
};

/// Two operands of which at least one is a Number and the other any number.
template <class A, class B>
concept CheckedOperands = (std::is_same_v<A, Number> &&
                           (std::is_same_v<B, Number> || std::is_arithmetic_v<B>)) ||
                          (std::is_arithmetic_v<A> && std::is_same_v<B, Number>);

template <class A, class B>
requires CheckedOperands<A, B> Number operator+(A a, B b) {
    return Number(a) += b;
}

template <class A, class B>
requires CheckedOperands<A, B> Number operator-(A a, B b) {
    return Number(a) -= b;
}

template <class A, class B>
requires CheckedOperands<A, B> Number operator*(A a, B b) {
    return Number(a) *= b;
}

template <class A, class B>
requires CheckedOperands<A, B> Number operator/(A a, B b) {
    return Number(a) /= b;
}

} // namespace vantore
