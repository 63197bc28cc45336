#include "shell/base/arithmetic.h"

#include <cmath>
#include <limits>

#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

template <class Integer>
Integer rounded(double value) {
    const double nearest = std::nearbyint(value);
    if (!(nearest >= std::numeric_limits<Integer>::min() && nearest <= std::numeric_limits<Integer>::max()))
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<Integer>(nearest);
}

} // namespace

double finite(double value) {
    if (!std::isfinite(value)) throw RuntimeError(ErrorNumber::Overflow);
    return value;
}

double divide(double a, double b) {
    if (b == 0) throw RuntimeError(ErrorNumber::DivisionByZero);
    return finite(a / b);
}

double power(double base, double exponent) {
    if (base < 0 && exponent != std::trunc(exponent)) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    if (base == 0 && exponent < 0) throw RuntimeError(ErrorNumber::DivisionByZero);
    return finite(std::pow(base, exponent));
}

double naturalLog(double value) {
    if (!(value > 0)) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return std::log(value);
}

double squareRoot(double value) {
    if (!(value >= 0)) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    return std::sqrt(value);
}

double wholePart(double value) {
    return std::floor(value);
}

double truncated(double value) {
    return std::trunc(value);
}

std::int16_t toInt16(double value) {
    return rounded<std::int16_t>(value);
}

std::int32_t toInt32(double value) {
    return rounded<std::int32_t>(value);
}

} // namespace vantore
