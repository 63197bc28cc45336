#include <gtest/gtest.h>

#include <cmath>

#include "location/outline_map.h"
#include "tests/support/error_of.h"
#include "tests/support/module_session.h"

namespace vantore {
namespace {

using tests::errorOf;

// A square country of 20 by 20 degrees with one border down its middle.
constexpr const char* square = "12000,10000,5000,3000,0\r\n1\r\n5\r\n50,120\r\n50,100\r\n30,100\r\n30,120\r\n"
                               "50,120\r\n\"Square, nowhere\"\r\n1\r\n2\r\n50,110,30,110\r\n";

OutlineMap mapFrom(std::string_view text) {
    ItemReader reader{std::string(text)};
    return readMap(reader);
}

TEST(OutlineMap, ReadsBoundsOutlinesTextAndBorders) {
    const OutlineMap map = mapFrom(square);
    EXPECT_EQ(map.west, 12000);
    EXPECT_EQ(map.east, 10000);
    EXPECT_EQ(map.north, 5000);
    EXPECT_EQ(map.south, 3000);
    ASSERT_EQ(map.outlines.size(), 1U);
    ASSERT_EQ(map.outlines[0].size(), 5U);
    EXPECT_EQ(map.outlines[0][2].latitude, 30);
    EXPECT_EQ(map.outlines[0][2].longitude, 100);
    EXPECT_EQ(map.text, "Square, nowhere");
    ASSERT_EQ(map.borders.size(), 1U);
    EXPECT_EQ(map.borders[0][1].longitude, 110);
}

TEST(OutlineMap, PutsWestAndNorthAtTheTopLeft) {
    const OutlineMap map = mapFrom(square);
    const MapArea area{10, 32, 200, 100};
    const auto at = [&](double latitude, double longitude) {
        const PlotPoint place = mapPlace(map, area, {latitude, longitude});
        return std::pair(place.x, place.y);
    };
    EXPECT_EQ(at(50, 120), std::pair(10.0, 32.0));
    EXPECT_EQ(at(30, 100), std::pair(210.0, 132.0));
    EXPECT_EQ(at(45, 105), std::pair(160.0, 57.0));
    // Whole hundredths of a degree: 44.999 and 105.009 count as 44.99 and 105.
    EXPECT_EQ(at(44.999, 105.009), std::pair(160.0, 57.05));
}

TEST(OutlineMap, DrawsTheOutlineOverTheBorders) {
    PictureSurface surface("picOut", {}, {2, 3});
    drawMap(surface, {2, 3}, mapFrom(square), {0, 32, 200, 100});
    ASSERT_EQ(surface.operations().size(), 5U);
    EXPECT_EQ(std::get<SurfaceLine>(surface.operations()[0]),
              (SurfaceLine{200, 96, 200, 396, colour::white}));
    EXPECT_EQ(std::get<SurfaceLine>(surface.operations()[1]), (SurfaceLine{0, 96, 400, 96, colour::grey}));
    EXPECT_EQ(std::get<SurfaceLine>(surface.operations()[4]), (SurfaceLine{0, 396, 0, 96, colour::grey}));
}

TEST(OutlineMap, PrintsLabelsBesideTheirPlaces) {
    PictureSurface surface("picOut", {}, {2, 3});
    surface.font = {"Arial", 7, false};
    printBeside(surface, {2, 3}, {100, 50}, "Omaha");
    EXPECT_EQ(std::get<SurfaceText>(surface.operations().at(0)),
              (SurfaceText{212, 132, "Omaha", {"Arial", 7, false}, colour::black}));
}

TEST(OutlineMap, RefusesCountsThatNoMapHas) {
    EXPECT_EQ(errorOf([] { mapFrom("1,2,3,4,5\r\n-1\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { mapFrom("1,2,3,4,5\r\n10001\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { mapFrom("1,2,3,4,5\r\n1\r\n100001\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { mapFrom("1,2,3,4,5\r\n10000\r\n"); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf([] { mapFrom("1,2,3,4,5\r\n1\r\n100000\r\n"); }), ErrorNumber::InputPastEnd);
}

TEST(OutlineMap, GivesEveryDamagedFileAMapOrARuntimeError) {
    for (const std::string& content : tests::damagedForms(square)) {
        try {
            PictureSurface surface("picOut", {}, {1, 1});
            drawMap(surface, {1, 1}, mapFrom(content), {0, 32, 200, 100});
            for (const SurfaceOperation& operation : surface.operations())
                EXPECT_TRUE(std::isfinite(std::get<SurfaceLine>(operation).x1)) << content;
        } catch (const RuntimeError& error) {
            EXPECT_NE(error.what(), std::string());
        }
    }
}

TEST(OutlineMap, HasNoPlacesBetweenBoundsThatAreOne) {
    EXPECT_EQ(errorOf([] { mapPlace({.west = 5, .east = 5, .north = 2, .south = 1}, {}, {}); }),
              ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([] {
                  mapPlace({.west = 6, .east = 5, .north = 2, .south = 1}, {0, 0, 1, 1}, {1E308, 0});
              }),
              ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore
