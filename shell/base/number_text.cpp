#include "shell/base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "shell/base/arithmetic.h"
#include "shell/base/runtime_error.h"

namespace vantore {

namespace {

constexpr int significantDigits = 15;
constexpr double firstWithExponent = 1E15;
constexpr std::size_t leastFittedWidth = 7; // "-1E-308"

/// A number as sign, significant decimal digits (the first not 0, none for 0) and the place of the point:
/// `point` digits stand before it. 0.00123 has digits "123" and point -2.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

Decimal decimalOf(double value) {
    Decimal result;
    if (finite(value) == 0) return result;
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, significantDigits - 1);
    std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    result.negative = text.front() == '-';
    if (result.negative) text.remove_prefix(1);
    const std::size_t e = text.find('e');
    result.digits = std::string(text.substr(0, 1)).append(text.substr(2, e - 2));
    result.digits.erase(result.digits.find_last_not_of('0') + 1);
    std::string_view exponent = text.substr(e + 1);
    if (exponent.front() == '+') exponent.remove_prefix(1);
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), result.point);
    ++result.point;
    return result;
}

std::string plainText(const Decimal& number) {
    const auto count = static_cast<int>(number.digits.size());
    if (number.point <= 0)
        return "." + std::string(static_cast<std::size_t>(-number.point), '0') + number.digits;
    if (number.point >= count)
        return number.digits + std::string(static_cast<std::size_t>(number.point - count), '0');
    std::string text = number.digits;
    return text.insert(static_cast<std::size_t>(number.point), 1, '.');
}

std::string exponentText(const Decimal& number) {
    const int exponent = number.point - 1;
    std::string text = number.digits.substr(0, 1);
    if (number.digits.size() > 1) text += "." + number.digits.substr(1);
    const std::string places = std::to_string(exponent < 0 ? -exponent : exponent);
    return text + (exponent < 0 ? "E-" : "E+") + (places.size() < 2 ? "0" : "") + places;
}

/// The default text is without an exponent.
bool isPlain(const Decimal& number) {
    return number.point > -5 && number.point <= significantDigits;
}

/// Rounds to `decimals` places after the point, half away from zero.
void roundTo(Decimal& number, int decimals) {
    const int keep = number.point + decimals;
    if (keep >= static_cast<int>(number.digits.size())) return;
    if (keep < 0) {
        number.digits.clear();
        return;
    }
    const bool up = number.digits[static_cast<std::size_t>(keep)] >= '5';
    number.digits.resize(static_cast<std::size_t>(keep));
    if (!up) return;
    int i = keep - 1;
    for (; i >= 0 && number.digits[static_cast<std::size_t>(i)] == '9'; --i)
        number.digits[static_cast<std::size_t>(i)] = '0';
    if (i >= 0) {
        ++number.digits[static_cast<std::size_t>(i)];
        return;
    }
    number.digits.insert(0, 1, '1');
    ++number.point;
}

/// The digits before and after the point, without the zeros that no place needs.
struct Places {
    std::string whole, fraction;
};

Places placesOf(const Decimal& number) {
    Places result;
    if (number.digits.find_first_not_of('0') == std::string::npos) return result;
    const auto count = static_cast<int>(number.digits.size());
    for (int i = 0; i < number.point; ++i)
        result.whole += i < count ? number.digits[static_cast<std::size_t>(i)] : '0';
    for (int i = number.point; i < count; ++i)
        result.fraction += i < 0 ? '0' : number.digits[static_cast<std::size_t>(i)];
    result.fraction.erase(result.fraction.find_last_not_of('0') + 1);
    return result;
}

bool isPlaceholder(char c) {
    return c == '#' || c == '0';
}

/// What a mask asks for, read once.
struct Mask {
    std::string_view whole, fraction;
    bool hasPoint = false;
    bool grouped = false;
    bool percent = false;
    int wholePlaces = 0;
    int leastWhole = 0;
    int leastFraction = 0;
    int mostFraction = 0;

    explicit Mask(std::string_view mask) {
        const std::size_t point = mask.find('.');
        hasPoint = point != std::string_view::npos;
        whole = mask.substr(0, point);
        if (hasPoint) fraction = mask.substr(point + 1);
        percent = mask.find('%') != std::string_view::npos;
        const std::size_t comma = whole.find(',');
        grouped = comma != std::string_view::npos && whole.find_first_of("#0") < comma;
        for (const char c : whole) {
            if (!isPlaceholder(c)) continue;
            ++wholePlaces;
            if (leastWhole > 0 || c == '0') ++leastWhole;
        }
        for (const char c : fraction) {
            if (!isPlaceholder(c)) continue;
            ++mostFraction;
            if (c == '0') leastFraction = mostFraction;
        }
    }
};

/// Appends one integer digit, with the comma that belongs behind it when the mask groups.
void appendWholeDigit(std::string& out, const std::string& digits, std::size_t at, bool grouped) {
    out += digits[at];
    const std::size_t behind = digits.size() - at - 1;
    if (grouped && behind > 0 && behind % 3 == 0) out += ',';
}

std::string wholeText(const Mask& mask, std::string digits) {
    if (digits.size() < static_cast<std::size_t>(mask.leastWhole))
        digits.insert(0, static_cast<std::size_t>(mask.leastWhole) - digits.size(), '0');
    std::string out;
    std::size_t next = 0;
    int placesLeft = mask.wholePlaces;
    for (const char c : mask.whole) {
        if (isPlaceholder(c)) {
            while (next < digits.size() && digits.size() - next >= static_cast<std::size_t>(placesLeft))
                appendWholeDigit(out, digits, next++, mask.grouped);
            --placesLeft;
            // The last place has taken all digits that are left.
        } else if (c != ',' || !mask.grouped) {
            out += c;
        }
    }
    while (next < digits.size()) appendWholeDigit(out, digits, next++, mask.grouped);
    return out;
}

