#include <gtest/gtest.h>

#include <vector>

#include "routing/ROUTE/method.h"
#include "tests/routing/ROUTE/networks.h"
#include "tests/support/error_of.h"

namespace vantore::route {
namespace {

using tests::networkOf;
using Nodes = std::vector<int>;

const Path& pathTo(const Solution& solution, int node) {
    for (const Path& path : solution.paths)
        if (path.destination == node) return path;
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
}

TEST(ShortestPaths, TakeTheCheaperWayRound) {
    // 1-2-3 costs 4, 1-3 costs 5; 4 hangs on 3.
    const Solution solution =
        shortestPaths(networkOf(4, 1, {{1, 3, 5}, {1, 2, 1.5}, {2, 3, 2.5}, {3, 4, .25}}));
    EXPECT_EQ(solution.nodeCount, 4);
    EXPECT_EQ(solution.arcCount, 4);
    EXPECT_TRUE(solution.originConnected);
    ASSERT_EQ(solution.paths.size(), 3U);
    EXPECT_EQ(pathTo(solution, 2).nodes, (Nodes{1, 2}));
    EXPECT_EQ(pathTo(solution, 3).nodes, (Nodes{1, 2, 3}));
    EXPECT_DOUBLE_EQ(pathTo(solution, 3).cost, 4);
    EXPECT_EQ(pathTo(solution, 4).nodes, (Nodes{1, 2, 3, 4}));
    EXPECT_DOUBLE_EQ(pathTo(solution, 4).cost, 4.25);
}

TEST(ShortestPaths, GoBothWaysAlongAnArcAndByAscendingDestination) {
    const Solution solution = shortestPaths(networkOf(9, 7, {{9, 7, 1}, {2, 9, 1}, {5, 2, 1}}));
    Nodes destinations;
    for (const Path& path : solution.paths) destinations.push_back(path.destination);
    EXPECT_EQ(destinations, (Nodes{2, 5, 9}));
    EXPECT_EQ(pathTo(solution, 5).nodes, (Nodes{7, 9, 2, 5}));
}

TEST(ShortestPaths, LeaveOutArcsWithoutAUsableCost) {
    const Solution solution = shortestPaths(
        networkOf(6, 1, {{1, 2, 0}, {1, 3, -4}, {1, 4, 99999.99}, {1, 5, 99999.98}, {5, 6, .001}}));
    EXPECT_EQ(solution.nodeCount, 3);
    EXPECT_EQ(solution.arcCount, 2);
    ASSERT_EQ(solution.paths.size(), 2U);
    EXPECT_EQ(pathTo(solution, 5).cost, 99999.98);
}

TEST(ShortestPaths, DontReachWhatCostsTooMuch) {
    // 60000 + 39999.99 is the first sum that a label doesn't hold.
    const Solution solution = shortestPaths(networkOf(4, 1, {{1, 2, 60000}, {2, 3, 39999.99}, {3, 4, 1}}));
    EXPECT_TRUE(pathTo(solution, 2).connected());
    EXPECT_FALSE(pathTo(solution, 3).connected());
    EXPECT_FALSE(pathTo(solution, 4).connected());
    EXPECT_TRUE(pathTo(shortestPaths(networkOf(3, 1, {{1, 2, 60000}, {2, 3, 39999.98}})), 3).connected());
}

TEST(ShortestPaths, TellWhatTheOriginDoesntReach) {
    const Solution solution = shortestPaths(networkOf(4, 1, {{1, 2, 1}, {3, 4, 1}}));
    EXPECT_TRUE(solution.originConnected);
    EXPECT_FALSE(pathTo(solution, 3).connected());
    EXPECT_EQ(pathTo(solution, 3).cost, 0);
    const Solution apart = shortestPaths(networkOf(4, 1, {{1, 2, 0}, {3, 4, 1}}));
    EXPECT_FALSE(apart.originConnected);
    EXPECT_TRUE(apart.paths.empty());
    EXPECT_EQ(apart.nodeCount, 2);
}

TEST(ShortestPaths, KeepTheLastFoundOfEqualPaths) {
    // 4 is reached through 2 and through 3 at the cost of 2. From 1 the last arc is looked at first, so 3
    // leads the list of candidates, is taken first, and 2, taken last, is the predecessor that stays.
    const Solution solution = shortestPaths(networkOf(4, 1, {{1, 2, 1}, {1, 3, 1}, {2, 4, 1}, {3, 4, 1}}));
    EXPECT_EQ(pathTo(solution, 4).nodes, (Nodes{1, 2, 4}));
    const Solution swapped = shortestPaths(networkOf(4, 1, {{1, 3, 1}, {1, 2, 1}, {2, 4, 1}, {3, 4, 1}}));
    EXPECT_EQ(pathTo(swapped, 4).nodes, (Nodes{1, 3, 4}));
}

TEST(ShortestPaths, PutTheLastCandidateIntoThePlaceOfTheOneTaken) {
    // Candidates from 1 in the order 5, 4, 3, 2 (arcs are looked at from the last to the first). 5 is taken,
    // 2 moves to its place and 6 joins: 2, 4, 3, 6. 2 is taken: 6, 4, 3. Then 4, and 3 labels 6 last.
    const Solution solution = shortestPaths(networkOf(
        6, 1, {{1, 2, 1}, {1, 3, 1}, {1, 4, 1}, {1, 5, 1}, {2, 6, 1}, {3, 6, 1}, {4, 6, 1}, {5, 6, 1}}));
    EXPECT_EQ(pathTo(solution, 6).nodes, (Nodes{1, 3, 6}));
}

TEST(ShortestPaths, EndWhereACostIsTooSmallToShowInALabel) {
    // 1E-13 is lost beside 50000, so 2, 3 and 4 have one label; no path may lead in a circle.
    const Solution solution =
        shortestPaths(networkOf(4, 1, {{1, 2, 50000}, {2, 3, 1E-13}, {3, 4, 1E-13}, {4, 2, 1E-13}}));
    for (const Path& path : solution.paths) {
        EXPECT_EQ(path.nodes.front(), 1);
        EXPECT_EQ(path.nodes.back(), path.destination);
        EXPECT_LE(path.nodes.size(), 4U);
        EXPECT_DOUBLE_EQ(path.cost, 50000);
    }
}

TEST(ShortestPaths, RefuseMoreArcsThanTheirTablesHold) {
    RouteNetwork network = networkOf(2, 1, {{1, 2, 1}});
    network.arcCount = 901;
    EXPECT_EQ(vantore::tests::errorOf([&] { shortestPaths(network); }), ErrorNumber::SubscriptOutOfRange);
    network.arcCount = 900;
    EXPECT_EQ(shortestPaths(network).arcCount, 1);
}

} // namespace
} // namespace vantore::route
