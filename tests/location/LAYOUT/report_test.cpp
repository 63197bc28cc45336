#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "location/LAYOUT/report.h"
#include "tests/location/LAYOUT/plain_layout.h"

namespace vantore::layout {
namespace {

/// A number of few values, so that there are ties, or of many digits.
double anyNumber(std::mt19937& random) {
    const double digits =
        random() % 2 == 0 ? static_cast<double>(random() % 20) : static_cast<double>(random()) / 977;
    return (digits + 1) * std::pow(10.0, static_cast<int>(random() % 5) - 2);
}

Problem randomProblem(std::mt19937& random) {
    Problem problem;
    problem.rule = static_cast<Rule>(1 + random() % 3);
    const bool full = random() % 20 == 0;
    problem.rowCount = full ? mostProducts : static_cast<int>(random() % 40);
    for (int i = 1; i <= problem.rowCount; ++i) {
        const std::string label(random() % 25, static_cast<char>('a' + i % 26));
        problem.products(i) = {label, anyNumber(random), anyNumber(random), anyNumber(random),
                               anyNumber(random)};
    }
    return problem;
}

TEST(LayoutReport, IsThatOfThePlainProgramOnAThousandRandomProblems) {
    std::mt19937 random(20261121);
    for (int i = 0; i < 1000; ++i) {
        const Problem problem = randomProblem(random);
        ASSERT_EQ(reportOn(problem.rule, ranking(problem)).lines(), tests::plainReport(problem)) << i;
    }
}

TEST(LayoutReport, PutsTheFiguresUnderTheirHeadings) {
    const std::vector<RankedProduct> ranked = {{{"Dish soap", 15250, .9, 8, 1180}, 530.685, 1715.625}};
    EXPECT_EQ(reportOn(Rule::Size, ranked).lines(),
              (std::vector<std::string>{
                  "                             LAYOUT BY ITEM SIZE",
                  "                                       Item      Item                 Required",
                  "                         No. of      sales,      size,  Inventory       space,",
                  "Rank Product name    orders/yr.       units    cu. ft.      turns      cu. ft.",
                  "   1 Dish soap            1,180      15,250        .90       8.00        1,716"}));
    EXPECT_EQ(reportOn(Rule::CubePerOrder, ranked).lines().back(),
              "   1 Dish soap            1,180      15,250        .90         531       1,716");
    EXPECT_EQ(reportOn(Rule::Popularity, {}).lines().front(), " LAYOUT BY ITEM POPULARITY");
}

TEST(LayoutReport, CutsALongLabelUnderThePopularityRuleAlone) {
    const std::vector<RankedProduct> ranked = {{{"Workbench with drawers and a vice", 1, 2, 3, 4}, 0, 0}};
    EXPECT_EQ(reportOn(Rule::Popularity, ranked).lines().at(4).substr(0, 22), "   1 Workbench with   ");
    EXPECT_EQ(reportOn(Rule::Size, ranked).lines().at(4), "   1 Workbench with drawers and a vice");
    EXPECT_EQ(reportOn(Rule::Size, ranked).lines().at(5).substr(0, 31), "                              4");
}

TEST(LayoutReport, CutsByCharacters) {
    const std::vector<RankedProduct> ranked = {{{"Grüne Käse äöüßé", 1, 2, 3, 4}, 0, 0}};
    EXPECT_NE(reportOn(Rule::Popularity, ranked).lines().at(4).find("Grüne Käse äöüß "), std::string::npos);
}

} // namespace
} // namespace vantore::layout
