#include "solvers/MIP/search.h"

#include <gtest/gtest.h>

#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

struct Told {
    std::vector<Rational> costs;
    std::vector<SearchProgress> progress;
    SearchEnd end = SearchEnd::Failed;
};

/// What a search tells of a problem.
Told searched(const Model& model) {
    Told told;
    told.end = search(model, {[&](const ExactPoint& point) { told.costs.push_back(costOf(model, point)); },
                              [&](const SearchProgress& progress) { told.progress.push_back(progress); }});
    return told;
}

/// Goods for a lorry of 17 tonnes; the best two are the third and the fourth (4 + 13, worth 29).
ProblemText lorry() {
    return {.objective = {10, 13, 7, 22, 8},
            .rows = {{6, 9, 4, 13, 5}},
            .relations = "<",
            .rhs = {17},
            .integers = {1, 2, 3, 4, 5},
            .bounds = {{0, 1}, {0, 1}, {0, 1}, {0, 1}, {0, 1}}};
}

TEST(Search, TellsSolutionsEachBetterThanTheOneBefore) {
    const Model model = exactModel(lorry().input());
    const Told told = searched(model);
    EXPECT_EQ(told.end, SearchEnd::Optimal);
    ASSERT_FALSE(told.costs.empty());
    for (std::size_t k = 1; k < told.costs.size(); ++k) EXPECT_LT(told.costs[k], told.costs[k - 1]);
    EXPECT_EQ(told.costs.back() / model.costScale, 29);
}

TEST(Search, TellsHowFarItHasCome) {
    const Model model = exactModel(lorry().input());
    const Told told = searched(model);
    ASSERT_FALSE(told.progress.empty());
    ASSERT_TRUE(told.progress.back().bound);
    EXPECT_NEAR(approximate(*told.progress.back().bound / model.costScale), 29, 1E-6);
}

TEST(Search, TellsThatItFindsNone) {
    // 2 v1 + 2 v2 = 3 with fractions only
    const Told told = searched(exactModel(
        ProblemText{.objective = {1, 1}, .rows = {{2, 2}}, .relations = "=", .rhs = {3}, .integers = {1, 2}}
            .input()));
    EXPECT_EQ(told.end, SearchEnd::Infeasible);
    EXPECT_TRUE(told.costs.empty());
}

} // namespace
} // namespace vantore::mip::tests
