#include "simulator/SCSIM/safety_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "shell/base/table.h"

namespace vantore::scsim {

namespace {

/// Beyond the half per cents the deviates go on by tenths.
constexpr std::array<SafetyRow, safetyRows> rows = [] {
    constexpr std::array<SafetyRow, safetyRows - normalTable.size()> tail = {{{.9965, 2.7, .0011},
                                                                              {.9974, 2.8, .0008},
                                                                              {.9981, 2.9, .0005},
                                                                              {.9987, 3, .0004},
                                                                              {.999, 3.1, .0003},
                                                                              {.9993, 3.2, .0002},
                                                                              {.9995, 3.3, .0001},
                                                                              {1, 3.54, 0}}};
    std::array<SafetyRow, safetyRows> all = {};
    std::copy(tail.begin(), tail.end(), std::copy(normalTable.begin(), normalTable.end(), all.begin()));
    return all;
}();

/// Above the loss of the first row no safety is needed.
constexpr double mostLoss = .3989;

} // namespace

const SafetyRow& safetyRow(int row) {
    checkIndex(row, 1, safetyRows);
    return rows[static_cast<std::size_t>(row - 1)];
}

std::optional<double> safetyFactor(double loss) {
    if (loss > mostLoss) return 0;
    const auto next =
        std::ranges::partition_point(rows, [loss](const SafetyRow& row) { return row.loss >= loss; });
    if (next == rows.end()) return std::nullopt;
    const SafetyRow& row = *(next - 1);
    return std::abs(loss - row.loss) <= std::abs(loss - next->loss) ? row.z : next->z;
}

} // namespace vantore::scsim
