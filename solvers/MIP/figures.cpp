#include "solvers/MIP/figures.h"

#include <algorithm>
#include <utility>

#include "shell/base/text.h"

namespace vantore::mip {

namespace {

constexpr long mostDigits = 15;
constexpr long roundedDigits = 10;

/// The value is digits x 10 ^ power.
struct Decimal {
    Integer digits;
    long power = 0;
    bool exact = false;
};

Integer powerOf10(long exponent) {
    Integer result;
    mpz_ui_pow_ui(result.get_mpz_t(), 10, static_cast<unsigned long>(exponent));
    return result;
}

/// A positive value times 10 ^ -power, rounded to a whole number, half up.
Decimal decimalAt(const Rational& value, long power) {
    const Integer numerator = value.get_num() * powerOf10(std::max(-power, 0L));
    const Integer denominator = value.get_den() * powerOf10(std::max(power, 0L));
    const Integer digits = floorOf(2 * numerator + denominator, 2 * denominator);
    return {digits, power, digits * denominator == numerator};
}

/// A positive value rounded to `count` significant digits.
Decimal decimalOf(const Rational& value, long count) {
    const auto sizeOf = [](const Integer& number) {
        return static_cast<long>(mpz_sizeinbase(number.get_mpz_t(), 10));
    };
    long power = sizeOf(value.get_num()) - sizeOf(value.get_den()) - count - 1;
    Decimal decimal = decimalAt(value, power);
    while (decimal.digits >= powerOf10(count)) decimal = decimalAt(value, ++power);
    return decimal;
}

/// Plain where it has no more than 15 digits before the point and begins in the first five places behind it,
/// else with an exponent.
std::string textOf(const Decimal& decimal) {
    std::string digits = decimal.digits.get_str();
    const long first = decimal.power + static_cast<long>(digits.size()) - 1; // power of the first digit
    digits.erase(digits.find_last_not_of('0') + 1);
    const auto places = static_cast<long>(digits.size());
    constexpr long leastPlain = -5;
    if (first < leastPlain || first >= mostDigits) {
        std::string exponent = std::to_string(std::abs(first));
        if (exponent.size() < 2) exponent.insert(0, "0");
        if (places > 1) digits.insert(1, ".");
        return digits + "E" + (first < 0 ? "-" : "+") + exponent;
    }
    if (first < 0) return "." + std::string(static_cast<std::size_t>(-first - 1), '0') + digits;
    if (places <= first + 1) return digits + std::string(static_cast<std::size_t>(first + 1 - places), '0');
    return digits.insert(static_cast<std::size_t>(first + 1), ".");
}

} // namespace

std::string figure(const Rational& value) {
    if (value == 0) return "0";
    const Rational size = abs(value);
    Decimal decimal = decimalOf(size, mostDigits);
    if (!decimal.exact) decimal = decimalOf(size, roundedDigits);
    return (value < 0 ? "-" : "") + textOf(decimal);
}

void FigureTable::column(std::string heading, std::string subheading, Side side,
                         std::vector<std::string> cells) {
    cells.insert(cells.begin(), {std::move(heading), std::move(subheading)});
    columns_.push_back({side, std::move(cells)});
}

void FigureTable::print(PrintLines& page) const {
    constexpr std::size_t between = 2;
    std::vector<std::string> lines;
    for (const Column& column : columns_) {
        std::size_t width = 0;
        for (const std::string& cell : column.cells) width = std::max(width, length(cell));
        lines.resize(std::max(lines.size(), column.cells.size()));
        for (std::size_t i = 0; i < column.cells.size(); ++i) {
            const std::string& cell = column.cells[i];
            const std::string room(width - length(cell), ' ');
            lines[i].append(lines[i].empty() ? 0 : between, ' ');
            lines[i] += column.side == Side::Left ? cell + room : room + cell;
        }
    }
    for (const std::string& line : lines) page.line(trimmedRight(line));
}

} // namespace vantore::mip
