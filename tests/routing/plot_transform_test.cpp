#include <gtest/gtest.h>

#include <vector>

#include "routing/plot_transform.h"

namespace vantore::routing {
namespace {

using Points = std::vector<MapPoint>;

void expectAt(SurfacePoint place, double x, double y) {
    EXPECT_NEAR(place.x, x, 1E-9);
    EXPECT_NEAR(place.y, y, 1E-9);
}

TEST(PlotTransform, FillsTheWidthOfAWideMap) {
    // 100 x 40: 632 / 100 is below 448 / 40, so a unit is .9 x 6.32 = 5.688 on both axes.
    const Points points = {{0, 0}, {100, 40}, {50, 20}};
    const PlotTransform place(points, {});
    expectAt(place({50, 20}), 320, 232);
    expectAt(place({0, 0}), 320 - 50 * 5.688, 232 + 20 * 5.688);
    expectAt(place({100, 40}), 320 + 50 * 5.688, 232 - 20 * 5.688);
}

TEST(PlotTransform, FillsTheHeightOfATallMap) {
    // 10 x 112: 448 / 112 = 4 is the smaller scale.
    const Points points = {{5, 0}, {15, 112}};
    const PlotTransform place(points, {});
    expectAt(place({5, 0}), 320 - 5 * 3.6, 232 + 56 * 3.6);
    expectAt(place({15, 112}), 320 + 5 * 3.6, 232 - 56 * 3.6);
}

TEST(PlotTransform, ScalesAMapInOneLineByItsLength) {
    const Points street = {{0, 7}, {632, 7}};
    expectAt(PlotTransform(street, {})({632, 7}), 320 + 316 * .9, 232);
    const Points avenue = {{3, 0}, {3, 448}};
    expectAt(PlotTransform(avenue, {})({3, 448}), 320, 232 - 224 * .9);
}

TEST(PlotTransform, PutsASinglePlaceIntoTheCentre) {
    const Points points = {{12, 5}, {12, 5}};
    expectAt(PlotTransform(points, {})({12, 5}), 320, 232);
    expectAt(PlotTransform(points, {})({13, 5}), 320.9, 232);
    EXPECT_EQ(PlotTransform({}, {})({99999, 0}).x, 0);
}

TEST(PlotTransform, CountsZeroIntoTheRangeOfNegativeCoordinates) {
    // X from -79 to 0 though no point lies right of -39.5: 632 / 79 = 8. The points are centred all the same.
    const Points points = {{-79, 0}, {-39.5, 10}};
    const PlotTransform place(points, {});
    expectAt(place({-79, 0}), 320 - 19.75 * 7.2, 232 + 5 * 7.2);
    expectAt(place({-39.5, 10}), 320 + 19.75 * 7.2, 232 - 5 * 7.2);
}

TEST(PlotTransform, CountsTheLargestUsualCoordinateIntoTheRangeOfLargerOnes) {
    // X from 99999 though no point lies left of 100315: the range is 632.
    const Points points = {{100315, 0}, {100631, 10}};
    const PlotTransform place(points, {});
    expectAt(place({100631, 10}), 320 + 158 * .9, 232 - 5 * .9);
}

TEST(PlotTransform, MovesAndMagnifiesTheMap) {
    const Points points = {{0, 0}, {632, 448}};
    expectAt(PlotTransform(points, {1.1, 25, -50})({632, 448}), 320 + 316 * 1.1 + 25, 232 - 224 * 1.1 - 50);
}

TEST(Vantage, GoesByTheStepsOfTheZoomQuestion) {
    Vantage vantage = stepped(stepped({}, '+'), '+');
    EXPECT_DOUBLE_EQ(vantage.zoom, 1.3);
    vantage = stepped(stepped(stepped(vantage, 'U'), 'r'), 'R');
    EXPECT_EQ(vantage.panY, -25);
    EXPECT_EQ(vantage.panX, 50);
    vantage = stepped(stepped(stepped(vantage, 'd'), 'D'), 'L');
    EXPECT_EQ(vantage.panY, 25);
    EXPECT_EQ(vantage.panX, 25);
    vantage = stepped(vantage, '-');
    EXPECT_DOUBLE_EQ(vantage.zoom, 1.1);
    vantage = stepped(vantage, 'x');
    EXPECT_DOUBLE_EQ(vantage.zoom, 1.1);
    EXPECT_EQ(vantage.panX, 25);
    vantage = stepped(vantage, 'O');
    EXPECT_EQ(vantage.zoom, .9);
    EXPECT_EQ(vantage.panX, 0);
    EXPECT_EQ(vantage.panY, 0);
}

TEST(Vantage, StaysAtTheLeastPicture) {
    Vantage vantage;
    for (int step = 0; step < 10; ++step) vantage = stepped(vantage, '-');
    EXPECT_NEAR(vantage.zoom, .1, 1E-9);
}

} // namespace
} // namespace vantore::routing