std::string fractionText(const Mask& mask, std::string digits) {
    if (digits.size() < static_cast<std::size_t>(mask.leastFraction))
        digits.append(static_cast<std::size_t>(mask.leastFraction) - digits.size(), '0');
    std::string out;
    std::size_t next = 0;
    for (const char c : mask.fraction) {
        if (!isPlaceholder(c)) {
            out += c;
        } else if (next < digits.size()) {
            out += digits[next++];
        }
    }
    return out;
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// The numeric prefix of a text, in the form that std::from_chars takes, and where it ends.
struct NumericPrefix {
    std::string text;
    std::size_t end = 0;
    bool hasDigits = false;
};

std::size_t copyDigits(std::string_view text, std::size_t at, std::string& out) {
    for (; at < text.size() && isDigit(text[at]); ++at) out += text[at];
    return at;
}

std::size_t copyExponent(std::string_view text, std::size_t at, std::string& out) {
    if (at >= text.size() || std::string_view("eEdD").find(text[at]) == std::string_view::npos) return at;
    std::string exponent = "e";
    std::size_t next = at + 1;
    if (next < text.size() && (text[next] == '+' || text[next] == '-')) exponent += text[next++];
    const std::size_t end = copyDigits(text, next, exponent);
    if (end == next) return at;
    out += exponent;
    return end;
}

NumericPrefix numericPrefix(std::string_view text) {
    NumericPrefix prefix;
    std::size_t at = std::min(text.find_first_not_of(" \t\n"), text.size());
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
        if (text[at] == '-') prefix.text = "-";
        ++at;
    }
    const std::size_t signs = prefix.text.size();
    at = copyDigits(text, at, prefix.text);
    std::size_t points = 0;
    if (at < text.size() && text[at] == '.') {
        prefix.text += '.';
        points = 1;
        at = copyDigits(text, at + 1, prefix.text);
    }
    prefix.hasDigits = prefix.text.size() > signs + points;
    if (prefix.hasDigits) prefix.end = copyExponent(text, at, prefix.text);
    return prefix;
}

/// The sign of the power of ten of a number text, for numbers at the far ends of the double range.
int decimalExponent(std::string_view text) {
    const std::size_t e = std::min(text.find('e'), text.size());
    std::string_view exponent = text.substr(std::min(e + 1, text.size()));
    if (exponent.starts_with('-')) return -1;
    if (!exponent.empty()) return 1;
    const std::size_t point = std::min(text.find('.'), e);
    return text.substr(0, point).find_first_of("123456789") == std::string_view::npos ? -1 : 1;
}

double valueOf(const NumericPrefix& prefix) {
    double value = 0;
    const auto result = std::from_chars(prefix.text.data(), prefix.text.data() + prefix.text.size(), value);
    if (result.ec != std::errc::result_out_of_range) return value;
    // from_chars reports both ends of the range alike; what is too small for a double is 0.
    if (decimalExponent(prefix.text) < 0) return 0;
    throw RuntimeError(ErrorNumber::Overflow);
}

} // namespace

std::string defaultText(double value) {
    // Whole numbers by a short way: files and traces are full of them.
    if (std::abs(value) < firstWithExponent && value == std::trunc(value))
        return std::to_string(static_cast<long long>(value));
    const Decimal number = decimalOf(value);
    if (number.digits.empty()) return "0";
    return (number.negative ? "-" : "") + (isPlain(number) ? plainText(number) : exponentText(number));
}

std::string fitted(double value, std::size_t width) {
    if (width < leastFittedWidth) throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    const std::string whole = defaultText(value);
    if (whole.size() <= width) return whole;
    const Decimal exact = decimalOf(value);
    for (int digits = significantDigits; digits > 0; --digits) {
        Decimal number = exact;
        roundTo(number, digits - number.point);
        number.digits.erase(number.digits.find_last_not_of('0') + 1);
        const std::string sign = number.negative ? "-" : "";
        const bool plain = isPlain(number);
        if (plain && sign.size() + plainText(number).size() <= width) return sign + plainText(number);
        if (sign.size() + exponentText(number).size() <= width) return sign + exponentText(number);
    }
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
}

std::string str(double value) {
    const std::string text = defaultText(value);
    return text.front() == '-' ? text : " " + text;
}

std::string joined(std::string_view before, double value) {
    const bool separated = before.empty() || before.back() == ' ';
    return std::string(before) + (separated ? defaultText(value) : str(value));
}

double val(std::string_view text) {
    const NumericPrefix prefix = numericPrefix(text);
    return prefix.hasDigits ? valueOf(prefix) : 0;
}

double numberFrom(std::string_view text) {
    const NumericPrefix prefix = numericPrefix(text);
    if (!prefix.hasDigits || text.find_first_not_of(' ', prefix.end) != std::string_view::npos)
        throw RuntimeError(ErrorNumber::TypeMismatch);
    return valueOf(prefix);
}

std::string format(double value, std::string_view maskText) {
    const Mask mask(maskText);
    Decimal number = decimalOf(value);
    if (mask.percent) number.point += 2;
    roundTo(number, mask.mostFraction);
    const Places places = placesOf(number);
    const bool negative = number.negative && !(places.whole.empty() && places.fraction.empty());
    return (negative ? "-" : "") + wholeText(mask, places.whole) + (mask.hasPoint ? "." : "") +
           fractionText(mask, places.fraction);
}

} // namespace vantore
