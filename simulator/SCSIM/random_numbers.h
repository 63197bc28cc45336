#pragma once

#include <random>

namespace vantore::scsim {

/// Uniform numbers above 0 and below 1, each exact in single precision: one seed gives one sequence.
/// Source: Matsumoto and Nishimura, "Mersenne Twister" (1998), of which the upper 23 bits are taken.
class UniformGenerator {
  public:
    /// The seed is rounded to a whole number, ties to even, of which the low 32 bits count.
    explicit UniformGenerator(double seed = 0) { reseed(seed); }

    /// Starts the sequence of a seed.
    void reseed(double seed);

    double next();

  private:
    std::mt19937 twister_;
};

/// A standard normal deviate from two uniforms.
/// Source: Box and Muller (1958), the first of the two deviates, the full circle being 6.283.
double normalDeviate(UniformGenerator& uniforms);

/// A time in whole days, normally distributed, cut down to the day, not below 0. Overflow where it has no
/// finite value.
double randomDays(UniformGenerator& uniforms, double mean, double deviation);

} // namespace vantore::scsim
