#pragma once

#include <cstdint>

namespace vantore {

/// Arithmetic that never yields an infinity or a NaN: what has no finite value is a RuntimeError.

/// `value` itself; Overflow unless it is finite.
double finite(double value);

/// a / b; DivisionByZero when b is 0, Overflow beyond the range.
double divide(double a, double b);

/// base ^ exponent; InvalidProcedureCall for a negative base with a fractional exponent,
/// DivisionByZero for 0 to a negative power, Overflow beyond the range.
double power(double base, double exponent);

/// The natural logarithm; InvalidProcedureCall for 0 or less.
double naturalLog(double value);

/// The square root; InvalidProcedureCall for a negative value.
double squareRoot(double value);

/// The largest whole number not above `value`: -1.5 gives -2.
double wholePart(double value);

/// `value` with its fraction cut off, towards 0.
double truncated(double value);

/// The nearest whole number, ties to the even one; Overflow outside the type's range.
std::int16_t toInt16(double value);
std::int32_t toInt32(double value);

} // namespace vantore
