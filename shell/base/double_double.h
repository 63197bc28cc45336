#pragma once

#include <compare>

namespace vantore {

/// A number of twice the precision of a double, about 32 digits: the sum of two doubles of which the second
/// is no more than half a unit in the last place of the first. It takes over where a difference of two large
/// sums is all that matters.
///
/// The arithmetic checks itself: DivisionByZero for a divisor of 0, Overflow beyond the double range.
/// Sources: Dekker, "A floating-point technique for extending the available precision", Numerische Mathematik
/// 18 (1971); Knuth, The Art of Computer Programming 2, section 4.2.2 (1969).
class DoubleDouble {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): a double is one, without any loss
    DoubleDouble(double value = 0) : high_(value) {}

    /// The nearest double.
    double value() const { return high_; }

    DoubleDouble operator-() const { return {-high_, -low_, Normal{}}; }
    DoubleDouble& operator+=(DoubleDouble other);
    DoubleDouble& operator-=(DoubleDouble other) { return *this += -other; }
    DoubleDouble& operator*=(DoubleDouble other);
    DoubleDouble& operator/=(DoubleDouble other);

    friend DoubleDouble operator+(DoubleDouble a, DoubleDouble b) { return a += b; }
    friend DoubleDouble operator-(DoubleDouble a, DoubleDouble b) { return a -= b; }
    friend DoubleDouble operator*(DoubleDouble a, DoubleDouble b) { return a *= b; }
    friend DoubleDouble operator/(DoubleDouble a, DoubleDouble b) { return a /= b; }
    friend auto operator<=>(const DoubleDouble&, const DoubleDouble&) = default;

  private:
    struct Normal {};
    DoubleDouble(double high, double low, Normal /*both are as they must be*/) : high_(high), low_(low) {}

    /// The exact sum; `larger` is 0 or not below `smaller` in size. Overflow beyond the range.
    static DoubleDouble quickSum(double larger, double smaller);

    double high_ = 0;
    double low_ = 0;
};

/// The absolute value.
inline DoubleDouble abs(DoubleDouble value) {
    return value < 0 ? -value : value;
}

} // namespace vantore
