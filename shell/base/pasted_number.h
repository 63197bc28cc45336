#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantore {

/// How a user's locale writes numbers.
struct NumberMarks {
    char decimal = '.';
};

/// The plain text (a decimal point, no groups) of a number as people write it: a decimal point or comma,
/// thousands apart by points, commas, blanks or apostrophes. Where a text can be read in two ways, as "1,234"
/// can, the locale decides. Nothing when it is no number.
std::optional<std::string> pastedNumber(std::string_view text, NumberMarks marks);

} // namespace vantore
