#include <gtest/gtest.h>

#include <algorithm>
#include <variant>

#include "routing/ROUTER/plot.h"
#include "tests/support/error_of.h"

namespace vantore::router {
namespace {

using vantore::tests::errorOf;

constexpr Rect place{0, 0, 9600, 6420};

/// 632 by 448 units, so that at zoom 1 one unit is one of the surface's: the map reaches from (4, 8) to
/// (636, 456).
Problem mapOf(const std::string& corner) {
    Problem problem;
    problem.corner = corner;
    problem.stops.add({});
    problem.stops.add({});
    problem.stops(1).x = 632;
    problem.stops(2).y = 448;
    problem.zones.add({100, 200, 300, 250});
    problem.barriers.add({10, 40, 30, 40, 10, 20, 30, 20});
    return problem;
}

Plan planOf(std::vector<int> stops) {
    Plan plan;
    plan.routeCount = 1;
    plan.routes(1).stops = std::move(stops);
    return plan;
}

std::vector<SurfaceOperation> drawn(const Problem& problem, const Plan& plan, MapLayers layers = {},
                                    routing::Vantage vantage = {.zoom = 1}) {
    PictureSurface surface("picOut", place, {});
    PlanMap(problem, plan).draw(surface, {}, vantage, layers);
    return surface.operations();
}

template <class Operation>
std::vector<Operation> only(const std::vector<SurfaceOperation>& operations) {
    std::vector<Operation> found;
    for (const SurfaceOperation& operation : operations)
        if (const auto* one = std::get_if<Operation>(&operation)) found.push_back(*one);
    return found;
}

SurfaceLine black(double x1, double y1, double x2, double y2) {
    return {x1, y1, x2, y2, colour::black};
}

TEST(PlanMap, DrawsTheDepotAsABlueSquareAndStopsAsRedCircles) {
    const auto operations = drawn(mapOf("SW"), {});
    const auto boxes = only<SurfaceBox>(operations);
    ASSERT_EQ(boxes.size(), 1U);
    const double half = 16 / 2.4;
    EXPECT_EQ(boxes[0], (SurfaceBox{4 - half, 456 - half, 4 + half, 456 + half, colour::lightBlue, true}));
    EXPECT_EQ(only<SurfaceCircle>(operations),
              (std::vector<SurfaceCircle>{{636, 456, 3, colour::lightRed, true},
                                          {4, 8, 3, colour::lightRed, true}}));
}

TEST(PlanMap, DrawsEachRouteAsAClosedLineBeforeTheBarriers) {
    EXPECT_EQ(only<SurfaceLine>(drawn(mapOf("SW"), planOf({2, 1}))),
              (std::vector<SurfaceLine>{black(4, 456, 4, 8), black(4, 8, 636, 456), black(636, 456, 4, 456),
                                        black(14, 416, 34, 416), black(34, 416, 34, 436),
                                        black(34, 436, 14, 436), black(14, 436, 14, 416)}));
}

TEST(PlanMap, LaysTheOriginInTheCornerThatTheUserNames) {
    const auto firstStop = [](const char* corner) {
        const auto circles = only<SurfaceCircle>(drawn(mapOf(corner), {}));
        return std::make_pair(circles.at(0).x, circles.at(0).y);
    };
    EXPECT_EQ(firstStop("SW"), std::make_pair(636.0, 456.0));
    EXPECT_EQ(firstStop("SE"), std::make_pair(4.0, 456.0));
    EXPECT_EQ(firstStop("NW"), std::make_pair(636.0, 8.0));
    EXPECT_EQ(firstStop("NE"), std::make_pair(4.0, 8.0));
    EXPECT_EQ(firstStop("ne"), std::make_pair(4.0, 8.0));
    EXPECT_EQ(firstStop("middle"), std::make_pair(636.0, 456.0));
}

TEST(PlanMap, PutsZonesUnderAllElse) {
    const auto operations = drawn(mapOf("SW"), planOf({1}), {.zones = true});
    ASSERT_GT(operations.size(), 2U);
    EXPECT_EQ(std::get<SurfaceBox>(operations[0]),
              (SurfaceBox{104, 156, 204, 206, colour::brightWhite, true}));
    EXPECT_EQ(std::get<SurfaceBox>(operations[1]), (SurfaceBox{104, 156, 204, 206, colour::lightBlue}));
    EXPECT_EQ(only<SurfaceBox>(operations).size(), 3U);
}

TEST(PlanMap, NumbersTheStops) {
    const auto texts = only<SurfaceText>(drawn(mapOf("SW"), {}, {.numbers = true}));
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0].text, "Depot");
    EXPECT_EQ(texts[1].text, "1");
    EXPECT_EQ(texts[2].text, "2");
    EXPECT_EQ(texts[2].x, 9);
    EXPECT_EQ(texts[2].y, -2);
    EXPECT_EQ(texts[2].font, (Font{"Arial", 8, false}));
    EXPECT_TRUE(only<SurfaceText>(drawn(mapOf("SW"), {})).empty());
}

