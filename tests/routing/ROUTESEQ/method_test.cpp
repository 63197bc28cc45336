#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

#include "routing/ROUTESEQ/hull.h"
#include "routing/ROUTESEQ/insertion.h"
#include "routing/ROUTESEQ/method.h"
#include "tests/routing/ROUTESEQ/plain_sequencer.h"
#include "tests/routing/ROUTESEQ/stops.h"
#include "tests/support/error_of.h"

namespace vantore::routeseq {
namespace {

using tests::Pattern;
using tests::randomStops;
using tests::stopsAt;
using vantore::tests::errorOf;
using Stops = std::vector<int>;

Stops sequenceOf(const StopSequencingProblem& problem) {
    return shortSequence(Points(problem));
}

Stops hullOf(const StopSequencingProblem& problem) {
    return convexHull(Points(problem));
}

TEST(ConvexHull, IsWrappedFromTheLeftmostPointByTheNearest) {
    // The rectangle's corners are points 1 to 4, point 5 lies inside.
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{4, 0}, {4, 3}, {0, 3}, {1, 1}})), (Stops{1, 4, 3, 2}));
}

TEST(ConvexHull, StartsAtTheLowestOfTheLeftmostPoints) {
    EXPECT_EQ(hullOf(stopsAt({5, 5}, {{0, 4}, {0, -1}, {0, -1}})).front(), 3);
}

TEST(ConvexHull, TakesThePointsOnItsEdges) {
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{2, 0}, {4, 0}, {2, 3}})), (Stops{1, 2, 3, 4}));
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{0, 2}, {0, 5}, {7, 0}})), (Stops{1, 2, 3, 4}));
}

TEST(ConvexHull, TakesAllPointsOfOneLine) {
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{10, 5}, {-4, -2}, {2, 1}})), (Stops{3, 1, 4, 2}));
    EXPECT_EQ(hullOf(stopsAt({7, 0}, {{7, 9}, {7, -3}})), (Stops{3, 1, 2}));
}

TEST(ConvexHull, TakesTheLastOfSeveralPointsAtOnePlaceFirst) {
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{0, 0}, {0, 0}, {3, 4}})), (Stops{1, 3, 2, 4}));
}

TEST(ConvexHull, CountsTinyDifferencesAsNone) {
    // 2E-8 above the line through the other three: on the hull's edge, not inside.
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{.5, 2E-8}, {1, 0}, {.5, 3}})), (Stops{1, 2, 3, 4}));
    EXPECT_EQ(hullOf(stopsAt({0, 0}, {{.5, 2E-7}, {1, 0}, {.5, 3}})), (Stops{1, 3, 4}));
}

