#include <gtest/gtest.h>

#include <string>

#include "routing/ROUTE/problem.h"
#include "tests/routing/ROUTE/networks.h"
#include "tests/support/error_of.h"

namespace vantore::route {
namespace {

using tests::networkOf;
using vantore::tests::errorOf;

const char* const sample = "\"Two, piers\",12\r\n2\r\n\"12\",\"O'Fallon\",\"07.250\",\"-3\"\r\n\"103\",\" \","
                           "\"20\",\".5\"\r\n1\r\n12,103,.75\r\n";

RouteNetwork readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const RouteNetwork& network) {
    ItemWriter writer;
    write(network, writer);
    return writer.text();
}

TEST(RouteFile, KeepsTheTextsOfTheNodeList) {
    const RouteNetwork network = readFrom(sample);
    EXPECT_EQ(network.title, "Two, piers");
    EXPECT_EQ(network.originNode, 12);
    EXPECT_EQ(network.nodeCount, 2);
    EXPECT_EQ(network.nodes(1).x, "07.250");
    EXPECT_EQ(network.nodes(2).name, " ");
    EXPECT_EQ(network.arcCount, 1);
    EXPECT_EQ(network.arcs(1).second(), 103);
    EXPECT_EQ(network.arcs(1).cost, .75);
    EXPECT_EQ(network.arcs(1).firstName, "O'Fallon");
    EXPECT_EQ(network.arcs(1).secondName, " ");
    EXPECT_EQ(written(network), sample);
}

TEST(RouteFile, WritesTextsWithoutBlanksAtTheirEnds) {
    RouteNetwork network = networkOf(1, 1, {});
    network.nodes(1) = {" 1", "  Pier  ", "07 ", "2"};
    EXPECT_EQ(written(network), "\"Sample\",1\r\n1\r\n\"1\",\"Pier\",\"07\",\"2\"\r\n0\r\n");
    network.nodes(1).name = "";
    EXPECT_EQ(written(network), "\"Sample\",1\r\n1\r\n\"1\",\" \",\"07\",\"2\"\r\n0\r\n");
}

TEST(RouteFile, StartsWithABlankRowInEachList) {
    EXPECT_EQ(skeleton(), "\"Enter label\",0\r\n1\r\n\"0\",\" \",\"0\",\"0\"\r\n1\r\n0,0,0\r\n");
}

TEST(RouteFile, RefusesCountsOutsideItsTables) {
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\n501\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\n500\n"); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\n0\n2001\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\n0\n2000\n"); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\n0\n-1\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",32768\n0\n0\n"); }), ErrorNumber::Overflow);
    EXPECT_EQ(readFrom("\"A\",32767.4\n0\n0\n").originNode, 32767);
}

TEST(RouteNames, ComeFromTheFirstNodeWithTheNumber) {
    RouteNetwork network = networkOf(3, 1, {});
    network.nodes(3) = {"1 ", "Again", "1", "1"};
    const NodeNames names(network.listedNodes());
    EXPECT_EQ(names.of(1), "N1");
    EXPECT_EQ(names.of(2), "N2");
    EXPECT_EQ(names.of(3), "");
    EXPECT_EQ(names.of(1.5), "");
}

TEST(RouteNumbers, AreTheNearestWholeOnes) {
    EXPECT_EQ(nodeNumber({"12.5", "", "", ""}), 12);
    EXPECT_EQ(nodeNumber({"abc", "", "", ""}), 0);
    EXPECT_EQ(ArcRow({1.5, 2.4, 0}).first(), 2);
    EXPECT_EQ(ArcRow({1.5, 2.4, 0}).second(), 2);
    EXPECT_EQ(errorOf([] { nodeNumber({"3E9", "", "", ""}); }), ErrorNumber::Overflow);
}

RouteNetwork good() {
    return networkOf(4, 1, {{1, 2, 5}, {2, 3, 4}, {3, 4, 1}});
}

void expectFault(const RouteNetwork& network, const char* text) {
    ASSERT_TRUE(fault(network));
    EXPECT_EQ(*fault(network), text);
}

TEST(RouteChecks, FindNothingWrongWithAGoodNetwork) {
    EXPECT_FALSE(fault(good()));
}

