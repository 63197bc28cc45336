#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "routing/ROUTER/detour.h"

namespace vantore::router::tests {
namespace {

/// 20 wide and 10 high, its lower left corner at (10, 10).
constexpr Barrier block{10, 20, 30, 20, 10, 10, 30, 10};
constexpr GridScale plain{1, 1};

double detour(Place from, Place to, const Barrier& barrier = block, GridScale scale = plain) {
    const BarrierEffect effect = barrierEffect(barrier, from, to, scale);
    EXPECT_FALSE(effect.endsInside);
    const BarrierEffect back = barrierEffect(barrier, to, from, scale);
    EXPECT_NEAR(back.detour, effect.detour, 1E-9);
    return effect.detour;
}

TEST(BarrierEffect, LeavesAWayPastTheBarrierAsItIs) {
    EXPECT_EQ(detour({0, 0}, {40, 5}), 0);
    EXPECT_EQ(detour({0, 0}, {5, 40}), 0);
    EXPECT_EQ(detour({0, 0}, {9, 9}), 0);
}

TEST(BarrierEffect, GoesRoundACornerWhereTwoNeighbouringEdgesAreCrossed) {
    // each way cuts off the corner between two edges at 4 units from it
    const double saved = 8 - std::sqrt(32);
    EXPECT_NEAR(detour({8, 16}, {16, 8}), saved, 1E-12);   // Southwest: edges 1 and 2
    EXPECT_NEAR(detour({8, 14}, {16, 22}), saved, 1E-12);  // Northwest: 2 and 3
    EXPECT_NEAR(detour({24, 22}, {32, 14}), saved, 1E-12); // Northeast: 3 and 4
    EXPECT_NEAR(detour({24, 8}, {32, 16}), saved, 1E-12);  // Southeast: 1 and 4
}

TEST(BarrierEffect, TakesTheShorterWayRoundBetweenOppositeEdges) {
    EXPECT_DOUBLE_EQ(detour({0, 12}, {40, 12}), 4);  // below: 2 + 20 + 2 for 20
    EXPECT_DOUBLE_EQ(detour({0, 18}, {40, 18}), 4);  // above
    EXPECT_DOUBLE_EQ(detour({14, 0}, {14, 40}), 8);  // left: 4 + 10 + 4 for 10
    EXPECT_DOUBLE_EQ(detour({26, 0}, {26, 40}), 8);  // right
    EXPECT_DOUBLE_EQ(detour({0, 15}, {40, 15}), 10); // both ways are as long
}

TEST(BarrierEffect, MeasuresInScaledUnits) {
    // 40 wide, 30 high once scaled: 6 + 40 + 6 for 40
    EXPECT_DOUBLE_EQ(detour({0, 12}, {40, 12}, block, {2, 3}), 12);
}

TEST(BarrierEffect, AddsNothingForAWayThroughOneCorner) {
    EXPECT_NEAR(detour({5, 15}, {15, 5}), 0, 1E-12);   // Southwest
    EXPECT_NEAR(detour({5, 15}, {15, 25}), 0, 1E-12);  // Northwest
    EXPECT_NEAR(detour({25, 25}, {35, 15}), 0, 1E-12); // Northeast
    EXPECT_NEAR(detour({25, 5}, {35, 15}), 0, 1E-12);  // Southeast
}

TEST(BarrierEffect, CountsACornerOnceWhereTheWayGoesOn) {
    // through the Southwest corner to the middle of the upper edge: 10 + 10 for the diagonal
    EXPECT_NEAR(detour({5, 5}, {25, 25}), 20 - std::sqrt(200), 1E-12);
    // through two opposite corners of a square
    constexpr Barrier square{10, 20, 20, 20, 10, 10, 20, 10};
    EXPECT_NEAR(detour({5, 5}, {25, 25}, square), 20 - std::sqrt(200), 1E-12);
    // through the Southeast corner, where the first edge and the last meet, and the left edge: of the three
    // edges the left one is left out
    EXPECT_NEAR(detour({40, 5}, {0, 25}, {10, 30, 30, 30, 10, 10, 30, 10}), 0, 1E-12);
}

TEST(BarrierEffect, HindersNoWayAlongAnEdge) {
    EXPECT_EQ(detour({0, 10}, {40, 10}), 0);
    EXPECT_EQ(detour({30, 0}, {30, 40}), 0);
    EXPECT_EQ(detour({15, 10}, {25, 10}), 0);
    EXPECT_EQ(detour({15, 10}, {40, 10}), 0);
}

TEST(BarrierEffect, TellsOfAnEndWithin) {
    for (const Place outside : {Place{0, 15}, Place{20, 0}, Place{40, 16}, Place{21, 40}}) {
        const BarrierEffect effect = barrierEffect(block, outside, {20, 15}, plain);
        EXPECT_TRUE(effect.endsInside);
        EXPECT_EQ(effect.detour, 0);
    }
    EXPECT_FALSE(barrierEffect(block, {15, 15}, {25, 16}, plain).endsInside); // both are
}

TEST(BarrierEffect, TellsOfAnEndOnAnEdge) {
    for (const Place outside : {Place{0, 15}, Place{20, 0}, Place{40, 16}, Place{21, 40}}) {
        const Place edge{std::clamp(outside.x, 10.0, 30.0), std::clamp(outside.y, 10.0, 20.0)};
        EXPECT_TRUE(barrierEffect(block, outside, edge, plain).endsInside);
        EXPECT_TRUE(barrierEffect(block, edge, outside, plain).endsInside);
        const Place before{(outside.x + 3 * edge.x) / 4, (outside.y + 3 * edge.y) / 4};
        EXPECT_FALSE(barrierEffect(block, outside, before, plain).endsInside);
    }
}

TEST(BarrierEffect, KnowsSlopedBarriers) {
    // a square on its tip, its corners 10 from (20, 20): West, North, South and East
    constexpr Barrier diamond{10, 20, 20, 30, 20, 10, 30, 20};
    EXPECT_NEAR(detour({0, 20}, {40, 20}, diamond), 2 * std::sqrt(200) - 20, 1E-9);
    EXPECT_EQ(detour({5, 25}, {25, 45}, diamond), 0); // parallel to two of its edges
    EXPECT_EQ(detour({0, 40}, {15, 40}, diamond), 0);
    EXPECT_EQ(detour({5, 15}, {5, 30}, diamond), 0);
    EXPECT_EQ(detour({0, 30}, {8, 38}, diamond), 0);
}

TEST(BarrierEffect, TakesABarrierThatIsALineOrAPoint) {
    constexpr Barrier wall{20, 30, 20, 30, 20, 10, 20, 10}; // Northwest is Northeast, Southwest is Southeast
    // through the wall: edges 2 and 4 are crossed at one place, the shorter end is 5 away
    EXPECT_NEAR(detour({0, 15}, {40, 15}, wall), 10, 1E-9);
    constexpr Barrier point{20, 20, 20, 20, 20, 20, 20, 20};
    EXPECT_EQ(detour({0, 20}, {40, 20}, point), 0);
}

} // namespace
} // namespace vantore::router::tests
