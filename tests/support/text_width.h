#pragma once

#include <string_view>

namespace vantore::tests {

/// Width in twips of a caption in the sans-serif font that the windows use, without its mnemonic mark.
double textWidth(std::string_view caption, double points, bool bold);

/// Height in twips of one line of text.
double lineHeight(double points);

} // namespace vantore::tests
