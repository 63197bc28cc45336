#include "simulator/SCSIM/random_numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

/// The first output of the generator for seed 5489 is 3499211612 (Matsumoto and Nishimura), which gives
/// (6834397 + .5) / 2^23.
TEST(UniformGenerator, TakesTheUpper23Bits) {
    UniformGenerator uniforms(5489);
    EXPECT_EQ(uniforms.next(), 6834397.5 / 8388608);
    EXPECT_EQ(uniforms.next(), (581869302 / 512 + .5) / 8388608); // the second output
}

TEST(UniformGenerator, StaysBetween0And1InSinglePrecision) {
    UniformGenerator uniforms(1);
    for (int i = 0; i < 100000; ++i) {
        const double u = uniforms.next();
        ASSERT_GT(u, 0);
        ASSERT_LT(u, 1);
        ASSERT_EQ(static_cast<double>(static_cast<float>(u)), u);
    }
}

double firstOf(double seed) {
    return UniformGenerator(seed).next();
}

TEST(UniformGenerator, RoundsItsSeedToTheLow32BitsOfAWholeNumber) {
    EXPECT_EQ(firstOf(2.5), firstOf(2));
    EXPECT_EQ(firstOf(3.5), firstOf(4));
    EXPECT_EQ(firstOf(-1), firstOf(4294967295.0));
    EXPECT_EQ(firstOf(-17.5), firstOf(4294967296.0 - 18));
    EXPECT_EQ(firstOf(4294967296.0 + 7), firstOf(7));
    EXPECT_EQ(firstOf(-4294967296.0), firstOf(0));
    EXPECT_NE(firstOf(1), firstOf(2));
    EXPECT_EQ(firstOf(1E300), firstOf(0)); // a multiple of 2^32
}

TEST(UniformGenerator, StartsAnewWhenReseeded) {
    UniformGenerator uniforms(7);
    const double first = uniforms.next();
    uniforms.next();
    uniforms.reseed(7);
    EXPECT_EQ(uniforms.next(), first);
}

TEST(NormalDeviate, TakesTwoUniformsAndACircleOf6283) {
    UniformGenerator uniforms(12);
    UniformGenerator same(12);
    const double u1 = same.next();
    const double u2 = same.next();
    EXPECT_DOUBLE_EQ(normalDeviate(uniforms), std::sqrt(-2 * std::log(u1)) * std::cos(6.283 * u2));
    EXPECT_EQ(uniforms.next(), same.next());
}

TEST(RandomDays, CutTheDrawToWholeDays) {
    UniformGenerator uniforms(3);
    UniformGenerator same(3);
    for (int i = 0; i < 200; ++i) {
        const double days = std::floor(normalDeviate(same) * 2 + 5);
        EXPECT_EQ(randomDays(uniforms, 5, 2), days < 0 ? 0 : days);
    }
}

TEST(RandomDays, HaveNoDrawBelow0) {
    UniformGenerator uniforms(3);
    EXPECT_EQ(randomDays(uniforms, -.5, 0), 0);
    EXPECT_EQ(randomDays(uniforms, 2.9, 0), 2);
    EXPECT_EQ(tests::errorOf([&] { randomDays(uniforms, 1E308, 1E308 * 10); }), ErrorNumber::Overflow);
}

TEST(RandomDays, HaveTheMeanAndDeviationAskedFor) {
    UniformGenerator uniforms(2026);
    constexpr int draws = 100000;
    double total = 0, squares = 0;
    for (int i = 0; i < draws; ++i) {
        const double days = randomDays(uniforms, 100.5, 10);
        total += days;
        squares += days * days;
    }
    const double mean = total / draws;
    EXPECT_NEAR(mean, 100, .1); // cutting takes half a day
    EXPECT_NEAR(std::sqrt(squares / draws - mean * mean), 10, .1);
}

} // namespace
} // namespace vantore::scsim
