#include <gtest/gtest.h>

#include "location/PMED/report.h"
#include "tests/location/PMED/plain_pmed.h"
#include "tests/location/PMED/problems.h"

namespace vantore::pmed {
namespace {

/// An assignment of the points to candidates at random.
Assignment randomAssignment(std::mt19937& random, const SolverInput& input) {
    std::vector<int> sites;
    for (int i = 1; i <= input.problem.rowCount; ++i)
        if (input.problem.sites(i).candidate) sites.push_back(i);
    sites.resize(static_cast<std::size_t>(input.sitesToLocate));
    Assignment assignment;
    for (int i = 1; i <= input.problem.rowCount; ++i)
        assignment.servedBy(i) = sites[static_cast<std::size_t>(random() % sites.size())];
    assignment.totalCost = static_cast<double>(random()) / 128;
    return assignment;
}

TEST(PmedReport, IsThatOfThePlainProgramOnAThousandRandomProblems) {
    std::mt19937 random(65);
    for (int i = 0; i < 1000; ++i) {
        const SolverInput input =
            tests::randomInput(random, static_cast<tests::Units>(i % tests::unitKinds), 65, 1 + i % 15);
        const Assignment assignment = randomAssignment(random, input);
        ASSERT_EQ(reportOn(input.problem, assignment).lines(), tests::plainReport(input.problem, assignment))
            << i;
    }
}

TEST(PmedReport, ListsTheSitesInTheOrderInWhichTheyFirstServe) {
    SolverInput input;
    input.problem.rowCount = 3;
    input.problem.sites(1).volume = 1200;
    input.problem.sites(2).volume = 300;
    input.problem.sites(3).volume = 50;
    input.problem.sites(2).label = "North of the river";
    input.problem.sites(3).label = "Ely";
    Assignment assignment;
    assignment.servedBy(1) = 3;
    assignment.servedBy(2) = 2;
    assignment.servedBy(3) = 3;
    assignment.totalCost = .5;
    EXPECT_EQ(
        reportOn(input.problem, assignment).lines(),
        (std::vector<std::string>{" SOLUTION RESULTS FOR P-MEDIAN PROBLEM", "",
                                  " No. Facility name-      Volume Assigned node numbers",
                                  "   3 Ely                  1,250 1 3", "   2 North of the ri        300 2",
                                  "        Total             1,550", "", " Total cost: $.50"}));
}

TEST(PmedReport, CutsLongListsAtBlanks) {
    // " 1 ... 9" has 18 characters, nine more of three make 45: all on one line, and 19 on the next.
    Problem problem;
    Assignment assignment;
    for (int i = 1; i <= 19; ++i) assignment.servedBy(i) = 1;
    problem.rowCount = 18;
    EXPECT_EQ(reportOn(problem, assignment).lines().at(3).substr(32),
              "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18");
    problem.rowCount = 19;
    EXPECT_EQ(reportOn(problem, assignment).lines().at(3).substr(32),
              "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17");
    EXPECT_EQ(reportOn(problem, assignment).lines().at(4), std::string(32, ' ') + "18 19");
}

} // namespace
} // namespace vantore::pmed
