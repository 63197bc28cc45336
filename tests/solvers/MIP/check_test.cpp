#include <gtest/gtest.h>

#include <limits>

#include "solvers/MIP/check.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;

/// 3 v1 + 2 v2 <= 12, v1 + 4 v2 >= 6, v1 + v2 = 4.5; v1 integer.
miprog::SolverInput threeKinds() {
    return ProblemText{.objective = {5, 4},
                       .rows = {{3, 2}, {1, 4}, {1, 1}},
                       .relations = "<>=",
                       .rhs = {12, 6, 4.5},
                       .integers = {1}}
        .input();
}

TEST(Check, ComputesObjectiveAndLeftSidesAnew) {
    const Checked found = checked(threeKinds(), {2, 2.5});
    ASSERT_TRUE(found.solution);
    EXPECT_EQ(found.solution->objective, 20);
    EXPECT_EQ(found.solution->leftSides, (std::vector<double>{11, 12, 4.5}));
}

TEST(Check, RoundsIntegersBeforeItComputes) {
    const Checked found = checked(threeKinds(), {1.9999999, 2.5});
    ASSERT_TRUE(found.solution);
    EXPECT_EQ(found.solution->values.front(), 2);
    EXPECT_EQ(found.solution->objective, 20);
}

TEST(Check, NamesTheConstraintThatIsMissed) {
    EXPECT_EQ(checked(threeKinds(), {3, 2.5}).fault,
              "The left side of constraint 1 is 14, its right side 12.");
    EXPECT_EQ(checked(threeKinds(), {1, .5}).fault, "The left side of constraint 2 is 3, its right side 6.");
    EXPECT_EQ(checked(threeKinds(), {1, 3.4}).fault,
              "The left side of constraint 3 is 4.4, its right side 4.5.");
    EXPECT_FALSE(checked(threeKinds(), {1, 3.4}).solution);
}

TEST(Check, NamesTheVariableOutsideItsBounds) {
    const auto input = ProblemText{.objective = {1}, .bounds = {Bounds{0, 1}}}.input();
    EXPECT_EQ(checked(input, {1.5}).fault, "The value 1.5 of variable 1 (v1) is outside its bounds.");
    EXPECT_EQ(checked(input, {-.1}).fault, "The value -.1 of variable 1 (v1) is outside its bounds.");
    EXPECT_EQ(checked(input, {std::numeric_limits<double>::quiet_NaN()}).fault,
              "No number was found for variable 1 (v1).");
}

TEST(Check, TakesAValueOntoABoundThatItMissesByRounding) {
    const auto input = ProblemText{.objective = {1}, .bounds = {Bounds{0, 1}}}.input();
    EXPECT_EQ(checked(input, {1.0000001}).solution->values.front(), 1);
    EXPECT_EQ(checked(input, {-.0000001}).solution->values.front(), 0);
}

TEST(Check, TakesOffWhatIsOnlyRounding) {
    // .1 x 3 is .30000000000000004 and 3 x .1 - .3 is 5.6E-17
    const auto input = ProblemText{
        .objective = {.1, -.3},
        .rows = {{.1, 0}, {.1, -.3}},
        .relations = "<<",
        .rhs = {.3, 0}}.input();
    const Checked found = checked(input, {3, 1 + 1E-15});
    ASSERT_TRUE(found.solution);
    EXPECT_EQ(found.solution->objective, 0);
    EXPECT_EQ(found.solution->leftSides, (std::vector<double>{.3, 0}));
    EXPECT_FALSE(checked(input, {3, 1E-13}).solution);
    EXPECT_EQ(checked(input, {0, 1E-13}).solution->values, (std::vector<double>{0, 0}));
}

TEST(Check, FindsNoWholeNumberBetweenFractionalBounds) {
    auto text = ProblemText{.objective = {1}, .integers = {1}, .bounds = {Bounds{.9999999, .9999999}}};
    EXPECT_EQ(checked(text.input(), {.9999999}).fault,
              "The value .9999999 of variable 1 (v1) is no whole number.");
    EXPECT_EQ(integerWithoutWholeNumber(text.input()),
              "No whole number is within the bounds of variable 1 (v1).");
    text.bounds = {Bounds{.5, 1.5}};
    EXPECT_FALSE(integerWithoutWholeNumber(text.input()));
}

TEST(Check, MeasuresAConstraintByItsLargestTerm) {
    const auto input =
        ProblemText{.objective = {1, 1}, .rows = {{1E+06, -1}}, .relations = "<", .rhs = {0}}.input();
    EXPECT_TRUE(checked(input, {1, 1E+06 - .5}).solution);
    EXPECT_FALSE(checked(input, {1, 1E+06 - 2}).solution);
}

TEST(OversizedNumber, TellsWhichOneItIs) {
    EXPECT_FALSE(oversizedNumber(threeKinds()));
    auto text = ProblemText{.objective = {1, 2}, .rows = {{3, 4}}, .relations = "<", .rhs = {5}};
    text.rows = {{3, -1E+25}};
    EXPECT_EQ(oversizedNumber(text.input()),
              "The coefficient of variable 2 (v2) in constraint 1 is too large: "
              "the solver takes numbers below 1E+20.");
    text.rhs = {1E+20};
    EXPECT_EQ(oversizedNumber(text.input()),
              "The right-hand side of constraint 1 is too large: the solver takes numbers below 1E+20.");
    text.objective = {1E+300, 2};
    EXPECT_EQ(oversizedNumber(text.input()), "The objective coefficient of variable 1 (v1) is too large: the "
                                             "solver takes numbers below 1E+20.");
}

} // namespace
} // namespace vantore::mip::tests
