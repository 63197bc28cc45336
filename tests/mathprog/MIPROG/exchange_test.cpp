#include <gtest/gtest.h>

#include "mathprog/MIPROG/exchange.h"

namespace vantore::miprog {
namespace {

using Lines = std::vector<std::string>;

Problem crates() {
    Problem problem;
    problem.m = 3;
    problem.n = 3;
    const char* labels[] = {"X1", "Lorry", "X"};
    const char* types[] = {"INT", "", "0,1"};
    const char* relations[] = {"<", ">", "="};
    for (int k = 1; k <= 3; ++k) {
        problem.columnLabel(k) = labels[k - 1];
        problem.type(k) = types[k - 1];
        problem.relation(k) = relations[k - 1];
        problem.rhs(k) = k / 4.0;
        problem.objCoef(k) = -k;
        for (int j = 1; j <= 3; ++j) problem.coef(k, j) = 10 * k + j;
    }
    return problem;
}

TEST(SolverInput, CountsWhatTheSolverMustKnow) {
    const auto input = solverInput(crates());
    ASSERT_TRUE(input);
    EXPECT_EQ(input->objectiveFlag, 1);
    EXPECT_EQ(input->lessCount, 1);
    EXPECT_EQ(input->equalCount, 1);
    EXPECT_EQ(input->greaterCount, 1);
    EXPECT_EQ(input->intCount(), 2);
    EXPECT_EQ(input->intIndex(1), 1);
    EXPECT_EQ(input->intIndex(2), 3);
    EXPECT_EQ(input->rowSense(2), -1);
    EXPECT_EQ(input->coef(2, 3), 23);
    EXPECT_EQ(input->bounds(1).upper, noBound);
    EXPECT_EQ(input->bounds(3).upper, 1);
    EXPECT_EQ(input->names(2), "orry");
    EXPECT_EQ(input->names(3), "");
}

TEST(SolverInput, RefusesAnyOtherRelation) {
    for (const char* relation : {"", "<=", "==", " <", "x"}) {
        Problem problem = crates();
        problem.relation(3) = relation;
        EXPECT_FALSE(solverInput(problem)) << relation;
    }
}

TEST(TemporaryLines, AreTheFile) {
    EXPECT_EQ(temporaryLines(*solverInput(crates())),
              (Lines{"1", "3,3,1,1,1", "'1','orry',''", "11,12,13", "21,22,23", "31,32,33", ".25,.5,.75",
                     "1,-1,0", "-1,-2,-3", "0,1E+30,0,1E+30,0,1", "2", "1,3"}));
}

TEST(TemporaryLines, EndInAnEmptyLineWithoutIntegers) {
    Problem problem = crates();
    problem.maximize = false;
    problem.type(1) = problem.type(3) = "";
    const Lines lines = temporaryLines(*solverInput(problem));
    EXPECT_EQ(lines.front(), "-1");
    EXPECT_EQ(lines.at(10), "0");
    EXPECT_EQ(lines.at(11), "");
}

TEST(TemporaryLines, AreReadBackAsTheyWere) {
    const Lines lines = temporaryLines(*solverInput(crates()));
    EXPECT_EQ(temporaryLines(readTemporaryLines(lines)), lines);
    EXPECT_EQ(temporaryLines(readTemporaryLines(temporaryLines(SolverInput{}))),
              temporaryLines(SolverInput{}));
}

TEST(TemporaryLines, KeepNamesWithQuotesAndCommas) {
    Problem problem = crates();
    problem.columnLabel(1) = "XO'Brien";
    problem.columnLabel(2) = "Xa, b";
    problem.columnLabel(3) = "X'";
    const SolverInput input = readTemporaryLines(temporaryLines(*solverInput(problem)));
    EXPECT_EQ(input.names(1), "O'Brien");
    EXPECT_EQ(input.names(2), "a, b");
    EXPECT_EQ(input.names(3), "'");
}

TEST(TemporaryLines, HoldAnyLabelAsOneName) {
    Problem problem;
    problem.n = 4;
    problem.columnLabel(1) = "X5',6', high";
    problem.columnLabel(2) = " XBoys' ";
    problem.columnLabel(3) = "X' , '";
    problem.columnLabel(4) = "X''";
    const auto lines = temporaryLines(*solverInput(problem));
    EXPECT_EQ(lines.at(2), "'5\u2019,6\u2019, high','Boys'','\u2019 , '',''''");
    const SolverInput input = readTemporaryLines(lines);
    EXPECT_EQ(input.names(1), "5\u2019,6\u2019, high");
    EXPECT_EQ(input.names(2), "Boys'");
    EXPECT_EQ(input.names(3), "\u2019 , '");
    EXPECT_EQ(input.names(4), "''");
}

TEST(TemporaryLines, MayLackTheLastLineWithoutIntegers) {
    const SolverInput input =
        readTemporaryLines({"1", "1,1,1,0,0", " 'a' ", " 2 ", "3", "1", "4", "0, 1E+30", "0"});
    EXPECT_EQ(input.names(1), "a");
    EXPECT_EQ(input.coef(1, 1), 2);
    EXPECT_EQ(input.intCount(), 0);
}

TEST(SolverInput, ChecksItsIndices) {
    const auto input = solverInput(crates());
    EXPECT_THROW((void)input->coef(1, 4), RuntimeError);
    EXPECT_THROW((void)input->coef(0, 1), RuntimeError);
    EXPECT_THROW((void)input->rhs(4), RuntimeError);
    EXPECT_THROW((void)input->intIndex(0), RuntimeError);
}

} // namespace
} // namespace vantore::miprog
