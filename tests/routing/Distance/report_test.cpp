#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "routing/Distance/method.h"
#include "routing/Distance/report.h"
#include "tests/routing/Distance/plain_calculator.h"

namespace vantore::distance {
namespace {

TEST(DistanceOnGrid, IsShownWithTwoPlacesAndCommas) {
    const Shown shown = shownOnGrid(1503.595, 12871.805);
    EXPECT_EQ(shown.distance, "1,503.60");
    EXPECT_EQ(shown.total, "12,871.81");
    EXPECT_EQ(shownOnGrid(0, 0).distance, ".00");
}

TEST(DistanceOverEarth, IsCutToTwoPlaces) {
    const Shown shown = shownOverEarth(803.4799, "2.5");
    EXPECT_EQ(shown.distance, "803.47");
    EXPECT_EQ(shown.total, "805.97");
    EXPECT_EQ(shownOverEarth(1234.5, "").distance, "1234.5");
    EXPECT_EQ(shownOverEarth(1234.5, "").total, "1,234.50");
    EXPECT_EQ(shownOverEarth(0, "").distance, "0");
    EXPECT_EQ(shownOverEarth(0, "170.758").total, "170.75");
}

TEST(DistanceOverEarth, ReadsTheTotalUpToItsComma) {
    EXPECT_EQ(shownOverEarth(803.47, "3,281.21").total, "806.47");
}

Problem randomProblem(std::mt19937& random, CoordinateType type) {
    const auto within = [&](double most) {
        return std::uniform_real_distribution<double>(-most, most)(random);
    };
    const bool earth = type == CoordinateType::LatitudeLongitude;
    const double size = earth ? 1 : std::pow(10, static_cast<int>(1 + random() % 6));
    return {.type = type,
            .dimension = random() % 2 == 0 ? Dimension::Miles : Dimension::Kilometers,
            .origin = {within(80) * size, within(85) * size},
            .destination = {within(80) * size, within(85) * size},
            .circuityFactor = 1 + static_cast<double>(random() % 50) / 100,
            .mapFactor = earth ? 1 : within(10)};
}

/// The texts of the boxes after a row of calculations of one type.
void expectAsPlain(CoordinateType type, unsigned seed) {
    std::mt19937 random(seed);
    tests::PlainCalculator plain;
    double total = 0;
    Shown shown;
    for (int i = 0; i < 10; ++i) {
        const Problem problem = randomProblem(random, type);
        plain.calculate(problem);
        if (type == CoordinateType::LinearGrid) {
            total += linearDistance(problem);
            shown = shownOnGrid(linearDistance(problem), total);
        } else {
            shown = shownOverEarth(*earthDistance(problem, [](const std::string&) {}), shown.total);
        }
        ASSERT_EQ(shown.distance, plain.distanceBox) << seed << ", " << i;
        ASSERT_EQ(shown.total, plain.totalBox) << seed << ", " << i;
    }
}

TEST(DistanceBesideAPlainProcedure, ShowsTheSameInTwoThousandCalculations) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        expectAsPlain(CoordinateType::LinearGrid, seed);
        expectAsPlain(CoordinateType::LatitudeLongitude, seed);
        if (testing::Test::HasFatalFailure()) return;
    }
}

} // namespace
} // namespace vantore::distance
