#pragma once

#include <vector>

#include "shell/grid_columns.h"

namespace vantore {

/// The headings of a grid of weighted points.
inline std::vector<ColumnHeading> pointHeadings() {
    return {{"Point no.", 900},          {" \r\nPoint label", 3000}, {"X coor-\r\ndinate", 1250},
            {"Y coor-\r\ndinate", 1250}, {" \r\nVolume", 1400},      {"Transport\r\nrate", 1250}};
}

} // namespace vantore
