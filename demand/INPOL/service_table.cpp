#include "demand/INPOL/service_table.h"

#include <cstddef>

#include "shell/base/table.h"

namespace vantore::inpol {

namespace {

/// The stop behind the table.
constexpr ServiceLevel certainty = {1, 10000, 0};

constexpr double lookupTolerance = .001;

} // namespace

const ServiceLevel& serviceLevel(int row) {
    checkIndex(row, 1, serviceLevels);
    return row == serviceLevels ? certainty : normalTable[static_cast<std::size_t>(row - 1)];
}

int serviceRow(double value) {
    int row = 1;
    while (row <= serviceLevels && !(serviceLevel(row).probability >= value - lookupTolerance)) ++row;
    return row;
}

NormalDeviate deviateFor(double probability) {
    return deviateFor(probability, probability < .5 ? probability + .5 : probability);
}

NormalDeviate deviateFor(double probability, double lookupValue) {
    const ServiceLevel& level = serviceLevel(serviceRow(lookupValue));
    if (probability < .5) return {-level.z, level.loss + level.z};
    return {level.z, level.loss};
}

} // namespace vantore::inpol
