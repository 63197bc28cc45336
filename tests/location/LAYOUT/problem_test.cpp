#include <gtest/gtest.h>

#include "location/LAYOUT/problem.h"
#include "tests/support/error_of.h"

namespace vantore::layout {
namespace {

using vantore::tests::errorOf;

constexpr const char* file =
    "\"Spare parts, east\",2\r\n2\r\n\"Bolts\",1200,.25,8,340\r\n\" \",0,1E+15,-2,0\r\n";

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

TEST(LayoutFile, HoldsTheLabelTheRuleAndTheProducts) {
    const Problem problem = readFrom(file);
    EXPECT_EQ(problem.label, "Spare parts, east");
    EXPECT_EQ(problem.rule, Rule::Size);
    ASSERT_EQ(problem.rowCount, 2);
    EXPECT_EQ(problem.products(1).label, "Bolts");
    EXPECT_EQ(problem.products(1).sales, 1200);
    EXPECT_EQ(problem.products(1).size, .25);
    EXPECT_EQ(problem.products(1).turns, 8);
    EXPECT_EQ(problem.products(1).orders, 340);
    EXPECT_EQ(written(problem), file);
}

TEST(LayoutFile, NumbersTheRules) {
    EXPECT_EQ(readFrom("\"A\",1\r\n0\r\n").rule, Rule::Popularity);
    EXPECT_EQ(readFrom("\"A\",3\r\n0\r\n").rule, Rule::CubePerOrder);
    EXPECT_EQ(readFrom("\"A\",4\r\n0\r\n").rule, Rule::Popularity);
    EXPECT_EQ(readFrom("\"A\",none\r\n0\r\n").rule, Rule::Popularity);
    Problem problem;
    problem.rule = Rule::CubePerOrder;
    EXPECT_EQ(written(problem), "\"\",3\r\n0\r\n");
}

TEST(LayoutFile, StartsAsTheSkeleton) {
    EXPECT_EQ(skeleton(), "\"Enter label\",1\r\n1\r\n\" \",0,0,0,0\r\n");
}

TEST(LayoutFile, RefusesCountsOutsideItsTable) {
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\r\n501\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\r\n-1\r\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("\"A\",1\r\n500\r\n\"P\",1,2,3,4\r\n"); }), ErrorNumber::InputPastEnd);
}

TEST(LayoutValidation, WantsTurnsOfEveryProduct) {
    Problem problem = readFrom(file);
    EXPECT_FALSE(fault(problem));
    problem.products(2).turns = 0;
    ASSERT_TRUE(fault(problem));
    EXPECT_EQ(fault(problem)->text, "No item inventory turns should be 0");
    problem.rowCount = 1;
    EXPECT_FALSE(fault(problem));
}

} // namespace
} // namespace vantore::layout