TEST(PlanMap, GrowsWithTheScreen) {
    PictureSurface surface("picOut", place, {2, 3});
    PlanMap(mapOf("SW"), planOf({1}))
        .draw(surface, {2, 3}, {.zoom = 1}, {.numbers = true, .zones = true, .warning = true});
    const auto& operations = surface.operations();
    const double half = 16 / 2.4;
    EXPECT_EQ(only<SurfaceBox>(operations),
              (std::vector<SurfaceBox>{
                  {208, 468, 408, 618, colour::brightWhite, true},
                  {208, 468, 408, 618, colour::lightBlue, false},
                  {8 - 2 * half, 1368 - 3 * half, 8 + 2 * half, 1368 + 3 * half, colour::lightBlue, true}}));
    EXPECT_EQ(only<SurfaceCircle>(operations),
              (std::vector<SurfaceCircle>{{1272, 1368, 6, colour::lightRed, true},
                                          {8, 24, 6, colour::lightRed, true}}));
    EXPECT_EQ(only<SurfaceLine>(operations).at(0), black(8, 1368, 1272, 1368));
    EXPECT_EQ(only<SurfaceText>(operations),
              (std::vector<SurfaceText>{
                  {4, 6, pointInBarrierWarning, {"Arial", 20, true}, colour::lightRed},
                  {8 + 2 * (half + 2), 1368 - 30, "Depot", {"Arial", 16, false}, colour::black},
                  {1272 + 2 * 5, 1368 - 30, "1", {"Arial", 16, false}, colour::black},
                  {8 + 2 * 5, 24 - 30, "2", {"Arial", 16, false}, colour::black}}));
}

TEST(PlanMap, GivesAllPointsOneScale) {
    Problem problem = mapOf("SW");
    problem.stops(1).x = 0;
    problem.zones(1) = {0, 1264, 0, 0}; // as wide as two surfaces
    const auto circles = only<SurfaceCircle>(drawn(problem, {}));
    EXPECT_EQ(circles[1].y, 232 - 112);
}

TEST(PlanMap, ForgetsItsRoutes) {
    PlanMap map(mapOf("SW"), planOf({1, 2}));
    map.clearRoutes();
    PictureSurface surface("picOut", place, {});
    map.draw(surface, {}, {}, {});
    EXPECT_EQ(only<SurfaceLine>(surface.operations()).size(), 4U); // the barrier's
}

TEST(PlanMap, DrawsNoRouteWithoutStops) {
    EXPECT_EQ(only<SurfaceLine>(drawn(mapOf("SW"), planOf({}))).size(), 4U);
}

TEST(PlanMap, KnowsNoStopBeyondTheTable) {
    EXPECT_EQ(errorOf([] { drawn(mapOf("SW"), planOf({3})); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { drawn(mapOf("SW"), planOf({0})); }), ErrorNumber::SubscriptOutOfRange);
}

} // namespace
} // namespace vantore::router
