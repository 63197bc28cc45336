#include <gtest/gtest.h>

#include <string>

#include "routing/ROUTESEQ/problem.h"
#include "tests/support/error_of.h"

namespace vantore::routeseq {
namespace {

using vantore::tests::errorOf;

const char* const sample =
    "\"Milk, east\",1.2,0,-12.5,.75\r\n2\r\n\"Harbor gate\",100,18\r\n\" \",-7,9.25\r\n";

StopSequencingProblem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const StopSequencingProblem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

TEST(StopSequencingFile, ReadsBackWhatItWrote) {
    const StopSequencingProblem problem = readFrom(sample);
    EXPECT_EQ(problem.label, "Milk, east");
    EXPECT_EQ(problem.circuityFactor, 1.2);
    EXPECT_EQ(problem.mapFactor, 0);
    EXPECT_EQ(problem.depotX, -12.5);
    EXPECT_EQ(problem.depotY, .75);
    EXPECT_EQ(problem.stopCount, 2);
    EXPECT_EQ(problem.stops(1).label, "Harbor gate");
    EXPECT_EQ(problem.stops(1).x, 100);
    EXPECT_EQ(problem.stops(2).y, 9.25);
    EXPECT_EQ(written(problem), sample);
}

TEST(StopSequencingFile, StartsWithABlankStop) {
    EXPECT_EQ(skeleton(), "\"Enter label\",1,1,0,0\r\n1\r\n\" \",0,0\r\n");
}

TEST(StopSequencingFile, RefusesCountsOutsideItsTable) {
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1,1,0,0\n501\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1,1,0,0\n-1\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1,1,0,0\n500\n"); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(readFrom("\"A\",1,1,0,0\n0\n").stopCount, 0);
}

TEST(DistanceOnTheRoad, IsTheDistanceTimesBothFactors) {
    StopSequencingProblem problem;
    problem.circuityFactor = 1.5;
    problem.mapFactor = -2;
    EXPECT_EQ(problem.onTheRoad(10), -30);
    problem.circuityFactor = problem.mapFactor = 1E300;
    EXPECT_EQ(errorOf([&] { problem.onTheRoad(1); }), ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore::routeseq
