#include <gtest/gtest.h>

#include "location/PMED/plot.h"

namespace vantore::pmed {
namespace {

// 448 by 302 units are 4.48 by 3.02 degrees: one unit to the hundredth.
constexpr OutlineMap country{.west = 10448, .east = 10000, .north = 4302, .south = 4000};

Problem twoTowns() {
    Problem problem;
    problem.label = "Two towns in the west";
    problem.coordinates = Coordinates::Degrees;
    problem.rowCount = 2;
    problem.sites(1).x = 104;
    problem.sites(1).y = 42;
    problem.sites(2).x = 101.5;
    problem.sites(2).y = 41;
    return problem;
}

TEST(PmedPlot, PutsDegreesOnTheMapWithWestAtTheLeft) {
    PictureSurface surface("picOut", {}, {1, 1});
    const SitePlot plot = plotOnMap(surface, {1, 1}, twoTowns(), country);
    // 48 hundredths east of the west bound, which lies at 186; 102 south of the north bound, at 56.
    EXPECT_EQ(plot.places.at(0).x, 234);
    EXPECT_EQ(plot.places.at(0).y, 158);
    EXPECT_EQ(plot.numberPlaces.at(0).x, 238);
    EXPECT_EQ(plot.numberPlaces.at(0).y, 152);
    EXPECT_EQ(plot.places.at(1).x, 484);
    EXPECT_EQ(plot.places.at(1).y, 258);
    EXPECT_EQ(std::get<SurfaceText>(surface.operations().at(2)),
              (SurfaceText{80, 32, "Two towns in th", {"MS Sans Serif", 7, true}, colour::black}));
}

TEST(PmedPlot, ListsTheSitesThatServe) {
    PictureSurface surface("picOut", {}, {2, 3});
    SitePlot plot = plotOnMap(surface, {2, 3}, twoTowns(), country);
    surface.clear();
    Assignment assignment;
    assignment.servedBy(1) = assignment.servedBy(2) = 2;
    assignment.totalCost = 1234.5;
    plotAssignment(surface, {2, 3}, plot, twoTowns(), assignment);
    const auto& drawn = surface.operations();
    ASSERT_EQ(drawn.size(), 2U + 1 + 2 + 2 + 1 + 2);
    EXPECT_EQ(std::get<SurfaceBox>(drawn[0]), (SurfaceBox{462, 465, 474, 483, colour::black, true}));
    EXPECT_EQ(std::get<SurfaceCircle>(drawn[2]), (SurfaceCircle{968, 774, 12, colour::lightRed, true}));
    EXPECT_EQ(std::get<SurfaceLine>(drawn[3]), (SurfaceLine{468, 474, 968, 774, colour::lightRed}));
    EXPECT_EQ(std::get<SurfaceText>(drawn[5]).text, "Facility X, Y");
    EXPECT_EQ(std::get<SurfaceText>(drawn[5]).y, 64 * 3);
    EXPECT_EQ(std::get<SurfaceText>(drawn[7]).text, "2-      101.50,      41.00");
    EXPECT_EQ(std::get<SurfaceText>(drawn[9]).text, "$1,234.50");
    EXPECT_EQ(std::get<SurfaceText>(drawn[9]).y, 112 * 3);
}

} // namespace
} // namespace vantore::pmed
