#include "simulator/SCSIM/random_numbers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "shell/base/arithmetic.h"

namespace vantore::scsim {

namespace {

constexpr int droppedBits = 9;
constexpr double uniformStep = 0x1p-23;
constexpr double fullCircle = 6.283;

/// The low 32 bits of a whole number in two's complement.
std::uint32_t lowBits(double whole) {
    constexpr double range = 0x1p32;
    const double rest = std::fmod(whole, range);
    return static_cast<std::uint32_t>(rest < 0 ? rest + range : rest);
}

} // namespace

void UniformGenerator::reseed(double seed) {
    twister_.seed(lowBits(std::nearbyint(seed)));
}

double UniformGenerator::next() {
    return (static_cast<double>(twister_() >> droppedBits) + .5) * uniformStep;
}

double normalDeviate(UniformGenerator& uniforms) {
    const double logarithm = naturalLog(uniforms.next());
    const double cosine = std::cos(uniforms.next() * fullCircle);
    return squareRoot(logarithm * -2) * cosine;
}

double randomDays(UniformGenerator& uniforms, double mean, double deviation) {
    return std::max(wholePart(finite(normalDeviate(uniforms) * deviation + mean)), 0.0);
}

} // namespace vantore::scsim
