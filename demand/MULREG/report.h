#pragma once

#include <optional>
#include <vector>

#include "demand/MULREG/method.h"
#include "demand/MULREG/problem.h"
#include "shell/base/print_lines.h"

namespace vantore::mulreg {

/// What the method has found.
struct Regression {
    Moments moments;
    std::vector<Step> steps; ///< at least one
};

/// The report on a problem and its observations. Without a regression it says that some variable has no
/// deviation.
PrintLines reportOn(const Problem& problem, const Observations& observations,
                    const std::optional<Regression>& regression);

} // namespace vantore::mulreg
