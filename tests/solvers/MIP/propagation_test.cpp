#include "solvers/MIP/propagation.h"

#include <gtest/gtest.h>
#include <random>

#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;

Model modelOf(ProblemText text) {
    return exactModel(text.input());
}

Box narrowed(const Model& model) {
    Box box = model.box;
    EXPECT_TRUE(Propagation(model).narrow(box));
    return box;
}

TEST(Propagation, FindsTheFiniteBoundsThatARowImplies) {
    // .2 X1 + .12 X2 <= 1.2: at most 6 and 10, exactly
    const Box box = narrowed(modelOf(
        {.objective = {47, 10}, .rows = {{.2, .12}}, .relations = "<", .rhs = {1.2}, .integers = {1, 2}}));
    EXPECT_EQ(box.at(0).upper, Integer(6));
    EXPECT_EQ(box.at(1).upper, Integer(10));
}

TEST(Propagation, TakesIntegersInwardsAndOthersOutwards) {
    ProblemText text{
        .objective = {1, 1}, .rows = {{2, 0}, {0, 2}}, .relations = "<<", .rhs = {5, 5}, .integers = {1}};
    Box box = narrowed(modelOf(text));
    EXPECT_EQ(box.at(0).upper, Integer(2));
    EXPECT_EQ(box.at(1).upper, Integer(3));
    text.relations = ">>";
    box = narrowed(modelOf(text));
    EXPECT_EQ(box.at(0).lower, Integer(3));
    EXPECT_EQ(box.at(1).lower, Integer(2));
}

TEST(Propagation, CarriesBoundsFromRowToRow) {
    // x <= 4, y <= x, z <= y
    const Box box = narrowed(modelOf({.objective = {1, 1, 1},
                                      .rows = {{0, -1, 1}, {-1, 1, 0}, {1, 0, 0}},
                                      .relations = "<<<",
                                      .rhs = {0, 0, 4},
                                      .integers = {1, 2, 3}}));
    for (const Range& range : box) EXPECT_EQ(range.upper, Integer(4));
}

TEST(Propagation, FindsThatNothingIsLeft) {
    Model model = modelOf({.objective = {1, 1}, .rows = {{1, 1}, {1, 0}}, .relations = ">>", .rhs = {5, 3}});
    Box box = model.box;
    box[1].upper = 1;
    EXPECT_TRUE(Propagation(model).narrow(box));
    EXPECT_EQ(box.at(0).lower, Integer(4));
    box[0].upper = 3;
    EXPECT_FALSE(Propagation(model).narrow(box));
    box[0].upper = 4;
    box[0].lower = 5;
    EXPECT_FALSE(Propagation(model).narrow(box));
}

TEST(Propagation, KnowsTheCostThatIsToBeBeaten) {
    const Model model = modelOf({.maximize = false, .objective = {3, 2}, .integers = {1, 2}});
    Propagation propagation(model);
    propagation.limitCost(7);
    Box box = model.box;
    EXPECT_TRUE(propagation.narrow(box));
    EXPECT_EQ(box.at(0).upper, Integer(2));
    EXPECT_EQ(box.at(1).upper, Integer(3));
    box[0].lower = 2;
    EXPECT_TRUE(propagation.narrow(box, 0));
    EXPECT_EQ(box.at(1).upper, Integer(0));
}

TEST(Propagation, EndsWhereBoundsCreepTowardsEachOther) {
    // x <= y - 1 and y <= x: each pass takes one off
    const Model model = modelOf({.objective = {1, 1},
                                 .rows = {{1, -1}, {-1, 1}},
                                 .relations = "<<",
                                 .rhs = {-1, 0},
                                 .integers = {1, 2},
                                 .bounds = {Bounds{0, 1E+12}, Bounds{0, 1E+12}}});
    Box box = model.box;
    Propagation(model).narrow(box);
    EXPECT_LT(*box.at(0).upper, Integer(1000000000000));
}

TEST(Propagation, NeverLosesASolution) {
    std::mt19937 random(5);
    const auto from = [&random](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    for (int k = 0; k < 500; ++k) {
        ProblemText text;
        const int variables = from(1, 5);
        std::vector<Integer> solution;
        for (int j = 1; j <= variables; ++j) {
            text.objective.push_back(from(-5, 5));
            solution.emplace_back(from(0, 6));
            if (from(0, 1) == 0) text.integers.push_back(j);
        }
        for (int i = from(1, 5); i > 0; --i) {
            std::vector<double> row;
            double left = 0;
            for (int j = 0; j < variables; ++j) {
                row.push_back(from(-7, 7));
                left += row.back() * solution[static_cast<std::size_t>(j)].get_d();
            }
            text.rows.push_back(row);
            const int sense = from(-1, 1);
            text.relations += sense == 0 ? '=' : sense > 0 ? '<' : '>';
            text.rhs.push_back(left + sense * from(0, 3));
        }
        const Model model = modelOf(text);
        const Model small = divided(model);
        Box box = model.box;
        Propagation propagation(small);
        Integer cost;
        for (std::size_t j = 0; j < box.size(); ++j) cost += model.costs[j] * solution[j];
        propagation.limitCost(cost);
        ASSERT_TRUE(propagation.narrow(box)) << "problem " << k;
        for (std::size_t j = 0; j < box.size(); ++j) {
            ASSERT_TRUE(!box[j].lower || *box[j].lower <= solution[j]) << "problem " << k;
            ASSERT_TRUE(!box[j].upper || *box[j].upper >= solution[j]) << "problem " << k;
        }
    }
}

TEST(Divided, TakesWholeRowsToWhatTheirFactorsHaveInCommon) {
    ProblemText text{
        .objective = {1, 1}, .rows = {{2, 4}, {2, 4}, {6, -3}}, .relations = "<>=", .rhs = {7, 7, 3}};
    text.integers = {1, 2};
    const Model model = divided(modelOf(text));
    EXPECT_EQ(model.rows.at(0).terms.at(1).factor, 2);
    EXPECT_EQ(model.rows.at(0).range.upper, Integer(3));
    EXPECT_EQ(model.rows.at(1).range.lower, Integer(4));
    EXPECT_EQ(model.rows.at(2).range.lower, Integer(1));
    EXPECT_EQ(model.rows.at(2).range.upper, Integer(1));
    text.integers = {1};
    EXPECT_EQ(divided(modelOf(text)).rows.at(0).range.upper, Integer(7));
    text.integers = {2};
    EXPECT_EQ(divided(modelOf(text)).rows.at(0).range.upper, Integer(7));
}

TEST(Divided, ShowsThatNoWholeNumbersSatisfyAnEquation) {
    const Model model = divided(
        modelOf({.objective = {1, 1}, .rows = {{2, -2}}, .relations = "=", .rhs = {1}, .integers = {1, 2}}));
    Box box = model.box;
    EXPECT_FALSE(Propagation(model).narrow(box));
}

} // namespace
} // namespace vantore::mip::tests
