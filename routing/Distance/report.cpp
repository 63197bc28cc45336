#include "routing/Distance/report.h"

#include "shell/base/arithmetic.h"
#include "shell/base/number_text.h"

namespace vantore::distance {

namespace {

constexpr std::string_view totalMask = "##,###.#0";

double cutToHundredths(double value) {
    return wholePart(finite(value * 100)) / 100;
}

} // namespace

Shown shownOnGrid(double distance, double total) {
    return {format(distance, totalMask), format(total, totalMask)};
}

Shown shownOverEarth(double distance, std::string_view totalBox) {
    return {defaultText(cutToHundredths(distance)),
            format(cutToHundredths(val(totalBox) + distance), totalMask)};
}

} // namespace vantore::distance
