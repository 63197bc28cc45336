#pragma once

#include <string>
#include <string_view>

namespace vantore::distance {

/// What the two result boxes show.
struct Shown {
    std::string distance;
    std::string total;
};

/// A distance on the grid and the running total that it has been added to.
Shown shownOnGrid(double distance, double total);

/// A distance over the earth, and the running total. The total is read back from its box, where a thousands
/// comma ends the number, and both figures are cut to two places. Overflow beyond the double range.
Shown shownOverEarth(double distance, std::string_view totalBox);

} // namespace vantore::distance
