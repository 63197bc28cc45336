#include "routing/Distance/problem.h"

namespace vantore::distance {

std::optional<std::string> fault(const Problem& problem) {
    if (problem.type == CoordinateType::LatitudeLongitude && problem.origin == Place{} &&
        problem.destination == Place{})
        return "Not all latitudes and longitudes should be zero.";
    return std::nullopt;
}

} // namespace vantore::distance
