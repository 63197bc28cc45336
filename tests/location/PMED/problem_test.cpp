#include <gtest/gtest.h>

#include "location/PMED/problem.h"
#include "tests/support/error_of.h"

namespace vantore::pmed {
namespace {

using vantore::tests::errorOf;

constexpr const char* file = "\"Stores, west\",1.5,1.2,2\r\n2\r\n\"Reno\",119.81,39.53,300,.25,40000,1\r\n"
                             "\" \",115.14,36.17,0,3,-5,0\r\n";

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

/// What is told of a problem with so many facilities; empty when it is in order.
std::string told(const Problem& problem, double facilities) {
    const auto found = fault(problem, facilities);
    if (!found) return "";
    EXPECT_EQ(found->title, "PMED");
    return found->text;
}

TEST(PmedFile, HoldsTheScalarsAndThePoints) {
    const Problem problem = readFrom(file);
    EXPECT_EQ(problem.label, "Stores, west");
    EXPECT_EQ(problem.hScale, 1.5);
    EXPECT_EQ(problem.vScale, 1.2);
    EXPECT_EQ(problem.coordinates, Coordinates::Degrees);
    ASSERT_EQ(problem.rowCount, 2);
    EXPECT_EQ(problem.sites(1).label, "Reno");
    EXPECT_EQ(problem.sites(1).x, 119.81);
    EXPECT_EQ(problem.sites(1).y, 39.53);
    EXPECT_EQ(problem.sites(1).volume, 300);
    EXPECT_EQ(problem.sites(1).rate, .25);
    EXPECT_EQ(problem.sites(1).fixedCost, 40000);
    EXPECT_TRUE(problem.sites(1).candidate);
    EXPECT_FALSE(problem.sites(2).candidate);
    EXPECT_EQ(problem.candidateCount(), 1);
    EXPECT_EQ(written(problem), file);
}

TEST(PmedFile, TakesCoordinatesOfNoKindAsLinear) {
    EXPECT_EQ(readFrom("\"A\",1,1,1\r\n0\r\n").coordinates, Coordinates::Linear);
    EXPECT_EQ(readFrom("\"A\",1,1,7\r\n0\r\n").coordinates, Coordinates::Linear);
}

TEST(PmedFile, StartsAsTheSkeleton) {
    EXPECT_EQ(skeleton(), "\"Enter label\",1,1,1\r\n1\r\n\"Enter label\",0,0,0,0,0,0\r\n");
}

TEST(PmedFile, RefusesCountsOutsideItsTable) {
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1,1,1\r\n66\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1,1,1\r\n-1\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1,1,1\r\n65\r\n\"P\",1,2\r\n"); }), ErrorNumber::InputPastEnd);
}

TEST(PmedValidation, ReportsTheFirstFaultInItsOrder) {
    Problem problem = readFrom(file);
    EXPECT_EQ(told(problem, 1), "");
    problem.sites(1).candidate = false;
    EXPECT_EQ(told(problem, 1), "At least one candidate site must be selected");
    problem.sites(2).rate = -1;
    EXPECT_EQ(told(problem, 1), "No transport rate should be outside the range of 0 to 99999.9999.");
    problem.sites(1).volume = 1E9;
    EXPECT_EQ(told(problem, 1), "No volume should be outside the range of 0 to 999,999,999.");
    problem.rowCount = 0;
    EXPECT_EQ(told(problem, 1), "At least one point is needed in the problem");
    problem.vScale = .99;
    EXPECT_EQ(told(problem, 1), "A circuity factor of at least 1 has not been specified");
    problem.hScale = 0;
    EXPECT_EQ(told(problem, 1), "A horizontal map scaling factor has not been specified");
    EXPECT_EQ(told(problem, 15.5), "The number of sites to be located exceeds the maximum of 15.");
    EXPECT_EQ(told(problem, 0), "The number of sites for location is zero (0).");
}

TEST(PmedValidation, WantsAVerticalFactorOnAGridAlone) {
    Problem problem = readFrom(file);
    problem.coordinates = Coordinates::Linear;
    problem.vScale = .5;
    EXPECT_EQ(told(problem, 1), "");
    problem.vScale = 0;
    EXPECT_EQ(told(problem, 1), "A vertical map scaling factor has not been specified");
    problem.coordinates = Coordinates::Degrees;
    EXPECT_EQ(told(problem, 1), "A circuity factor of at least 1 has not been specified");
}

TEST(PmedValidation, TakesFifteenCandidates) {
    Problem problem = readFrom(file);
    problem.rowCount = 16;
    for (int i = 1; i <= 15; ++i) problem.sites(i).candidate = true;
    EXPECT_EQ(told(problem, 15), "");
    problem.sites(16).candidate = true;
    EXPECT_EQ(told(problem, 15), "The number of candidate sites exceeds the maximum of 15");
}

} // namespace
} // namespace vantore::pmed
