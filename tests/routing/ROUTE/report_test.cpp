#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "routing/ROUTE/report.h"
#include "tests/routing/ROUTE/networks.h"
#include "tests/routing/ROUTE/plain_route.h"
#include "tests/support/error_of.h"

namespace vantore::route {
namespace {

using tests::networkOf;
using vantore::tests::errorOf;
using Lines = std::vector<std::string>;

TEST(RouteReport, ListsCostAndNodesOfEachPath) {
    const RouteNetwork network = networkOf(12, 3, {{3, 12, 1234.5}, {12, 2, .005}});
    EXPECT_EQ(reportPage(network, shortestPaths(network)).lines(),
              (Lines{"Sample", "Origin node number = 3 ", "   Number of nodes = 3 ", "   Number of arcs = 2 ",
                     "", "Shortest paths from origin node 3 ", "to all destination nodes", "      Cost Path",
                     "  1,234.51 3 -> 12 -> 2 ", "  1,234.50 3 -> 12 "}));
}

TEST(RouteReport, TellsWhatIsNotConnected) {
    const RouteNetwork network = networkOf(4, 1, {{1, 2, 1}, {3, 4, 1}});
    const Solution solution = shortestPaths(network);
    const Lines page = reportPage(network, solution).lines();
    EXPECT_EQ(Lines(page.begin() + 8, page.end()),
              (Lines{"      1.00 1 -> 2 ", "NODE 3 ", "IS NOT CONNECTED TO NODE 1 ", "NODE 4 ",
                     "IS NOT CONNECTED TO NODE 1 "}));
    EXPECT_EQ(warnings(network, solution),
              (Lines{"Node 3 is not connected to node 1", "Node 4 is not connected to node 1"}));
}

TEST(RouteReport, EndsWithAnOriginThatIsNotJoined) {
    const RouteNetwork network = networkOf(3, 1, {{1, 2, 0}, {2, 3, 100000}});
    const Solution solution = shortestPaths(network);
    EXPECT_EQ(warnings(network, solution),
              (Lines{"ERROR: At least two nodes are needed.",
                     "ERROR: The origin node is not connected to the network."}));
    EXPECT_EQ(reportPage(network, solution).lines(),
              (Lines{"Sample", "Origin node number = 1 ", "   Number of nodes = 0 ", "   Number of arcs = 0 ",
                     "ERROR: THE ORIGIN NODE IS NOT CONNECTED TO THE NETWORK"}));
    EXPECT_TRUE(pathFile(solution).lines().empty());
}

TEST(RouteReport, HasAHeadWhateverTheChecksFind) {
    EXPECT_EQ(reportHead(networkOf(1, 0, {})).lines(), (Lines{"Sample", "Origin node number = 0 "}));
}

TEST(PathFile, HoldsCostCountAndNodesALineEach) {
    const RouteNetwork network = networkOf(4, 1, {{1, 2, .5}, {2, 3, 12}, {1, 4, 0}});
    EXPECT_EQ(pathFile(shortestPaths(network)).lines(),
              (Lines{".5", "2", "1", "2", "12.5", "3", "1", "2", "3"}));
}

TEST(PathFile, GivesThePathToANode) {
    const Lines lines = {".5", "2", "1", "2", "12.5", "3", "1", "2", "3"};
    const std::optional<Path> path = pathFrom(lines, 3);
    ASSERT_TRUE(path);
    EXPECT_EQ(path->cost, 12.5);
    EXPECT_EQ(path->nodes, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(path->destination, 3);
    EXPECT_EQ(pathFrom(lines, 2)->cost, .5);
    EXPECT_FALSE(pathFrom(lines, 1));
    EXPECT_FALSE(pathFrom(lines, 2.5));
    EXPECT_FALSE(pathFrom({}, 2));
}

TEST(PathFile, IsReadWithCare) {
    EXPECT_EQ(errorOf([] { pathFrom({".5"}, 9); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf([] { pathFrom({".5", "3", "1", "2"}, 9); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf([] { pathFrom({".5", "0", "1"}, 9); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { pathFrom({".5", "-1", "1"}, 9); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { pathFrom({".5", "501", "1"}, 9); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { pathFrom({".5", "1", "1E20"}, 9); }), ErrorNumber::Overflow);
    Lines longest = {"1", "500"};
    longest.insert(longest.end(), 500, "7");
    EXPECT_EQ(pathFrom(longest, 7)->nodes.size(), 500U);
}

TEST(RouteDataPage, AlignsItsColumns) {
    RouteNetwork network = networkOf(2, 1, {{1, 2, 1234.5}, {2, 77, 0}});
    network.nodes(2) = {"102", "Pier 9, east", "-1234.567", "x"};
    network.arcs(1).firstName = "N1";
    EXPECT_EQ(dataPage(network).lines(),
              (Lines{"Title: Sample", "Origin node number: 1", "NODE IDENTIFICATION DATA",
                     "Point Node                      X coor-   Y coor-",
                     "  no.  no. Node name             dinate    dinate",
                     "    1    1 N1                      1.00      2.00",
                     "    2  102 Pier 9, east       -1,234.57       .00", "CONNECTING NODE DATA",
                     "      From -------------------- To ----------------------",
                     "Point Node                      Node",
                     "  no.  no. Node name             no.  Node name                 Cost",
                     "    1    1 N1                      2                        1,234.50",
                     "    2    2                        77                            0.00"}));
}

std::vector<std::string> boxesOf(const RouteNetwork& network) {
    if (const auto found = fault(network)) return {*found};
    return warnings(network, shortestPaths(network));
}

void expectAsPlainRun(const RouteNetwork& network) {
    const tests::PlainRun plain = tests::plainSolve(network);
    ASSERT_EQ(boxesOf(network), plain.boxes);
    if (fault(network)) {
        ASSERT_EQ(reportHead(network).lines(), plain.report);
        return;
    }
    const Solution solution = shortestPaths(network);
    ASSERT_EQ(reportPage(network, solution).lines(), plain.report);
    ASSERT_EQ(pathFile(solution).lines(), plain.paths);
}

TEST(RouteBesidePlainLoops, GivesTheSameReportOfAThousandNetworks) {
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        SCOPED_TRACE(seed);
        const int nodes = 2 + static_cast<int>(seed * 7919 % (seed % 10 == 0 ? 499 : 60));
        const int arcs = 1 + static_cast<int>(seed * 104729 % (seed % 10 == 0 ? 900 : 120));
        expectAsPlainRun(tests::randomNetwork(nodes, arcs, static_cast<tests::Costs>(seed % 4), seed));
        if (HasFatalFailure()) return;
    }
    expectAsPlainRun(tests::randomNetwork(mostNodes, mostSolvedArcs, tests::Costs::Few, 1));
    expectAsPlainRun(tests::randomNetwork(43, mostSolvedArcs, tests::Costs::Few, 2));
}

TEST(RouteBesidePlainLoops, FindsTheSameFaultOfAThousandNetworks) {
    int faults = 0;
    for (unsigned seed = 1; seed <= 1000; ++seed) {
        SCOPED_TRACE(seed);
        const RouteNetwork network =
            tests::faultyNetwork(2 + static_cast<int>(seed % 30), 1 + static_cast<int>(seed % 41), seed);
        faults += fault(network).has_value();
        expectAsPlainRun(network);
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(faults, 600);
}

} // namespace
} // namespace vantore::route
