#pragma once

#include <initializer_list>
#include <vector>

#include "demand/MULREG/problem.h"

namespace vantore::mulreg {

/// Observations from rows whose last value is the dependent one.
inline Observations observationsOf(const std::vector<std::vector<double>>& rows) {
    Observations observations;
    observations.count = static_cast<int>(rows.size());
    observations.variableCount = rows.empty() ? 1 : static_cast<int>(rows.front().size());
    for (int i = 1; i <= observations.count; ++i)
        for (int k = 1; k <= observations.variableCount; ++k)
            observations.x(i, k) =
                rows.at(static_cast<std::size_t>(i - 1)).at(static_cast<std::size_t>(k - 1));
    return observations;
}

} // namespace vantore::mulreg
