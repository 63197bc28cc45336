#include <gtest/gtest.h>

#include "location/LAYOUT/method.h"
#include "tests/support/error_of.h"

namespace vantore::layout {
namespace {

using vantore::tests::errorOf;

Problem problemOf(Rule rule, std::initializer_list<Product> products) {
    Problem problem;
    problem.rule = rule;
    for (const Product& product : products) problem.products(++problem.rowCount) = product;
    return problem;
}

std::string labelsOf(const std::vector<RankedProduct>& ranked) {
    std::string labels;
    for (const RankedProduct& each : ranked) labels += each.product.label;
    return labels;
}

// Sales, size, turns, orders. The space of A is 730 x 2 / 10 = 146 cubic feet, its index 146 x 365 / 100.
const std::initializer_list<Product> products = {{"A", 730, 2, 10, 100}, // 146, 532.9
                                                 {"B", 400, 1, 8, 365},  // 50, 50
                                                 {"C", 600, 3, 12, 50},  // 150, 1095
                                                 {"D", 100, 1, 4, 100}}; // 25, 91.25

TEST(LayoutRanking, ByPopularityFallsWithTheOrdersAndKeepsTies) {
    EXPECT_EQ(labelsOf(ranking(problemOf(Rule::Popularity, products))), "BADC");
}

TEST(LayoutRanking, BySizeRisesAndKeepsTies) {
    EXPECT_EQ(labelsOf(ranking(problemOf(Rule::Size, products))), "BDAC");
}

TEST(LayoutRanking, ByCubePerOrderRisesWithTheSpaceOverTheOrdersADay) {
    const std::vector<RankedProduct> ranked = ranking(problemOf(Rule::CubePerOrder, products));
    EXPECT_EQ(labelsOf(ranked), "BDAC");
    EXPECT_EQ(ranked[0].cubePerOrder, 50);
    EXPECT_EQ(ranked[1].cubePerOrder, 91.25);
    EXPECT_DOUBLE_EQ(ranked[2].cubePerOrder, 532.9);
    EXPECT_EQ(ranked[3].cubePerOrder, 1095);
}

TEST(LayoutRanking, TellsTheSpaceUnderEveryRule) {
    for (const Rule rule : {Rule::Popularity, Rule::Size, Rule::CubePerOrder})
        for (const RankedProduct& each : ranking(problemOf(rule, products)))
            if (each.product.label == "C") {
                EXPECT_EQ(each.space, 150);
            }
}

TEST(LayoutRanking, NeedsOrdersUnderTheCubePerOrderRuleAlone) {
    const Product unordered{"A", 730, 2, 10, 0};
    EXPECT_EQ(labelsOf(ranking(problemOf(Rule::Popularity, {unordered}))), "A");
    EXPECT_EQ(labelsOf(ranking(problemOf(Rule::Size, {unordered}))), "A");
    EXPECT_EQ(errorOf([&] { ranking(problemOf(Rule::CubePerOrder, {unordered})); }),
              ErrorNumber::DivisionByZero);
}

TEST(LayoutRanking, OverflowsRatherThanShowWhatIsNoNumber) {
    EXPECT_EQ(errorOf([&] {
                  ranking(problemOf(Rule::Size, {{"A", 1E300, 1E300, 1, 1}}));
              }),
              ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([&] {
                  ranking(problemOf(Rule::CubePerOrder, {{"A", 1E300, 1, 1, 1E-300}}));
              }),
              ErrorNumber::Overflow);
}

TEST(LayoutRanking, OfNothingIsEmpty) {
    EXPECT_TRUE(ranking({}).empty());
}

} // namespace
} // namespace vantore::layout
