#include "solvers/MIP/rational.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace vantore::mip {

Rational exact(double value) {
    std::array<char, 32> text{};
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::scientific).ptr;
    std::string digits(text.data(), end);
    const std::size_t e = digits.find('e');
    long power = std::stol(digits.substr(e + 1));
    digits.erase(e);
    if (const std::size_t point = digits.find('.'); point != std::string::npos) {
        power -= static_cast<long>(digits.size() - point) - 1;
        digits.erase(point, 1);
    }
    Integer scale;
    mpz_ui_pow_ui(scale.get_mpz_t(), 10, static_cast<unsigned long>(std::labs(power)));
    const Integer mantissa(digits);
    Rational result = power < 0 ? Rational(mantissa, scale) : Rational(mantissa * scale);
    result.canonicalize();
    return result;
}

double approximate(const Rational& value) {
    constexpr double most = std::numeric_limits<double>::max();
    if (abs(value) > most) return value > 0 ? most : -most;
    return value.get_d();
}

} // namespace vantore::mip
