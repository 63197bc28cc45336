#include <gtest/gtest.h>

#include <string>

#include "mathprog/LNPROG/problem.h"
#include "shell/base/runtime_error.h"

namespace vantore::lnprog {
namespace {

const std::string goodFile = "\"Dock, hours\",2,3\r\n"
                             "2\r\n"
                             "1,\"<\",120\r\n"
                             "2,\">\",-1.5\r\n"
                             "1,1,3\r\n"
                             "1,3,.25\r\n"
                             "2,2,0\r\n"
                             "3,1,-2\r\n";

Problem readText(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

/// The number of the error that a file's reading ends in; 0 for none.
int errorOf(const std::string& text) {
    try {
        readText(text);
    } catch (const RuntimeError& error) {
        return static_cast<int>(error.number());
    }
    return 0;
}

TEST(ProblemFile, IsReadItemByItem) {
    const Problem problem = readText(goodFile);
    EXPECT_EQ(problem.label, "Dock, hours");
    EXPECT_EQ(problem.constraints, 2);
    EXPECT_EQ(problem.variables, 3);
    EXPECT_EQ(problem.rows(1).relation, "<");
    EXPECT_EQ(problem.rows(2).rightSide, -1.5);
    EXPECT_EQ(problem.coefficients(1, 3), .25);
    EXPECT_EQ(problem.coefficients(2, 2), 0);
    EXPECT_FALSE(problem.coefficients(1, 2));
    EXPECT_EQ(problem.coefficients(3, 1), -2);
}

TEST(ProblemFile, IsWrittenAsItWasRead) {
    EXPECT_EQ(written(readText(goodFile)), goodFile);
}

TEST(ProblemFile, MayHaveItsRowsInAnyOrderAndRelationsWithoutQuotes) {
    const Problem problem = readText("A,2,1\n2\n2,>,5\n1,<,4\n3,1,1\n1,1,7");
    EXPECT_EQ(problem.rows(1).relation, "<");
    EXPECT_EQ(problem.rows(2).rightSide, 5);
    EXPECT_EQ(problem.coefficients(1, 1), 7);
}

TEST(ProblemFile, HasAnEmptyRelationAsAnEmptyString) {
    const std::string text = "\"A\",1,1\r\n1\r\n1,\"\",7\r\n";
    EXPECT_EQ(written(readText(text)), text);
}

TEST(ProblemFile, OfANewProblemHasOneBlankRow) {
    EXPECT_EQ(skeleton(), "\"Enter label\",1,1\r\n1\r\n1,\"\",0\r\n");
}

TEST(ProblemFile, TakesTheLargestSizesAndNothingBeyond) {
    EXPECT_EQ(errorOf("A,50,100\n0\n51,100,1"), 0);
    EXPECT_EQ(errorOf("A,51,1\n0"), 9);
    EXPECT_EQ(errorOf("A,1,101\n0"), 9);
    EXPECT_EQ(errorOf("A,0,0\n0"), 0);
}

TEST(ProblemFile, RefusesCountsThatCannotBe) {
    for (const std::string count : {"-1", "1000000", "many", "1E+99", "\"\""}) {
        EXPECT_EQ(errorOf("A," + count + ",1\n0"), 9) << count;
        EXPECT_EQ(errorOf("A,1," + count + "\n0"), 9) << count;
        EXPECT_EQ(errorOf("A,1,1\n" + count), 9) << count;
    }
}

TEST(ProblemFile, RefusesPlacesThatTheProblemHasNot) {
    const std::string head = "A,2,2\n2\n1,<,1\n2,<,1\n";
    EXPECT_EQ(errorOf(head + "3,2,1"), 0);
    for (const char* place : {"0,1", "4,1", "1,0", "1,3", "1,4", "-1,1", "x,1"})
        EXPECT_EQ(errorOf(head + place + ",1"), 9) << place;
    EXPECT_EQ(errorOf("A,2,2\n1\n3,<,1"), 9);
    EXPECT_EQ(errorOf("A,2,2\n1\n0,<,1"), 9);
}

TEST(ProblemFile, MayNotEndWithinALine) {
    EXPECT_EQ(errorOf(""), 62);
    for (const char* end : {",", "\n"}) {
        const std::string text = "A,1,1\n1\n1,<,1\n1,1,5\n";
        for (std::size_t at = text.find(end); at < text.rfind("1,<,1") + 4; at = text.find(end, at + 1))
            EXPECT_EQ(errorOf(text.substr(0, at)), 62) << text.substr(0, at);
    }
    EXPECT_EQ(errorOf("A,1,1\n1\n1,<,1\n1,1"), 62);
    EXPECT_EQ(errorOf("A,1,1\n1\n1,<,1\n1"), 62);
}

TEST(ProblemFile, RefusesValuesBeyondTheRange) {
    EXPECT_EQ(errorOf("A,1,1\n1\n1,<,1E+999"), 6);
    EXPECT_EQ(errorOf("A,1,1\n1\n1,<,1\n1,1,-1E+999"), 6);
}

} // namespace
} // namespace vantore::lnprog
