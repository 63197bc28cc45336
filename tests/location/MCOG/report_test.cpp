#include <gtest/gtest.h>

#include <algorithm>

#include "location/MCOG/report.h"
#include "tests/location/MCOG/plain_mcog.h"
#include "tests/location/MCOG/problems.h"

namespace vantore::mcog {
namespace {

TEST(McogReport, IsThatOfThePlainProgramOnAThousandRandomProblems) {
    std::mt19937 random(4711);
    for (int trial = 0; trial < 1000; ++trial) {
        const int points = trial % 50 == 0 ? mostPoints : 1 + static_cast<int>(random() % 60);
        const int facilities =
            1 + static_cast<int>(random() % static_cast<unsigned>(std::min(points, mostFacilities)));
        const Problem problem = tests::randomProblem(random, points);
        ASSERT_EQ(reportOn(problem, located(problem, facilities)).lines(),
                  tests::plainReport(problem, facilities))
            << trial;
    }
}

TEST(McogReport, ShowsAFacilityWithoutPointsByDashes) {
    Problem problem;
    problem.label = "Spare yard";
    problem.mapFactor = 2;
    problem.rowCount = 2;
    problem.points(1) = {"A", 10, 20, 1000, .5};
    problem.points(2) = {"B", 10, 26, 250, 4};
    Plan plan;
    plan.facilityCount = 2;
    plan.facilities(2) = {{10, 21.5}, 5250};
    plan.assignedTo(1) = plan.assignedTo(2) = 2;
    plan.totalCost = 10500;
    EXPECT_EQ(reportOn(problem, plan).lines(),
              (std::vector<std::string>{
                  " MULTIPLE CENTER OF GRAVITY SOLUTION RESULTS", "", " Problem label: Spare yard",
                  "        X coor-   Y coor-", " Source  dinate    dinate         Volume              Cost",
                  "      1  ------    ------              0               .00",
                  "      2   10.00     21.50          1,250         10,500.00", "  Total cost 10,500.00", "",
                  " Source  Allocated demand points to source points", "      1   ", "      2   1,2"}));
}

TEST(McogReport, CutsTheListOfPointsAfterEach57Characters) {
    // Points 1 to 9 take 18 characters, 10 to 22 take 39: 57 with the comma behind 22.
    Problem problem;
    problem.mapFactor = 1;
    problem.rowCount = 23;
    Plan plan;
    plan.facilityCount = 1;
    for (int i = 1; i <= 23; ++i) plan.assignedTo(i) = 1;
    const std::vector<std::string> lines = reportOn(problem, plan).lines();
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[9], "      1   1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21,22,");
    EXPECT_EQ(lines[10], "          23");
}

} // namespace
} // namespace vantore::mcog
