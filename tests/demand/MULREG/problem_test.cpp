#include "demand/MULREG/problem.h"

#include <gtest/gtest.h>

#include <string>

#include "shell/base/runtime_error.h"

namespace vantore::mulreg {
namespace {

const std::string goodFile =
    "\"Fuel use\",\"Miles\",\"Gallons\",\"\",\"\",\"\",\"I\",\"D\",\"U\",\"U\",\"U\","
    "\"Y\",4,3.9,\"N\"\r\n"
    "2\r\n"
    "47.9,7.8,0,-.5,1E+15\r\n"
    "30.2,6.1,.00001,1E-06,123456789.123456\r\n";

Problem readText(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

/// A problem that can be solved.
Problem solvable() {
    Problem problem;
    problem.label = "Fuel use";
    problem.variables(1).type = "I";
    problem.variables(2).type = "D";
    problem.stepwise = problem.errorAnalysis = "N";
    return problem;
}

ErrorNumber errorOf(const std::string& text) {
    try {
        readText(text);
    } catch (const RuntimeError& error) {
        return error.number();
    }
    throw std::logic_error("no error");
}

TEST(ProblemFile, ReadsItsItemsInOrder) {
    const Problem problem = readText(goodFile);
    EXPECT_EQ(problem.label, "Fuel use");
    EXPECT_EQ(problem.variables(2).label, "Gallons");
    EXPECT_EQ(problem.variables(2).type, "D");
    EXPECT_EQ(problem.stepwise, "Y");
    EXPECT_EQ(problem.enteringLevel, 4);
    EXPECT_EQ(problem.leavingLevel, 3.9);
    EXPECT_EQ(problem.errorAnalysis, "N");
    EXPECT_EQ(problem.observationCount, 2);
    EXPECT_EQ(problem.data(1, 4), -.5);
    EXPECT_EQ(problem.data(2, 5), 123456789.123456);
}

TEST(ProblemFile, IsWrittenAsItWasRead) {
    EXPECT_EQ(written(readText(goodFile)), goodFile);
}

TEST(ProblemFile, HoldsAnEmptyTypeAsUnused) {
    Problem problem = readText(goodFile);
    problem.variables(1).type = "";
    EXPECT_EQ(readText(written(problem)).variables(1).type, "U");
}

TEST(ProblemFile, NeverHoldsAQuoteOrLineEndInAText) {
    Problem problem = readText(goodFile);
    problem.label = "5\" belts\r\nand more";
    EXPECT_EQ(readText(written(problem)).label, "5' belts and more");
}

TEST(ProblemFile, OfANewProblemCanBeRead) {
    const Problem problem = readText(skeleton());
    EXPECT_EQ(problem.label, "Enter label");
    EXPECT_EQ(problem.observationCount, 1);
    EXPECT_EQ(problem.variables(5).type, "U");
    EXPECT_EQ(problem.enteringLevel, 4);
    EXPECT_EQ(problem.leavingLevel, 3.9);
}

TEST(ProblemFile, TooShortIsPastItsEnd) {
    EXPECT_EQ(errorOf(""), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf(goodFile.substr(0, 60)), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf(goodFile.substr(0, goodFile.rfind(','))), ErrorNumber::InputPastEnd);
}

TEST(ProblemFile, RefusesACountThatCannotBe) {
    const std::string head = goodFile.substr(0, goodFile.find('\n') + 1);
    for (const char* count : {"-1", "1000", "1000000", "many", "1E+99"})
        EXPECT_EQ(errorOf(head + count + "\r\n"), ErrorNumber::SubscriptOutOfRange) << count;
    EXPECT_EQ(readText(head + "0\r\n").observationCount, 0);
}

TEST(ProblemFile, TakesTheMostObservations) {
    std::string text = goodFile.substr(0, goodFile.find('\n') + 1) + "999\r\n";
    for (int i = 1; i <= 999; ++i) text += std::to_string(i) + ",2,3,4,5\r\n";
    EXPECT_EQ(readText(text).data(999, 1), 999);
}

TEST(Fault, IsNoneInASolvableProblem) {
    EXPECT_EQ(fault(solvable()), std::nullopt);
}

TEST(Fault, TellsTheFirstWrongType) {
    Problem problem = solvable();
    problem.variables(4).type = "i";
    problem.variables(5).type = "X";
    EXPECT_EQ(fault(problem), "Variable 4 is not of type I, D, or blank.");
}

TEST(Fault, AsksForTheRolesInTheirOrder) {
    Problem problem = solvable();
    problem.variables(1).type = problem.variables(2).type = "U";
    EXPECT_EQ(fault(problem), "At least one variable must be declared an independent variable.");
    problem.variables(1).type = "I";
    EXPECT_EQ(fault(problem), "At least one variable must be declared a dependent variable.");
    problem.variables(4).type = problem.variables(5).type = "D";
    EXPECT_EQ(fault(problem), "Only one variable can be declared a dependent variable.");
}

TEST(Fault, AsksForYesOrNo) {
    Problem problem = solvable();
    problem.stepwise = problem.errorAnalysis = "";
    EXPECT_EQ(fault(problem), "Response of stepwise analysis must be Y or N.");
    problem.stepwise = "Y";
    EXPECT_EQ(fault(problem), "Response to error analysis must be Y or N.");
}

TEST(Fault, TellsTheFirstCharacterThatALabelMayNotHold) {
    Problem problem = solvable();
    problem.label = "5\" belts, all";
    EXPECT_EQ(fault(problem), "Problem description has a double quote mark (\") in it.  Remove it.");
    problem.label = "belts, 5\"";
    EXPECT_EQ(fault(problem), "Problem description has a comma (,) in it.  Remove it.");
    problem.label = "belts";
    problem.variables(5).label = "5\"";
    EXPECT_EQ(fault(problem), "Variable label has a double quote mark (\") in it.  Remove it.");
    problem.variables(3).label = "a,b";
    EXPECT_EQ(fault(problem), "Variable label has a comma (,) in it.  Remove it.");
}

TEST(UsedColumns, PutTheDependentVariableLast) {
    Problem problem = solvable();
    problem.variables(1).type = "D";
    problem.variables(2).type = "I";
    problem.variables(4).type = "I";
    EXPECT_EQ(usedColumns(problem), (std::vector<int>{2, 4, 1}));
}

TEST(VariableName, StandsInForAnEmptyLabel) {
    Problem problem;
    problem.variables(2).label = "Miles";
    EXPECT_EQ(variableName(problem, 1), "Var. #1");
    EXPECT_EQ(variableName(problem, 2), "Miles");
}

TEST(WorkingFile, HoldsTheUsedColumnsAndIsReadBack) {
    Problem problem = readText(goodFile);
    problem.variables(1).type = "D";
    problem.variables(2).type = problem.variables(4).type = "I";
    EXPECT_EQ(observationsText(problem), "7.8,-.5,47.9\r\n6.1,1E-06,30.2\r\n");
    ItemReader reader(observationsText(problem));
    const Observations observations = readObservations(reader, 2, 3);
    EXPECT_EQ(observations.x(2, 2), 1e-6);
    EXPECT_EQ(observations.x(1, 3), 47.9);
}

} // namespace
} // namespace vantore::mulreg