TEST(RouteChecks, WantNodesAndArcs) {
    RouteNetwork network = good();
    network.nodeCount = 0;
    expectFault(network, "No nodes in database.");
    network = good();
    network.arcCount = 0;
    expectFault(network, "No connecting node data in database.");
    network.nodeCount = 0;
    expectFault(network, "No nodes in database.");
}

TEST(RouteChecks, AllowNineHundredArcs) {
    RouteNetwork network = networkOf(43, 1, {});
    for (int a = 1; a <= 43; ++a)
        for (int b = a + 1; b <= 43 && network.arcCount < 901; ++b)
            network.arcs(++network.arcCount) = {double(a), double(b), 1};
    expectFault(network, "ERROR: There are more than 900 arcs in the network.");
    network.originNode = 0;
    expectFault(network, "ERROR: There are more than 900 arcs in the network.");
    network.arcCount = 900;
    expectFault(network, "ERROR: Origin node number is less than 1 or blank");
    network.originNode = 43;
    EXPECT_FALSE(fault(network));
}

TEST(RouteChecks, WantAnOriginInBothLists) {
    RouteNetwork network = good();
    network.originNode = 501;
    expectFault(network, "ERROR: Origin node number is greater than 500.");
    network.originNode = 500;
    expectFault(network, "ERROR: Origin node number not in node list.");
    network.nodes(4).number = "500";
    expectFault(network, "Origin node number 500 is not in arc list.");
    network.nodes(4).number = "4";
    network.originNode = 4;
    EXPECT_FALSE(fault(network));
}

TEST(RouteChecks, WantData) {
    RouteNetwork network = networkOf(2, 1, {{1, 2, 1}});
    network.nodes(1) = network.nodes(2) = {"", "", "", ""};
    expectFault(network, "No data has been entered in node identification list.");
    network.nodes(2).number = "2";
    expectFault(network, "ERROR: Origin node number not in node list.");
}

TEST(RouteChecks, ReportDuplicatesByPairs) {
    RouteNetwork network = good();
    network.arcs(++network.arcCount) = {3, 2, 9};
    expectFault(network, "WARNING: Node numbers are duplicated and reversed at sequence nnumbers 2 and 4.");
    network.arcs(4) = {3, 4, 9};
    expectFault(network, "WARNING: Node numbers are duplicated at sequence numbers 3 and 4.");
    network.arcs(++network.arcCount) = {2, 1, 9};
    expectFault(network, "WARNING: Node numbers are duplicated and reversed at sequence nnumbers 1 and 5.");
    network.arcs(1) = {4, 4, 1};
    network.arcs(4) = {1, 4, 1};
    expectFault(network, "WARNING: Duplicate node numbers in arc list at sequence number 1.");
}

TEST(RouteChecks, WantNodeNumbersInTheirRangeAndInTheList) {
    RouteNetwork network = good();
    network.arcs(2) = {0, 501, 1};
    network.arcs(3) = {3, 600, 1};
    expectFault(network, "ERROR: First node in arc list is less than 1 at sequence number 2.");
    network.arcs(2).firstNode = 501;
    network.arcs(2).secondNode = 0;
    expectFault(network, "ERROR: First node in arc list is greater than 500 at sequence number 2.");
    network.arcs(2).firstNode = 500;
    expectFault(network, "ERROR: Second node in arc list is less than 1 at sequence number 2.");
    network.arcs(2).secondNode = 44;
    expectFault(network, "ERROR: Second node in arc list is greater than 500 at sequence number 3.");
    network.arcs(3).secondNode = 1;
    expectFault(network, "ERROR: First node 500 in arc list is not in master node list.");
    network.arcs(2).firstNode = 1;
    expectFault(network, "ERROR: Second node 44in arc list is not in master node list.");
}

TEST(RouteChecks, WantCoordinatesAndCosts) {
    RouteNetwork network = good();
    for (int i = 1; i <= 4; ++i) network.nodes(i).x = network.nodes(i).y = "0";
    for (int i = 1; i <= 3; ++i) network.arcs(i).cost = 0;
    expectFault(network, "WARNING: Node coordinates have not been included in the data.");
    network.nodes(4).y = "-.1";
    expectFault(network, "WARNING: No costs have been included for the arcs.");
    network.arcs(3).cost = .001;
    EXPECT_FALSE(fault(network));
}

} // namespace
} // namespace vantore::route
