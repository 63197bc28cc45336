#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <optional>

#include "routing/Distance/method.h"
#include "routing/Distance/report.h"
#include "shell/base/runtime_error.h"

namespace {

using namespace vantore;

/// Six numbers, each finite as whatever is typed: degrees where the first byte is even, any number where it
/// is odd.
std::array<double, 6> numbersFrom(const std::uint8_t* data, std::size_t size) {
    std::array<double, 6> numbers{};
    const bool degrees = size > 0 && data[0] % 2 == 0;
    for (std::size_t i = 0; i < numbers.size() && 1 + 8 * (i + 1) <= size; ++i) {
        std::int64_t bits = 0;
        std::memcpy(&bits, data + 1 + 8 * i, 8);
        double any = 0;
        std::memcpy(&any, &bits, 8);
        numbers.at(i) = degrees ? static_cast<double>(bits % 36000) / 100 : std::isfinite(any) ? any : 0;
    }
    return numbers;
}

} // namespace

/// A distance is a finite number that can be shown, or a run-time error.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto [a, b, c, d, circuity, map] = numbersFrom(data, size);
    distance::Problem problem{
        .origin = {a, b}, .destination = {c, d}, .circuityFactor = circuity, .mapFactor = map};
    try {
        const double onGrid = distance::linearDistance(problem);
        if (!std::isfinite(onGrid)) std::abort();
        distance::shownOnGrid(onGrid, onGrid);
    } catch (const RuntimeError&) {
    }
    try {
        problem.type = distance::CoordinateType::LatitudeLongitude;
        const std::optional<double> overEarth = distance::earthDistance(problem, [](const std::string&) {});
        if (overEarth && !std::isfinite(*overEarth)) std::abort();
        if (overEarth) distance::shownOverEarth(*overEarth, "12.5");
    } catch (const RuntimeError&) {
    }
    return 0;
}