TEST(ConvexHull, NeedsAPointBelowItsGreatestCoordinate) {
    EXPECT_EQ(errorOf([] { hullOf(stopsAt({1E7, 0}, {{2E7, 0}})); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(hullOf(stopsAt({9999998, 0}, {{9999998, 7}})), (Stops{1, 2}));
}

TEST(ShortSequence, GoesOutAndBackToASingleStop) {
    EXPECT_EQ(sequenceOf(stopsAt({1, 2}, {{4, 6}})), (Stops{1}));
}

TEST(ShortSequence, InsertsThePointsInsideWhereTheyCostLeast) {
    // (1, 1) costs 1.414 + 3.162 - 4 on the edge below and 1.414 + 2.236 - 3 on the one to the left.
    EXPECT_EQ(sequenceOf(stopsAt({0, 0}, {{4, 0}, {4, 3}, {0, 3}, {1, 1}})), (Stops{3, 2, 1, 4}));
}

TEST(ShortSequence, StartsAtTheDepotWhereverItLies) {
    EXPECT_EQ(sequenceOf(stopsAt({4, 3}, {{4, 0}, {0, 0}, {0, 3}})), (Stops{1, 2, 3}));
}

TEST(ShortSequence, TakesTheSecondOfEqualInsertionsAsTheFirstLeavesNoArea) {
    // The stop in the middle lengthens the tour alike below and above, with equal triangles.
    EXPECT_EQ(sequenceOf(stopsAt({0, 0}, {{6, 0}, {6, 2}, {0, 2}, {3, 1}})), (Stops{3, 4, 2, 1}));
    // In a square all four edges are equal; the third doesn't replace the second.
    EXPECT_EQ(sequenceOf(stopsAt({0, 0}, {{2, 0}, {2, 2}, {0, 2}, {1, 1}})), (Stops{4, 1, 2, 3}));
}

TEST(ShortSequence, RefusesMoreThanFiftyStops) {
    EXPECT_EQ(errorOf([] { sequenceOf(randomStops(51, Pattern::Scattered, 1)); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(sequenceOf(randomStops(50, Pattern::Scattered, 1)).size(), 50U);
}

TEST(ShortSequence, RefusesWhatItsNumbersDontReach) {
    EXPECT_EQ(errorOf([] { sequenceOf(stopsAt({0, 0}, {{4E38, 0}})); }), ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([] { sequenceOf(stopsAt({0, 0}, {{0, -4E38}})); }), ErrorNumber::Overflow);
    // The square is 20,000,000 long, so no insertion is below the limit.
    EXPECT_EQ(errorOf([] {
                  sequenceOf(stopsAt({0, 0}, {{5E6, 0}, {5E6, 5E6}, {0, 5E6}, {1E6, 2E6}}));
              }),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(Points, AreOnePlaceWhereSinglePrecisionCantTellThemApart) {
    const Points points(stopsAt({0, 0}, {{1, 1}, {1.00000001, 1}, {1.0000002, 1}, {1, 1.0000002}}));
    EXPECT_EQ(points.count(), 5);
    EXPECT_TRUE(points.coincide(2, 3));
    EXPECT_FALSE(points.coincide(2, 4));
    EXPECT_FALSE(points.coincide(2, 5));
    EXPECT_EQ(points.distance(2, 3), 0);
    EXPECT_DOUBLE_EQ(points.distance(1, 2), std::sqrt(2.0));
}

/// All points once, from a closed tour.
bool visitsAll(Stops stops, int count) {
    Stops all(static_cast<std::size_t>(count));
    std::iota(all.begin(), all.end(), 1);
    std::ranges::sort(stops);
    return stops == all;
}

TEST(ShortSequence, VisitsEachStopOnce) {
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        const int stops = 1 + static_cast<int>(seed % 50);
        ASSERT_TRUE(visitsAll(
            sequenceOf(randomStops(stops, static_cast<Pattern>(seed % tests::patterns), seed)), stops))
            << seed;
    }
}

TEST(ShortSequence, IsThatOfThePlainLoops) {
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        const int stops = 1 + static_cast<int>(seed * 7919 % 50);
        const StopSequencingProblem problem =
            randomStops(stops, static_cast<Pattern>(seed % tests::patterns), seed);
        ASSERT_EQ(sequenceOf(problem), tests::plainSequence(problem)) << seed;
    }
}

TEST(SpecifiedStop, IsReadFromTheAnswer) {
    EXPECT_EQ(specifiedStop("3", 5), 3);
    EXPECT_EQ(specifiedStop(" 5 and more", 5), 5);
    EXPECT_EQ(specifiedStop("1", 5), 1);
    EXPECT_FALSE(specifiedStop("0", 5));
    EXPECT_FALSE(specifiedStop("-1", 5));
    EXPECT_FALSE(specifiedStop("6", 5));
    EXPECT_FALSE(specifiedStop("Enter number", 5));
}

TEST(SequenceText, HasABlankInFrontOfEachNumber) {
    EXPECT_EQ(sequenceText({3, 12, 1}), " 3 12 1");
    EXPECT_EQ(sequenceText({}), "");
}

} // namespace
} // namespace vantore::routeseq
