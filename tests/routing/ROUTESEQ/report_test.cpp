#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "routing/ROUTESEQ/report.h"
#include "tests/routing/ROUTESEQ/stops.h"
#include "tests/support/error_of.h"

namespace vantore::routeseq {
namespace {

using vantore::tests::errorOf;

TEST(RouteDistance, RunsFromTheDepotThroughTheStopsAndBack) {
    StopSequencingProblem problem = tests::stopsAt({0, 0}, {{3, 4}, {3, 0}, {-5, 12}});
    EXPECT_EQ(routeDistance(problem, " 1"), 10);
    EXPECT_EQ(routeDistance(problem, " 1 2"), 5 + 4 + 3);
    EXPECT_EQ(routeDistance(problem, " 2 1"), 5 + 4 + 3);
    EXPECT_DOUBLE_EQ(routeDistance(problem, " 3 1 2"), 13 + std::sqrt(128) + 4 + 3);
    EXPECT_EQ(routeDistance(problem, ""), 0);
    problem.circuityFactor = 1.5;
    problem.mapFactor = 10;
    EXPECT_EQ(routeDistance(problem, " 1"), 150);
    problem.circuityFactor = 0;
    EXPECT_EQ(routeDistance(problem, " 1"), 100);
    problem.mapFactor = 0;
    EXPECT_EQ(routeDistance(problem, " 1"), 10);
}

TEST(RouteDistance, UsesTheCoordinatesAsTyped) {
    EXPECT_EQ(routeDistance(tests::stopsAt({0, 0}, {{.1, 0}}), " 1"), .2);
    EXPECT_EQ(errorOf([] {
                  routeDistance(tests::stopsAt({0, 0}, {{1E200, 0}}), " 1");
              }),
              ErrorNumber::Overflow);
    EXPECT_EQ(errorOf([] {
                  routeDistance(tests::stopsAt({0, 0}, {{1, 0}}), " 501");
              }),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(StopSequenceReport, ShowsTheSequenceAndItsDistance) {
    const std::vector<ReportLine> lines = reportLines({" 3 1 2", 1945.2464}, {1.5, 1});
    ASSERT_EQ(lines.size(), 6U);
    EXPECT_EQ(lines[0].text, "");
    EXPECT_EQ(lines[1].text, "");
    EXPECT_EQ(lines[2].text, " STOP SEQUENCE RESULTS");
    EXPECT_EQ(lines[2].colour, colour::lightBlue);
    EXPECT_EQ(lines[2].font, (Font{"Arial", 15, false}));
    EXPECT_EQ(lines[3].text, "Stop sequence is:");
    EXPECT_EQ(lines[3].colour, colour::black);
    EXPECT_EQ(lines[4].text, "DEPOT 3 1 2 DEPOT");
    EXPECT_EQ(lines[5].text, "Total route distance =1,945.246");
    EXPECT_EQ(reportLines({"", 0}, {}).at(5).text, "Total route distance =.000");
}

TEST(StopSequenceDataPage, ListsFactorsDepotAndStops) {
    StopSequencingProblem problem = tests::stopsAt({-12.5, 3}, {{4, 1234.567}, {0, .5}});
    problem.circuityFactor = 1.2;
    problem.mapFactor = 10;
    problem.stops(2).label = "Harbor gate";
    EXPECT_EQ(dataPage(problem).lines(),
              (std::vector<std::string>{"Title: Sample", "Circuity factor: 1.2", "Map scaling factor: 10",
                                        "Depot coordinates:", "  X coordinate = -12.5", "  Y coordinate = 3",
                                        "Stop data:", "                    X coor-     Y coor-",
                                        "Point               dinate      dinate  ",
                                        "Stop                4.00        1,234.57",
                                        "Harbor gate         .00         .50"}));
}

} // namespace
} // namespace vantore::routeseq
