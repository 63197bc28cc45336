#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "location/point_plot.h"

namespace vantore {
namespace {

using Texts = std::vector<std::string>;

/// The texts on a plot of one point.
Texts textsFor(PlotPoint point) {
    PictureSurface surface("picOut", {}, {1, 1});
    drawPlotFrame(surface, {1, 1}, {"A label of more than fifteen", "Arial", 16}, {point});
    Texts texts;
    for (const SurfaceOperation& operation : surface.operations())
        if (const auto* text = std::get_if<SurfaceText>(&operation)) texts.push_back(text->text);
    return texts;
}

bool shows(PlotPoint point, const std::string& text) {
    const Texts texts = textsFor(point);
    return std::ranges::find(texts, text) != texts.end();
}

TEST(PointPlot, RulesElevenLinesEachWay) {
    PictureSurface surface("picOut", {}, {2, 3});
    drawPlotFrame(surface, {2, 3}, {"", "Arial", 16}, {{1, 1}});
    std::vector<SurfaceLine> rules;
    for (const SurfaceOperation& operation : surface.operations())
        if (const auto* line = std::get_if<SurfaceLine>(&operation)) rules.push_back(*line);
    ASSERT_EQ(rules.size(), 22U);
    for (int i = 0; i < 11; ++i) {
        const double x = 2 * (240 + 32 * i), y = 3 * (70 + 32 * i);
        EXPECT_EQ(std::ranges::count(rules, SurfaceLine{480, y, 1120, y, colour::black}), 1) << i;
        EXPECT_EQ(std::ranges::count(rules, SurfaceLine{x, 210, x, 1170, colour::black}), 1) << i;
    }
}

TEST(PointPlot, EndsTickLabelsBesideTheLeftAxisAndBeginsThemUnderTheLower) {
    PictureSurface surface("picOut", {}, {1, 1});
    drawPlotFrame(surface, {1, 1}, {"", "Arial", 16}, {{10, 20}});
    const auto placeOf = [&](const std::string& tick, bool under) {
        for (const SurfaceOperation& operation : surface.operations())
            if (const auto* text = std::get_if<SurfaceText>(&operation))
                if (text->text == tick && (text->y == 400) == under) return std::pair(text->x, text->y);
        return std::pair(0.0, 0.0);
    };
    EXPECT_EQ(placeOf("0", true), std::pair(237.0, 400.0));
    EXPECT_EQ(placeOf("10", true), std::pair(557.0, 400.0));
    EXPECT_EQ(placeOf("0", false), std::pair(221.0, 384.0));
    EXPECT_EQ(placeOf("20", false), std::pair(213.0, 64.0));
}

TEST(PointPlot, LabelsItsAxesInThePowerOfTenOfTheLargestCoordinate) {
    constexpr std::array<std::pair<double, const char*>, 14> units = {{{0, " 1s"},
                                                                       {.0099, " 1s"},
                                                                       {.01, " .01s"},
                                                                       {.0999, " .01s"},
                                                                       {.1, " .1s"},
                                                                       {.999, " .1s"},
                                                                       {1, " 1s"},
                                                                       {999, " 1s"},
                                                                       {1000, " 10s"},
                                                                       {9999, " 10s"},
                                                                       {10000, " 100s"},
                                                                       {99999, " 100s"},
                                                                       {100000, " 1s"},
                                                                       {1E+15, " 1s"}}};
    for (const auto& [largest, unit] : units) {
        EXPECT_TRUE(shows({largest, 5}, std::string("X coordinates in") + unit)) << largest;
        EXPECT_TRUE(shows({5, largest}, std::string("Y coordinates in") + unit)) << largest;
    }
}

TEST(PointPlot, GivesADecimalToTicksOfAShortAxis) {
    // 9.9 and 10 units of 1: the fifth tick stands at half of them.
    EXPECT_TRUE(shows({9.9, 0}, "5.0"));
    EXPECT_TRUE(shows({9.9, 0}, "9.9"));
    EXPECT_TRUE(shows({10, 0}, "5"));
    EXPECT_TRUE(shows({10, 0}, "10"));
    EXPECT_FALSE(shows({10, 0}, "5.0"));
}

TEST(PointPlot, CutsTheLabelAfterFifteenCharacters) {
    EXPECT_TRUE(shows({1, 1}, "A label of more"));
}

TEST(PointPlot, BeginsBothAxesAtZeroAndEndsThemAtTheLargestCoordinate) {
    const PlotPoint origin = plotPlace({0, 0}, {40, 50});
    EXPECT_EQ(std::pair(origin.x, origin.y), std::pair(240.0, 390.0));
    const PlotPoint corner = plotPlace({40, 50}, {40, 50});
    EXPECT_EQ(std::pair(corner.x, corner.y), std::pair(560.0, 70.0));
    // Whole units, each part cut off downwards: 240 + 320 / 3 and 390 - 320 / 3.
    const PlotPoint between = plotPlace({1, 1}, {3, 3});
    EXPECT_EQ(std::pair(between.x, between.y), std::pair(346.0, 283.0));
}

TEST(PointPlot, StandsWhereAllCoordinatesAreZero) {
    PictureSurface surface("picOut", {}, {1, 1});
    const PointPlot plot = drawPlotFrame(surface, {1, 1}, {"", "Arial", 16}, {{0, 0}, {0, 0}});
    EXPECT_EQ(plot.placeOf({0, 0}).x, 240);
    EXPECT_EQ(plot.numberPlaces().size(), 2U);
    EXPECT_EQ(plot.numberPlaceOf({0, 0}).x, 244);
    EXPECT_EQ(plot.numberPlaceOf({0, 0}).y, 384);
}

} // namespace
} // namespace vantore
