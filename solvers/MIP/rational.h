#pragma once

#include <gmpxx.h>
#include <optional>
#include <vector>

namespace vantore::mip {

using Integer = mpz_class;
using Rational = mpq_class;

/// The decimal number that a double stands for: the shortest one that reads as this double, which is the one
/// that was typed where that had no more than 15 digits.
Rational exact(double value);

/// A double next to the number; the largest one where the number is beyond its range.
double approximate(const Rational& value);

inline Integer floorOf(const Integer& dividend, const Integer& divisor) {
    Integer result;
    mpz_fdiv_q(result.get_mpz_t(), dividend.get_mpz_t(), divisor.get_mpz_t());
    return result;
}

inline Integer ceilingOf(const Integer& dividend, const Integer& divisor) {
    Integer result;
    mpz_cdiv_q(result.get_mpz_t(), dividend.get_mpz_t(), divisor.get_mpz_t());
    return result;
}

inline bool isWhole(const Rational& value) {
    return value.get_den() == 1;
}

} // namespace vantore::mip
