#include "tests/location/plain_page.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace vantore::tests {

namespace {

/// The digits of |value| without its point, and where the point stands among them.
struct Digits {
    std::string digits;
    int point;
};

Digits digitsOf(double value) {
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.14e", std::abs(value));
    const std::string written = text.data();
    return {written.substr(0, 1) + written.substr(2, 14), std::atoi(written.substr(17).c_str()) + 1};
}

/// One more at the last digit, carried to the left.
void roundUp(std::string& digits, int& point) {
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
    if (i > 0) {
        ++digits[i - 1];
    } else {
        digits.insert(0, "1");
        ++point;
    }
}

} // namespace

std::string figure(double value, int decimals) {
    auto [digits, point] = digitsOf(value);
    const std::string zeros(static_cast<std::size_t>(point <= 0 ? 1 - point : 0), '0');
    digits = zeros + digits;
    point += static_cast<int>(zeros.size());
    const auto kept = static_cast<std::size_t>(point + decimals);
    if (kept < digits.size()) {
        const bool up = digits[kept] >= '5';
        digits.resize(kept);
        if (up) roundUp(digits, point);
    }
    digits.resize(static_cast<std::size_t>(point + decimals), '0');
    std::string whole = digits.substr(0, static_cast<std::size_t>(point));
    const std::string fraction = digits.substr(static_cast<std::size_t>(point));
    whole.erase(0, whole.find_first_not_of('0') == std::string::npos ? whole.size()
                                                                     : whole.find_first_not_of('0'));
    for (int i = static_cast<int>(whole.size()) - 3; i > 0; i -= 3)
        whole.insert(static_cast<std::size_t>(i), ",");
    if (decimals == 0) return whole.empty() ? "0" : whole;
    return whole + "." + fraction;
}

void PlainPage::at(int column, const std::string& text) {
    if (column < 1) column = 1;
    if (static_cast<int>(line_.size()) + 1 > column) end();
    line_ += std::string(static_cast<std::size_t>(column) - 1 - line_.size(), ' ') + text;
}

void PlainPage::before(int column, const std::string& text) {
    at(column - static_cast<int>(text.size()), text);
}

void PlainPage::end() {
    lines.push_back(line_);
    line_.clear();
}

void PlainPage::line(const std::string& text) {
    line_ += text;
    end();
}

} // namespace vantore::tests
