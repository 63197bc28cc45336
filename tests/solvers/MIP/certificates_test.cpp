#include <gtest/gtest.h>

#include "solvers/MIP/certificates.h"
#include "tests/solvers/MIP/problems.h"

namespace vantore::mip::tests {
namespace {

using Places = std::vector<int>;

/// v1 + v2 <= 3, v1 <= 2, v1 + v2 >= 5: the first and the last contradict each other.
miprog::SolverInput contradicting() {
    return ProblemText{
        .objective = {1, 1}, .rows = {{1, 1}, {1, 0}, {1, 1}}, .relations = "<<>", .rhs = {3, 2, 5}}
        .input();
}

TEST(ProvenConflict, NamesTheConstraintsOfTheProof) {
    EXPECT_EQ(provenConflict(contradicting(), {1, 0, -1}), (Places{1, 3}));
    EXPECT_EQ(provenConflict(contradicting(), {-2, 0, 2}), (Places{1, 3}));
}

TEST(ProvenConflict, BelievesNothingThatProvesNothing) {
    EXPECT_EQ(provenConflict(contradicting(), {1, 1, 0}), Places());
    EXPECT_EQ(provenConflict(contradicting(), {1, 0, 1}), Places());
    EXPECT_EQ(provenConflict(contradicting(), {0, 0, 0}), Places());
}

TEST(ProvenConflict, NeedsTheBoundsOfTheVariables) {
    // v1 >= 4 where v1 can be 3 at most
    auto text = ProblemText{.objective = {1}, .rows = {{1}}, .relations = ">", .rhs = {4}};
    EXPECT_EQ(provenConflict(text.input(), {-1}), Places());
    text.bounds = {{0, 3}};
    EXPECT_EQ(provenConflict(text.input(), {-1}), Places{1});
    EXPECT_EQ(conflictInOneRow(text.input()), Places{1});
}

TEST(ConflictInOneRow, FindsNoneWhereEachRowCanHold) {
    EXPECT_EQ(conflictInOneRow(contradicting()), Places());
    const auto empty = ProblemText{.objective = {1}, .rows = {{0}, {0}}, .relations = "<=", .rhs = {1, 2}};
    EXPECT_EQ(conflictInOneRow(empty.input()), Places{2});
}

TEST(ProvenRay, NamesTheVariablesThatGrow) {
    // maximise v1 + v2 with v1 - v2 <= 3: v2 alone may grow, or both
    const auto input =
        ProblemText{.objective = {1, 1}, .rows = {{1, -1}}, .relations = "<", .rhs = {3}}.input();
    EXPECT_EQ(provenRay(input, {0, 1}), Places{2});
    EXPECT_EQ(provenRay(input, {1, 1}), (Places{1, 2}));
    EXPECT_EQ(provenRay(input, {1, 0}), Places());
    EXPECT_EQ(provenRay(input, {0, -1}), Places());
}

TEST(ProvenRay, HasToImproveTheObjective) {
    const auto input = ProblemText{.maximize = false, .objective = {1}}.input();
    EXPECT_EQ(provenRay(input, {1}), Places());
}

} // namespace
} // namespace vantore::mip::tests
