#include "solvers/MIP/certificates.h"

#include <gtest/gtest.h>

#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;
using Whole = std::vector<Integer>;

/// minimise 3 x + 2 y with x + y >= 4, x - y = 1, 2 x + y <= 30; both at least 0, y at most 10.
Model transport() {
    return exactModel(ProblemText{.maximize = false,
                                  .objective = {3, 2},
                                  .rows = {{1, 1}, {1, -1}, {2, 1}},
                                  .relations = ">=<",
                                  .rhs = {4, 1, 30},
                                  .bounds = {Bounds{}, Bounds{0, 10}}}
                          .input());
}

TEST(SafeBound, IsTheOptimumUnderTheOptimalMultipliers) {
    // The dual by hand: y1 + y2 = 3, y1 - y2 = 2.
    const Model model = transport();
    const auto bound = safeBound(model, model.box, {{5, 1, 0}, 2});
    ASSERT_TRUE(bound);
    EXPECT_EQ(bound->cost, 21); // 10.5 over 2
    EXPECT_EQ(bound->reducedCosts, (Whole{0, 0}));
}

TEST(SafeBound, HoldsUnderAnyMultipliers) {
    // (5/2, 3/2) costs 10.5 and is a solution: no multipliers may show more.
    const Model model = transport();
    int bounds = 0;
    for (int a = -6; a <= 6; ++a)
        for (int b = -6; b <= 6; ++b)
            for (int c = -6; c <= 6; ++c)
                if (const auto bound = safeBound(model, model.box, {{a, b, c}, 2})) {
                    EXPECT_LE(bound->cost, 21) << a << " " << b << " " << c;
                    ++bounds;
                }
    EXPECT_GT(bounds, 500);
}

TEST(SafeBound, TakesTheCheaperEndOfEachRange) {
    const Model model = transport();
    // Multipliers (1, 0, 0) leave 2 x + y, at least 0: 4 + 0.
    EXPECT_EQ(safeBound(model, model.box, {{1, 0, 0}, 1})->cost, 4);
    // (3, 0, 0) leave 0 x - y, y at most 10: 12 - 10.
    EXPECT_EQ(safeBound(model, model.box, {{3, 0, 0}, 1})->cost, 2);
    // (4, 0, 0) leave -x, which has no end.
    EXPECT_FALSE(safeBound(model, model.box, {{4, 0, 0}, 1}));
    // A "<" adds nothing under a positive multiplier, a ">" nothing under a negative one.
    EXPECT_EQ(safeBound(model, model.box, {{0, 0, 1}, 1})->cost, 0);
    EXPECT_EQ(safeBound(model, model.box, {{-1, 0, 0}, 1})->cost, 0);
    EXPECT_EQ(safeBound(model, model.box, {{0, 0, -1}, 1})->cost, -30);
}

TEST(Contradict, HoldsOnlyWhereNothingSatisfiesTheSum) {
    const Model model = exactModel(
        ProblemText{.objective = {0, 0}, .rows = {{1, 1}, {1, 1}}, .relations = "<>", .rhs = {3, 5}}.input());
    EXPECT_TRUE(contradict(model, model.box, {-1, 1}));
    EXPECT_FALSE(contradict(model, model.box, {1, -1}));
    EXPECT_FALSE(contradict(model, model.box, {-2, 1})); // 5 - 6: nothing
    Box box = model.box;
    EXPECT_FALSE(contradict(model, box, {0, 1}));
    box[0].upper = box[1].upper = 2;
    EXPECT_TRUE(contradict(model, box, {0, 1})); // 2 + 2 < 5
    box[1].upper = 3;
    EXPECT_FALSE(contradict(model, box, {0, 1})); // 2 + 3 = 5 will do
}

TEST(KeepsAll, TellsWhatMissesByAnything) {
    const Model model = transport();
    EXPECT_TRUE(keepsAll(model, {{5, 3}, 2}));
    EXPECT_FALSE(keepsAll(model, {{4, 2}, 2}));   // 3 < 4
    EXPECT_FALSE(keepsAll(model, {{6, 3}, 2}));   // 1.5 is not 1
    EXPECT_TRUE(keepsAll(model, {{31, 28}, 3}));  // 2 x + y = 30
    EXPECT_FALSE(keepsAll(model, {{32, 29}, 3})); // 31 > 30
    EXPECT_FALSE(keepsAll(model, {{11, -1}, 1}));
    EXPECT_FALSE(keepsAll(model, {{12, 11}, 1}));
}

TEST(FallsForEver, WantsEveryBoundAndRowToAllowItAndTheCostToFall) {
    // minimise -x - y with x - y <= 3, y - x <= 5 and z between 0 and 1
    const auto text = ProblemText{.objective = {1, 1, 0},
                                  .rows = {{1, -1, 0}, {-1, 1, 0}, {1, 1, 0}},
                                  .relations = "<<>",
                                  .rhs = {3, 5, 1},
                                  .bounds = {Bounds{}, Bounds{}, Bounds{0, 1}}};
    const Model model = exactModel(text.input());
    EXPECT_TRUE(fallsForEver(model, {1, 1, 0}));
    EXPECT_FALSE(fallsForEver(model, {1, 0, 0}));
    EXPECT_FALSE(fallsForEver(model, {0, 1, 0}));
    EXPECT_FALSE(fallsForEver(model, {-1, -1, 0}));
    EXPECT_FALSE(fallsForEver(model, {1, 1, 1}));
    EXPECT_FALSE(fallsForEver(withoutObjective(model), {1, 1, 0}));
    Model equation = model;
    equation.rows.at(0).range.lower = -3;
    EXPECT_TRUE(fallsForEver(equation, {1, 1, 0}));
    EXPECT_FALSE(fallsForEver(equation, {1, 2, 0}));
}

} // namespace
} // namespace vantore::mip::tests
