#include <gtest/gtest.h>

#include "shell/base/text.h"
#include "tests/location/PMED/problems.h"
#include "tests/support/error_of.h"
#include "tests/support/module_session.h"

namespace vantore::pmed {
namespace {

using vantore::tests::errorOf;

constexpr const char* file =
    "\"Stores\",1.5,1.2,2\r\n3\r\n\"Reno\",119.81,39.53,300,.25,40000,1\r\n"
    "\"Elko\",115.76,40.83,90,.5,0,0\r\n\"Ely\",114.89,39.25,50,.5,3000,1\r\n2,2\r\n";

SolverInput inputFrom(const std::string& text) {
    ItemReader reader(text);
    return readInput(reader);
}

/// Why a file is no input; empty when it is one.
std::string reasonFor(const std::string& text) {
    try {
        inputFrom(text);
    } catch (const MalformedInput& fault) {
        return fault.what();
    }
    return "";
}

std::string with(const std::string& from, const std::string& to) {
    return replaced(file, from, to);
}

Assignment assignmentFrom(const std::string& text, int points) {
    ItemReader reader(text);
    return readAssignment(reader, points);
}

TEST(PmedExchange, GivesTheSolverTheProblemAndItsCounts) {
    const SolverInput input = inputFrom(file);
    EXPECT_EQ(input.problem.rowCount, 3);
    EXPECT_EQ(input.sitesToLocate, 2);
    EXPECT_EQ(input.problem.coordinates, Coordinates::Degrees);
    EXPECT_EQ(input.problem.sites(3).label, "Ely");
    EXPECT_EQ(input.problem.sites(1).fixedCost, 40000);
    EXPECT_EQ(inputText(input), file);
    EXPECT_EQ(pointsText(input.problem) + "2,2\r\n", file);
}

TEST(PmedExchange, ReadsBackEveryProblemThatItWrites) {
    std::mt19937 random(3);
    for (int i = 0; i < 200; ++i) {
        const std::string text =
            inputText(tests::randomInput(random, static_cast<tests::Units>(i % tests::unitKinds), 65, 15));
        ASSERT_EQ(inputText(inputFrom(text)), text);
    }
}

TEST(PmedExchange, SaysWhatIsWrongWithAnInput) {
    EXPECT_EQ(reasonFor(file), "");
    EXPECT_EQ(reasonFor(""), "Input past end of file.");
    EXPECT_EQ(reasonFor(with("1.5", "wide")), "The horizontal scaling factor is no number: Type mismatch.");
    EXPECT_EQ(reasonFor(with("1.2", "1E999")), "The vertical scaling factor is no number: Overflow.");
    EXPECT_EQ(reasonFor(with(",2\r\n3", ",3\r\n3")),
              "The kind of coordinates is no whole number from 1 to 2.");
    EXPECT_EQ(reasonFor(with("2\r\n3\r\n", "2\r\n66\r\n")),
              "The count of points is no whole number from 1 to 65.");
    EXPECT_EQ(reasonFor(with("2\r\n3\r\n", "2\r\n0\r\n")),
              "The count of points is no whole number from 1 to 65.");
    EXPECT_EQ(reasonFor(with("119.81", "119.8W")), "X of point 1 is no number: Type mismatch.");
    EXPECT_EQ(reasonFor(with("40.83", "")), "Y of point 2 is no number: Type mismatch.");
    EXPECT_EQ(reasonFor(with(",90,", ",-90,")), "The volume of point 2 is below 0.");
    EXPECT_EQ(reasonFor(with(",50,.5", ",50,-.5")), "The rate of point 3 is below 0.");
    EXPECT_EQ(reasonFor(with("3000", "$3000")), "The fixed cost of point 3 is no number: Type mismatch.");
    EXPECT_EQ(reasonFor(with("3000,1", "3000,2")),
              "The candidate's mark of point 3 is no whole number from 0 to 1.");
    EXPECT_EQ(reasonFor(with("\r\n2,2\r\n", "\r\n1.5,2\r\n")),
              "The number of sites to locate is no whole number from 1 to 15.");
    EXPECT_EQ(reasonFor(with("\r\n2,2\r\n", "\r\n-1,2\r\n")),
              "The number of sites to locate is no whole number from 1 to 15.");
    EXPECT_EQ(reasonFor(with("\r\n2,2\r\n", "\r\n3,2\r\n")),
              "More sites are to be located than the 2 that are candidates.");
    EXPECT_EQ(reasonFor(with("\r\n2,2\r\n", "\r\n")), "Input past end of file.");
    EXPECT_EQ(reasonFor("\"A\",1,1,1\r\n1\r\n\"P\",1,1,1,1,1,0\r\n1,0\r\n"), "There is no candidate site.");
    std::string many = "\"A\",1,1,1\r\n16\r\n";
    for (int i = 0; i < 16; ++i) many += "\"P\",1,1,1,1,1,1\r\n";
    EXPECT_EQ(reasonFor(many + "1,16\r\n"), "There are more than 15 candidate sites.");
}

TEST(PmedExchange, TakesEveryDamagedInputAsAProblemOrAsNone) {
    for (const std::string& content : vantore::tests::damagedForms(file)) EXPECT_NO_THROW(reasonFor(content));
}

TEST(PmedExchange, ReadsPairsInAnyOrder) {
    const Assignment assignment = assignmentFrom("3\r\n3,1\r\n1,1\r\n2,3\r\n1234.5\r\n", 3);
    EXPECT_EQ(assignment.servedBy(1), 1);
    EXPECT_EQ(assignment.servedBy(2), 3);
    EXPECT_EQ(assignment.servedBy(3), 1);
    EXPECT_EQ(assignment.totalCost, 1234.5);
    EXPECT_EQ(assignmentText(assignment, 3), "3\r\n1,1\r\n2,3\r\n3,1\r\n1234.5\r\n");
}

TEST(PmedExchange, RefusesAnAssignmentOfAnotherProblem) {
    const char* three = "3\r\n1,1\r\n2,3\r\n3,3\r\n9\r\n";
    EXPECT_EQ(assignmentFrom(three, 3).totalCost, 9);
    EXPECT_EQ(errorOf([&] { assignmentFrom(three, 4); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { assignmentFrom(three, 2); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { assignmentFrom("66\r\n", 3); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { assignmentFrom("1\r\n66,1\r\n1\r\n", 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { assignmentFrom("1\r\n1,0\r\n1\r\n", 1); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { assignmentFrom("1\r\n1,1\r\n", 1); }), ErrorNumber::InputPastEnd);
}

} // namespace
} // namespace vantore::pmed
