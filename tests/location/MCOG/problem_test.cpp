#include <gtest/gtest.h>

#include "location/MCOG/problem.h"
#include "tests/support/error_of.h"

namespace vantore::mcog {
namespace {

using vantore::tests::errorOf;

constexpr const char* file =
    "\"Two depots, north\",1.5\r\n2\r\n\"Ashby\",12.5,0,300,.25\r\n\" \",7,8,0,3\r\n";

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

TEST(McogFile, HoldsTheLabelTheMapFactorAndThePoints) {
    const Problem problem = readFrom(file);
    EXPECT_EQ(problem.label, "Two depots, north");
    EXPECT_EQ(problem.mapFactor, 1.5);
    ASSERT_EQ(problem.rowCount, 2);
    EXPECT_EQ(problem.points(1).label, "Ashby");
    EXPECT_EQ(problem.points(1).x, 12.5);
    EXPECT_EQ(problem.points(1).volume, 300);
    EXPECT_EQ(problem.points(2).y, 8);
    EXPECT_EQ(problem.points(2).rate, 3);
    ItemWriter writer;
    write(problem, writer);
    EXPECT_EQ(writer.text(), file);
}

TEST(McogFile, StartsAsTheSkeleton) {
    EXPECT_EQ(skeleton(), "\"Enter label\",1\r\n1\r\n\"Enter label\",0,0,0,0\r\n");
}

TEST(McogFile, RefusesCountsOutsideItsTable) {
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\r\n501\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\r\n-1\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\r\n500\r\n\"P\",1,2,3,4\r\n"); }), ErrorNumber::InputPastEnd);
}

TEST(McogValidation, ReportsTheFirstFaultInItsOrder) {
    Problem problem = readFrom(file);
    EXPECT_FALSE(fault(problem));
    problem.points(2).volume = -1;
    EXPECT_EQ(fault(problem)->text,
              "No volume should be outside the range of 0 to 999,999,999.  Check point 2");
    EXPECT_EQ(fault(problem)->title, "Point volume");
    problem.points(1).rate = 0;
    EXPECT_EQ(fault(problem)->text,
              "No transport rate should be outside the range of 0.000001 to 99999.9999.  Check point 1");
    problem.points(1).y = 100000;
    EXPECT_EQ(fault(problem)->title, "Y coordinate");
    problem.rowCount = 0;
    EXPECT_EQ(fault(problem)->text, "At least one point is needed in the problem.");
    EXPECT_EQ(fault(problem)->title, "Number of points");
    problem.mapFactor = 0;
    EXPECT_EQ(fault(problem)->text, "No map scaling factor (K) has been specified.");
    EXPECT_EQ(fault(problem)->title, "Map scaling factor");
}

TEST(McogValidation, TakesTheEndsOfItsRanges) {
    Problem problem = readFrom(file);
    problem.mapFactor = -1;
    problem.points(1) = {"A", 99999, 0, 999999999, 99999.9999};
    problem.points(2) = {"B", 0, 99999, 0, .000001};
    EXPECT_FALSE(fault(problem));
}

} // namespace
} // namespace vantore::mcog
