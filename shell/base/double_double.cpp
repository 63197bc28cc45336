#include "shell/base/double_double.h"

#include <cmath>

#include "shell/base/arithmetic.h"
#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

/// What rounding takes off a sum or a product.
struct Rounded {
    double value, error;
};

Rounded sumOf(double a, double b) {
    const double sum = a + b;
    const double partOfB = sum - a;
    return {sum, (a - (sum - partOfB)) + (b - partOfB)};
}

Rounded productOf(double a, double b) {
    const double product = a * b;
    return {product, std::fma(a, b, -product)};
}

} // namespace

DoubleDouble DoubleDouble::quickSum(double larger, double smaller) {
    const double sum = finite(larger + smaller);
    return {sum, smaller - (sum - larger), Normal{}};
}

DoubleDouble& DoubleDouble::operator+=(DoubleDouble other) {
    const Rounded high = sumOf(high_, other.high_);
    const Rounded low = sumOf(low_, other.low_);
    const DoubleDouble sum = quickSum(high.value, high.error + low.value);
    return *this = quickSum(sum.high_, sum.low_ + low.error);
}

DoubleDouble& DoubleDouble::operator*=(DoubleDouble other) {
    const Rounded product = productOf(high_, other.high_);
    return *this = quickSum(product.value, product.error + (high_ * other.low_ + low_ * other.high_));
}

DoubleDouble& DoubleDouble::operator/=(DoubleDouble other) {
    if (other.high_ == 0) throw RuntimeError(ErrorNumber::DivisionByZero);
    // Long division with digits of 53 bits.
    const double first = high_ / other.high_;
    DoubleDouble rest = *this - other * first;
    const double second = rest.high_ / other.high_;
    rest -= other * second;
    return *this = quickSum(first, second) + rest.high_ / other.high_;
}

} // namespace vantore
