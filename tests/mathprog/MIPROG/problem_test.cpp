#include <gtest/gtest.h>

#include "mathprog/MIPROG/problem.h"
#include "shell/base/runtime_error.h"

namespace vantore::miprog {
namespace {

const std::string crates = "\"Crates\",\"MAX\"\r\n"
                           "2,3\r\n"
                           "\"X1\",\"X2\",\"XVan\"\r\n"
                           "2\r\n"
                           "1,\"INT\"\r\n"
                           "3,\"0,1\"\r\n"
                           "\"Weight\",3,2,-.5,\"<\",12\r\n"
                           "\"Crew, day\",1,4,0,\">\",16.25\r\n"
                           "5,4,-1E+20\r\n";

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

TEST(ProblemFile, ReadsEveryItem) {
    const Problem problem = readFrom(crates);
    EXPECT_EQ(problem.label, "Crates");
    EXPECT_TRUE(problem.maximize);
    EXPECT_EQ(problem.m, 2);
    EXPECT_EQ(problem.n, 3);
    EXPECT_EQ(problem.columnLabel(3), "XVan");
    EXPECT_EQ(problem.type(1), "INT");
    EXPECT_EQ(problem.type(2), "");
    EXPECT_EQ(problem.type(3), "0,1");
    EXPECT_EQ(problem.rowLabel(2), "Crew, day");
    EXPECT_EQ(problem.coef(1, 3), -.5);
    EXPECT_EQ(problem.relation(2), ">");
    EXPECT_EQ(problem.rhs(2), 16.25);
    EXPECT_EQ(problem.objCoef(3), -1E+20);
}

TEST(ProblemFile, IsWrittenAsItWasRead) {
    EXPECT_EQ(written(readFrom(crates)), crates);
}

TEST(ProblemFile, TakesUnquotedItemsToo) {
    const Problem problem = readFrom("Plan,min\n1,2\nX1, X2 \n2\n1,0,1\n2,INT\nNeed,3,4,=,5\n6,7\n");
    EXPECT_FALSE(problem.maximize);
    EXPECT_EQ(problem.columnLabel(2), "X2");
    EXPECT_EQ(problem.type(1), "0,1");
    EXPECT_EQ(problem.type(2), "INT");
    EXPECT_EQ(problem.relation(1), "=");
    EXPECT_EQ(problem.objCoef(2), 7);
}

TEST(ProblemFile, MaximizesOnMaxInAnyCaseOnly) {
    EXPECT_TRUE(readFrom("\"\",\"Max\"\n0,0\n0\n").maximize);
    EXPECT_FALSE(readFrom("\"\",\"MAXIMIZE\"\n0,0\n0\n").maximize);
    EXPECT_FALSE(readFrom("\"\",\"\"\n0,0\n0\n").maximize);
}

TEST(ProblemFile, KeepsAProblemWithoutVariablesOrConstraints) {
    const std::string none = "\"Nothing\",\"MIN\"\r\n0,0\r\n0\r\n";
    EXPECT_EQ(written(readFrom(none)), none);
    const std::string rowOnly = "\"Row\",\"MIN\"\r\n1,0\r\n0\r\n\"R\",\"<\",3\r\n";
    EXPECT_EQ(written(readFrom(rowOnly)), rowOnly);
}

TEST(ProblemFile, WritesABlankLabelAsOneBlank) {
    Problem problem = readFrom(crates);
    problem.columnLabel(1) = "";
    problem.rowLabel(1) = "  Weight ";
    const std::string text = written(problem);
    EXPECT_NE(text.find("\" \",\"X2\""), std::string::npos);
    EXPECT_NE(text.find("\"Weight\",3"), std::string::npos);
}

TEST(ProblemFile, RefusesCountsOutOfRange) {
    const auto numberOf = [](const std::string& text) {
        try {
            readFrom(text);
        } catch (const RuntimeError& error) {
            return error.number();
        }
        return ErrorNumber::InvalidUseOfNull;
    };
    EXPECT_EQ(numberOf("P,MAX\n51,1\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\n1,100\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\n-1,1\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\none,1\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\n1,1\nX1\n2\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\n1,1\nX1\n1\n0,INT\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\n1,1\nX1\n1\n2,INT\n"), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(numberOf("P,MAX\n1,1\nX1\n0\nR,1,<"), ErrorNumber::InputPastEnd);
}

TEST(Skeleton, IsOneBlankConstraintOfOneVariable) {
    EXPECT_EQ(skeleton(), "\"Enter label\",\"MAX\"\r\n1,1\r\n\"X1\"\r\n0\r\n\"1\",0,\"\",0\r\n0\r\n");
    EXPECT_EQ(written(readFrom(skeleton())), skeleton());
}

TEST(NextType, GoesRound) {
    EXPECT_EQ(nextType(""), "INT");
    EXPECT_EQ(nextType("INT"), "0,1");
    EXPECT_EQ(nextType("0,1"), "");
    EXPECT_EQ(nextType("anything"), "");
}

} // namespace
} // namespace vantore::miprog
