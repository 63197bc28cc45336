#include <gtest/gtest.h>

#include "location/COG/problem.h"
#include "tests/support/error_of.h"

namespace vantore::cog {
namespace {

using tests::errorOf;

Problem sample() {
    Problem problem;
    problem.label = "Two towns, east";
    problem.powerFactor = .5;
    problem.mapFactor = 1.609;
    problem.rowCount = 2;
    problem.points(1) = {"Ashby", 12.5, 0, 300, .25};
    problem.points(2) = {"  ", 1E15, -.5, 0, 3};
    return problem;
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

TEST(CogFile, HasALineForTheHeadTheCountAndEachPoint) {
    EXPECT_EQ(written(sample()),
              "\"Two towns, east\",.5,1.609\r\n2\r\n\"Ashby\",12.5,0,300,.25\r\n\" \",1E+15,-.5,0,3\r\n");
}

TEST(CogFile, ReadsBackWhatItWrote) {
    const Problem problem = readFrom(written(sample()));
    EXPECT_EQ(problem.label, "Two towns, east");
    EXPECT_EQ(problem.mapFactor, 1.609);
    EXPECT_EQ(problem.points(2).x, 1E15);
    EXPECT_EQ(written(problem), written(sample()));
}

TEST(CogFile, StartsAsTheSkeleton) {
    EXPECT_EQ(skeleton(), "\"Enter label\",.5,1\r\n1\r\n\"Enter label\",0,0,0,0\r\n");
}

TEST(CogFile, RefusesCountsOutsideItsTable) {
    EXPECT_EQ(errorOf([] { readFrom("\"A\",.5,1\r\n501\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",.5,1\r\n-1\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",.5,1\r\n2\r\n\"P\",1,2,3,4\r\n"); }), ErrorNumber::InputPastEnd);
}

TEST(CogValidation, ReportsTheFirstFaultInItsOrder) {
    Problem problem = sample();
    problem.points(2) = {"B", 1, 2, 3, 4};
    EXPECT_FALSE(scalarFault(problem));
    EXPECT_FALSE(pointFault(problem));
    problem.points(2).rate = 100000;
    problem.points(2).y = 99999.5;
    EXPECT_EQ(pointFault(problem)->title, "Y coordinate");
    EXPECT_TRUE(pointFault(problem)->text.ends_with("Check point 2"));
    problem.mapFactor = 0;
    EXPECT_EQ(scalarFault(problem)->text, "No map scaling factor (K) has been specified.");
    problem.powerFactor = 0;
    EXPECT_EQ(scalarFault(problem)->text, "No power factor (T) has been specified.");
}

TEST(CogValidation, TakesTheEndsOfItsRanges) {
    Problem problem = sample();
    problem.points(1) = {"A", 99999, 0, 999999999, 99999.9999};
    problem.points(2) = {"B", 0, 99999, 0, 0};
    EXPECT_FALSE(pointFault(problem));
}

} // namespace
} // namespace vantore::cog
