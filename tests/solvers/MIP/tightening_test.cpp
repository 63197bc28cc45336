#include <gtest/gtest.h>

#include "solvers/MIP/search.h"
#include "solvers/MIP/tightening.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using miprog::Bounds;

constexpr double nearly = 1E-06;

/// v1 - `large` v2 <= 0 with v1 <= 100 and v2 of 0 or 1.
miprog::SolverInput fixedCharge(double large) {
    return ProblemText{.objective = {1, -1},
                       .rows = {{1, -large}, {1, 0}},
                       .relations = "<<",
                       .rhs = {0, 100},
                       .integers = {2},
                       .bounds = {Bounds{}, Bounds{0, 1}}}
        .input();
}

TEST(Tightened, MakesACapacityNoLargerThanWhatCanBeUsed) {
    const auto tight = tightened(fixedCharge(10000));
    EXPECT_NEAR(tight.coef(1, 2), -100, nearly);
    EXPECT_EQ(tight.coef(1, 1), 1);
    EXPECT_EQ(tight.rhs(1), 0);
    EXPECT_EQ(tight.coef(2, 1), 1);
}

TEST(Tightened, LeavesACapacityThatBinds) {
    EXPECT_EQ(tightened(fixedCharge(60)).coef(1, 2), -60);
}

TEST(Tightened, TurnsRoundConstraintsOfTheOtherKind) {
    // -v1 + 10000 v2 >= -50 and v1 <= 100: with v2 = 0 v1 is at most 50, with v2 = 1 it is free
    const auto tight = tightened(ProblemText{
        .objective = {1, -1},
        .rows = {{-1, 10000}, {1, 0}},
        .relations = "><",
        .rhs = {-50, 100},
        .integers = {2},
        .bounds = {Bounds{},
                   Bounds{0, 1}}}.input());
    EXPECT_NEAR(tight.coef(1, 2), 50, nearly);
    EXPECT_EQ(tight.rhs(1), -50);
}

TEST(Tightened, MovesTheRightSideWithAPositiveCoefficient) {
    // v1 + 500 v2 <= 600 and v1 <= 150: with v2 = 0 it says nothing, with v2 = 1 v1 <= 100
    const auto tight = tightened(ProblemText{
        .objective = {1, -1},
        .rows = {{1, 500}, {1, 0}},
        .relations = "<<",
        .rhs = {600, 150},
        .integers = {2},
        .bounds = {Bounds{},
                   Bounds{0, 1}}}.input());
    EXPECT_NEAR(tight.coef(1, 2), 50, nearly);
    EXPECT_NEAR(tight.rhs(1), 150, nearly);
}

TEST(Tightened, LeavesNoCoefficientThatIsOnlyRounding) {
    // 5 v1 - 50 v2 <= 100 with v1 <= 20: the constraint never binds
    const auto tight = tightened(ProblemText{
        .objective = {1, -1},
        .rows = {{5, -50}, {1, 0}},
        .relations = "<<",
        .rhs = {100, 20},
        .integers = {2},
        .bounds = {Bounds{},
                   Bounds{0, 1}}}.input());
    EXPECT_LE(tight.coef(1, 2), -.005);
    EXPECT_GE(tight.coef(1, 2), -50);
    EXPECT_FALSE(hidesFractions(tight, integerTolerance));
}

TEST(Tightened, LeavesWhatHasNoLimit) {
    auto text = ProblemText{.objective = {1, -1},
                            .rows = {{1, -10000}},
                            .relations = "<",
                            .rhs = {0},
                            .integers = {2},
                            .bounds = {Bounds{}, Bounds{0, 1}}};
    EXPECT_EQ(tightened(text.input()).coef(1, 2), -10000);
    text.relations = "=";
    EXPECT_EQ(tightened(text.input()).coef(1, 2), -10000);
}

TEST(HidesFractions, WhereARoundedFractionStandsForRealUnits) {
    EXPECT_FALSE(hidesFractions(fixedCharge(10000), integerTolerance));
    EXPECT_TRUE(hidesFractions(fixedCharge(1E+09), integerTolerance));
    EXPECT_FALSE(hidesFractions(tightened(fixedCharge(1E+09)), integerTolerance));
}

TEST(HidesFractions, NotWhereWholeUnitsAreFarOff) {
    auto text = ProblemText{.objective = {1, 1}, .rows = {{1, 1E+08}}, .relations = "<", .rhs = {2E+08}};
    text.integers = {1, 2};
    EXPECT_FALSE(hidesFractions(text.input(), integerTolerance));
    text.rows = {{1, 1E+09}};
    EXPECT_TRUE(hidesFractions(text.input(), integerTolerance));
}

} // namespace
} // namespace vantore::mip::tests
