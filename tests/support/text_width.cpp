#include "tests/support/text_width.h"

#include <array>

#include "shell/base/text.h"

namespace vantore::tests {

namespace {

constexpr double twipsPerPoint = 20;
constexpr double boldFactor = 1.08;
constexpr int unlistedWidth = 556;

/// Advance widths of U+0020 to U+007E in thousandths of the font size; the Liberation Sans and Helvetica
/// metrics, as in Adobe's font metrics for Helvetica (1990).
constexpr std::array<int, 95> widths = {
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333,  278, 278, 556, 556, 556,
    556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556, 1015, 667, 667, 722, 722, 667,
    611, 778, 722, 278, 500, 667, 556, 833, 722, 778, 667, 778, 722, 667,  611, 722, 667, 944, 667,
    667, 611, 278, 278, 278, 469, 556, 333, 556, 556, 500, 556, 556, 278,  556, 556, 222, 222, 500,
    222, 833, 556, 556, 556, 556, 333, 500, 278, 556, 500, 722, 500, 500,  500, 334, 260, 334, 584};

} // namespace

double textWidth(std::string_view caption, double points, bool bold) {
    double thousandths = 0;
    for (const char32_t point : codePoints(replaced(caption, "&", "")))
        thousandths += point >= 0x20 && point <= 0x7E ? widths.at(point - 0x20) : unlistedWidth;
    return thousandths / 1000 * points * twipsPerPoint * (bold ? boldFactor : 1);
}

double lineHeight(double points) {
    return 1.15 * points * twipsPerPoint;
}

} // namespace vantore::tests
