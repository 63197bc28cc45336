#include "solvers/MIP/proof.h"

#include <gtest/gtest.h>

#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

/// What a proof tells, from a cost that is to be beaten.
struct Told {
    std::vector<Rational> costs; ///< of the solutions, in their order
    long long nodes = -1;
};

Told proved(const ProblemText& text, std::optional<Rational> best) {
    const Model model = exactModel(text.input());
    Told told;
    prove(model, best,
          {[&](const ExactPoint& point) { told.costs.push_back(costOf(model, point)); },
           [&](long long nodes) { told.nodes = nodes; }});
    return told;
}

/// 3 v1 + 2 v2 <= 12, v1 + 4 v2 <= 16, 5 v1 + 4 v2 is most at (2, 3): 22.
ProblemText crates() {
    return {.objective = {5, 4},
            .rows = {{3, 2}, {1, 4}},
            .relations = "<<",
            .rhs = {12, 16},
            .integers = {1, 2}};
}

TEST(Proof, FindsTheBestSolutionByItself) {
    const Told told = proved(crates(), std::nullopt);
    ASSERT_FALSE(told.costs.empty());
    EXPECT_EQ(told.costs.back(), -22);
    EXPECT_GE(told.nodes, 0);
}

TEST(Proof, TellsOnlySolutionsThatAreBetter) {
    EXPECT_TRUE(proved(crates(), -22).costs.empty());
    EXPECT_EQ(proved(crates(), -21).costs, std::vector<Rational>{-22});
    const Told told = proved(crates(), -20);
    ASSERT_FALSE(told.costs.empty());
    EXPECT_EQ(told.costs.back(), -22);
    Rational before = -20;
    for (const Rational& cost : told.costs) {
        EXPECT_LT(cost, before);
        before = cost;
    }
}

TEST(Proof, FindsABetterSolutionThatIsBetterByNextToNothing) {
    // v2 may be a little above 1; its worth is 1E-09 a unit.
    const ProblemText text{.objective = {1, 1E-09},
                           .rows = {{2, 0}, {0, 3}},
                           .relations = "<<",
                           .rhs = {7, 3.000001},
                           .integers = {1}};
    const Model model = exactModel(text.input());
    const Rational almost = exact(3.000000001) * model.costScale; // v2 = 1
    const Told told = proved(text, almost);
    ASSERT_EQ(told.costs.size(), 1U);
    EXPECT_LT(told.costs.front(), almost);
    EXPECT_TRUE(proved(text, told.costs.front()).costs.empty());
}

TEST(Proof, BranchesOnAnIntegerThatIsAllButWhole) {
    // v1 <= v2 and v1 + v2 <= 9.9999999: without integers v1 = 4.99999995
    const ProblemText text{.objective = {1, 0},
                           .rows = {{1, -1}, {1, 1}},
                           .relations = "<<",
                           .rhs = {0, 9.9999999},
                           .integers = {1}};
    const Told told = proved(text, std::nullopt);
    ASSERT_FALSE(told.costs.empty());
    EXPECT_EQ(told.costs.back() / exactModel(text.input()).costScale, 4);
}

TEST(Proof, FindsThatThereIsNoSolution) {
    // 2 v1 + 2 v2 + 6 v3 = 3 with fractions only; 6 v1 + 10 v2 + 15 v3 = 29 in no way
    EXPECT_TRUE(
        proved({.objective = {1, 1}, .rows = {{2, 2}}, .relations = "=", .rhs = {3}, .integers = {1, 2}},
               std::nullopt)
            .costs.empty());
    EXPECT_TRUE(proved({.objective = {1, 1, 1},
                        .rows = {{6, 10, 15}},
                        .relations = "=",
                        .rhs = {29},
                        .integers = {1, 2, 3}},
                       std::nullopt)
                    .costs.empty());
    EXPECT_EQ(proved({.objective = {1, 1, 1},
                      .rows = {{6, 10, 15}},
                      .relations = "=",
                      .rhs = {31},
                      .integers = {1, 2, 3}},
                     std::nullopt)
                  .costs.size(),
              1U);
}

TEST(Proof, SettlesContinuousVariablesWithoutABound) {
    // minimise the distance of 7 v1 from 24.5: 3.5, above or below
    const ProblemText text{.maximize = false,
                           .objective = {0, 1, 1},
                           .rows = {{7, -1, 1}},
                           .relations = "=",
                           .rhs = {24.5},
                           .integers = {1}};
    const Told told = proved(text, std::nullopt);
    ASSERT_FALSE(told.costs.empty());
    EXPECT_EQ(told.costs.back() / exactModel(text.input()).costScale, Rational(7, 2));
}

TEST(Proof, NeedsNoMoreNodesWhereTheFirstBoundIsTheBest) {
    EXPECT_LE(
        proved({.objective = {1}, .rows = {{1}}, .relations = "<", .rhs = {5}, .integers = {1}}, -5).nodes,
        1);
}

} // namespace
} // namespace vantore::mip::tests
