#include "solvers/MIP/model.h"

#include <gtest/gtest.h>

#include "solvers/MIP/point.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;

Rational fraction(const char* text) {
    Rational value(text);
    value.canonicalize();
    return value;
}

TEST(Exact, TakesADoubleForTheDecimalThatWasTyped) {
    EXPECT_EQ(exact(.2), fraction("1/5"));
    EXPECT_EQ(exact(-1234.5), fraction("-2469/2"));
    EXPECT_EQ(exact(0), 0);
    EXPECT_EQ(exact(1E-08), fraction("1/100000000"));
    EXPECT_EQ(exact(1.5E+20), Rational("150000000000000000000"));
    EXPECT_EQ(exact(.123456789012345), fraction("123456789012345/1000000000000000"));
}

TEST(Approximate, IsTheDoubleNextToANumber) {
    EXPECT_DOUBLE_EQ(approximate(fraction("1/3")), 1. / 3);
    const Rational huge = exact(1E+300) * exact(1E+300);
    EXPECT_EQ(approximate(huge), std::numeric_limits<double>::max());
    EXPECT_EQ(approximate(-huge), -std::numeric_limits<double>::max());
}

TEST(Model, HoldsRowsAsWholeNumbersWithoutACommonDivisor) {
    const Model model = exactModel(ProblemText{
        .objective = {.5, -2}, .rows = {{.2, .12}, {300, 0}}, .relations = "<=", .rhs = {1.2, 600}}
                                       .input());
    const Row& first = model.rows.at(0); // 5 x + 3 y <= 30
    EXPECT_EQ(first.terms.at(0).factor, 5);
    EXPECT_EQ(first.terms.at(1).factor, 3);
    EXPECT_EQ(first.range.upper, Integer(30));
    EXPECT_FALSE(first.range.lower);
    EXPECT_EQ(first.scale, 25);
    const Row& second = model.rows.at(1); // x = 2
    ASSERT_EQ(second.terms.size(), 1U);
    EXPECT_EQ(second.terms.at(0).factor, 1);
    EXPECT_EQ(second.range.lower, Integer(2));
    EXPECT_EQ(second.range.upper, Integer(2));
    EXPECT_EQ(model.costs, (std::vector<Integer>{-1, 4})); // minimised
    EXPECT_EQ(model.costScale, -2);
}

TEST(Model, TakesBoundsOfIntegersInwardsAndKeepsThoseOfOthers) {
    ProblemText text{
        .maximize = false, .objective = {1, 1, 1}, .rows = {{1, 1, 2}}, .relations = ">", .rhs = {3}};
    text.integers = {1};
    text.bounds = {Bounds{-1.5, 2.5}, Bounds{.25, 1E+30}, Bounds{-1E+30, .1}};
    const Model model = exactModel(text.input());
    EXPECT_EQ(model.box.at(0).lower, Integer(-1));
    EXPECT_EQ(model.box.at(0).upper, Integer(2));
    EXPECT_EQ(model.columnScale.at(1), 4); // in quarters
    EXPECT_EQ(model.box.at(1).lower, Integer(1));
    EXPECT_FALSE(model.box.at(1).upper);
    EXPECT_FALSE(model.box.at(2).lower);
    EXPECT_EQ(model.box.at(2).upper, Integer(1)); // in tenths
    EXPECT_EQ(model.rows.at(0).terms.at(1).factor * 20, model.rows.at(0).terms.at(0).factor * 5);
    EXPECT_EQ(problemValues(model, {{2, 3, 1}, 2}),
              (std::vector<Rational>{1, fraction("3/8"), fraction("1/20")}));
}

TEST(Model, KnowsAVariableWithoutAWholeNumber) {
    ProblemText text{.objective = {1, 1}, .bounds = {Bounds{0, 1}, Bounds{.5, .75}}};
    EXPECT_EQ(variableWithoutWholeNumber(exactModel(text.input())), std::nullopt);
    text.integers = {1, 2};
    EXPECT_EQ(variableWithoutWholeNumber(exactModel(text.input())), 2);
}

TEST(Model, HasAWholeObjectiveWhereOnlyWholeVariablesCost) {
    ProblemText text{.objective = {.5, 0}, .integers = {1}};
    EXPECT_TRUE(exactModel(text.input()).hasWholeObjective());
    text.objective = {.5, .1};
    EXPECT_FALSE(exactModel(text.input()).hasWholeObjective());
}

/// 3 v1 + 2 v2 <= 12, v1 - v2 = .5, v2 >= 1.
ProblemText shelves() {
    return {.objective = {5, -.1}, .rows = {{3, 2}, {1, -1}, {0, 1}}, .relations = "<=>", .rhs = {12, .5, 1}};
}

TEST(Checked, GivesTheSolutionInTheProblemsUnits) {
    const auto solution = checked(shelves().input(), {fraction("13/5"), fraction("21/10")});
    ASSERT_TRUE(solution);
    EXPECT_EQ(solution->objective, fraction("1279/100"));
    EXPECT_EQ(solution->leftSides, (std::vector<Rational>{12, fraction("1/2"), fraction("21/10")}));
}

TEST(Checked, RefusesWhatMissesByAnything) {
    const auto holds = [](const ProblemText& text, const char* first, const char* second) {
        return checked(text.input(), {fraction(first), fraction(second)}).has_value();
    };
    EXPECT_TRUE(holds(shelves(), "3/2", "1"));
    EXPECT_FALSE(holds(shelves(), "260000000001/100000000000", "210000000001/100000000000")); // over 12
    EXPECT_FALSE(holds(shelves(), "150000000001/100000000000", "1"));                         // not .5
    EXPECT_FALSE(holds(shelves(), "149999999999/100000000000", "1"));                         // not .5
    EXPECT_FALSE(holds(shelves(), "1", "1/2"));                                               // below 1
    ProblemText text = shelves();
    text.integers = {2};
    EXPECT_TRUE(holds(text, "3/2", "1"));
    EXPECT_FALSE(holds(text, "26/10", "21/10")); // no whole number
    text.integers = {};
    text.bounds = {Bounds{0, 1.5}, Bounds{1.25, 9}};
    EXPECT_FALSE(holds(text, "3/2", "1"));
    text.bounds = {Bounds{0, 1.25}, Bounds{0, 9}};
    EXPECT_FALSE(holds(text, "3/2", "1"));
    EXPECT_FALSE(checked(text.input(), {1}));
}

TEST(Better, GoesByTheSenseOfTheObjective) {
    EXPECT_TRUE(better(ProblemText{.maximize = true}.input(), 2, 1));
    EXPECT_FALSE(better(ProblemText{.maximize = true}.input(), 1, 1));
    EXPECT_TRUE(better(ProblemText{.maximize = false}.input(), 1, 2));
    EXPECT_FALSE(better(ProblemText{.maximize = false}.input(), 2, 2));
}

} // namespace
} // namespace vantore::mip::tests
