#include <gtest/gtest.h>

#include <variant>

#include "routing/ROUTE/plot.h"
#include "tests/routing/ROUTE/networks.h"

namespace vantore::route {
namespace {

/// Nodes 1 (0, 0), 2 (632, 0) and 30 (0, 448): at zoom 1 a unit is one of the design, at .9 corners lie at
/// 35.6 and 604.4, 30.4 and 433.6.
RouteNetwork triangle() {
    RouteNetwork network;
    network.originNode = 30;
    network.nodeCount = 3;
    network.nodes(1) = {"1", "A", "0", "0"};
    network.nodes(2) = {"2", "B", "632", "0"};
    network.nodes(3) = {"30", "C", "0", "448"};
    network.arcCount = 3;
    network.arcs(1) = {1, 2, 1};
    network.arcs(2) = {30, 1, 1};
    network.arcs(3) = {2, 99, 1};
    return network;
}

class NetworkPlot : public testing::Test {
  protected:
    template <class Operation>
    const Operation& at(std::size_t i) const {
        return std::get<Operation>(surface.operations().at(i));
    }

    void expectLine(std::size_t i, double x1, double y1, double x2, double y2, int colour, double width) {
        const auto& line = at<SurfaceLine>(i);
        EXPECT_NEAR(line.x1, x1, 1E-9);
        EXPECT_NEAR(line.y1, y1, 1E-9);
        EXPECT_NEAR(line.x2, x2, 1E-9);
        EXPECT_NEAR(line.y2, y2, 1E-9);
        EXPECT_EQ(line.colour, colour);
        EXPECT_EQ(line.width, width);
    }

    Scale scale{2, 1};
    PictureSurface surface{"picPlot", {}, scale};
    NetworkMap map{triangle()};
};

TEST_F(NetworkPlot, DrawsTheArcsThenTheNodesWithTheirNumbers) {
    surface.line(0, 0, 1, 1, colour::black);
    map.draw(surface, scale, {});
    ASSERT_EQ(surface.operations().size(), 8U);
    expectLine(0, 2 * 35.6, 433.6, 2 * 604.4, 433.6, colour::black, 1);
    expectLine(1, 2 * 35.6, 30.4, 2 * 35.6, 433.6, colour::black, 1);
    EXPECT_NEAR(at<SurfaceCircle>(2).x, 2 * 35.6, 1E-9);
    EXPECT_NEAR(at<SurfaceCircle>(2).y, 433.6, 1E-9);
    EXPECT_EQ(at<SurfaceCircle>(2).radius, 6);
    EXPECT_EQ(at<SurfaceCircle>(2).colour, colour::black);
    EXPECT_TRUE(at<SurfaceCircle>(2).filled);
    EXPECT_NEAR(at<SurfaceText>(3).x, 2 * 40.6, 1E-9);
    EXPECT_NEAR(at<SurfaceText>(3).y, 420.6, 1E-9);
    EXPECT_EQ(at<SurfaceText>(3).text, "1");
    EXPECT_EQ(at<SurfaceText>(3).colour, colour::black);
    EXPECT_EQ(at<SurfaceText>(3).font, (Font{"Arial", 16, false}));
    EXPECT_EQ(at<SurfaceText>(5).text, "2");
    EXPECT_EQ(at<SurfaceText>(7).text, "30");
    EXPECT_EQ(at<SurfaceText>(7).colour, colour::lightRed);
    EXPECT_TRUE(at<SurfaceText>(7).font.bold);
}

TEST_F(NetworkPlot, DrawsAPathInThickRedLinesWithItsCost) {
    map.drawPath(surface, scale, {1, 4, 0}, {2, 1234.5, {30, 1, 2}});
    ASSERT_EQ(surface.operations().size(), 3U);
    expectLine(0, 2 * 8, 8, 2 * 8, 456, colour::lightRed, 3);
    expectLine(1, 2 * 8, 456, 2 * 640, 456, colour::lightRed, 3);
    EXPECT_EQ(at<SurfaceText>(2).text, "Total route cost: 1,234.50");
    EXPECT_EQ(at<SurfaceText>(2).x, 4);
    EXPECT_EQ(at<SurfaceText>(2).y, 2);
    EXPECT_EQ(at<SurfaceText>(2).colour, colour::lightRed);
    EXPECT_EQ(at<SurfaceText>(2).font, (Font{"Arial", 20, false}));
}

TEST_F(NetworkPlot, DrawsNoPathThroughANodeThatIsNotOnTheMap) {
    map.drawPath(surface, scale, {}, {99, 5, {30, 2, 99}});
    EXPECT_TRUE(surface.operations().empty());
}

TEST_F(NetworkPlot, KnowsThePathsAlongItsArcs) {
    EXPECT_TRUE(map.leadsAlong({2, 2, {30, 1, 2}}));
    EXPECT_TRUE(map.leadsAlong({1, 1.004, {2, 1}}));
    EXPECT_FALSE(map.leadsAlong({1, 1.006, {2, 1}}));
    EXPECT_FALSE(map.leadsAlong({2, 1, {30, 2}}));
    EXPECT_FALSE(map.leadsAlong({99, 1, {2, 99}}));
}

} // namespace
} // namespace vantore::route
