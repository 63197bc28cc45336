#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "routing/ROUTER/printed_data.h"
#include "routing/ROUTER/report.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "tests/support/error_of.h"

namespace vantore::router {
namespace {

using Lines = std::vector<std::string>;
using vantore::tests::errorOf;

/// Stops along a straight road, a mile a minute, in sixty-one kinds of vehicles.
Problem roadOf(int stopCount) {
    Problem problem;
    problem.depotDescription = "Yard";
    problem.defaultSpeed = 60;
    problem.fixedStopTime = 6;
    for (int n = 1; n <= stopCount; ++n) {
        Stop stop;
        stop.description = "Customer number " + std::to_string(n);
        stop.type = n % 5 == 0 ? pickup : delivery;
        stop.weight = 10.0 * n;
        stop.cube = n;
        stop.x = 3.0 * n;
        stop.end1 = n % 7 == 0 ? 1 : 9999;
        problem.stops.add(stop);
    }
    for (int k = 1; k <= mostStops; ++k) {
        Vehicle vehicle;
        vehicle.description = "Truck of the kind " + std::to_string(k);
        vehicle.weightCapacity = 1000.0 * k;
        vehicle.cubeCapacity = 50.0 * k;
        vehicle.fixedCost = 1;
        vehicle.costPerMile = .5;
        vehicle.driverCostPerHour = 10;
        problem.vehicles.add(vehicle);
    }
    return problem;
}

Plan oneStopRoutes(int count) {
    Plan plan;
    plan.routeCount = count;
    for (int r = 1; r <= count; ++r) {
        plan.routes(r).vehicle = r;
        plan.routes(r).start = 420 + 10 * r;
        plan.routes(r).stops = {r};
    }
    return plan;
}

Plan oneRoute(int stopCount) {
    Plan plan;
    plan.routeCount = 1;
    plan.routes(1).vehicle = mostStops;
    plan.routes(1).start = 480;
    for (int n = 1; n <= stopCount; ++n) plan.routes(1).stops.push_back(n);
    return plan;
}

Lines reportOf(const Problem& problem, const Plan& plan) {
    const Outcome outcome(problem, plan);
    return reportPage(outcome, {"Test", {"01-02-2026", "12:00:00"}}).lines();
}

std::size_t lineOf(const Lines& lines, const std::string& beginning) {
    const auto found =
        std::ranges::find_if(lines, [&](const std::string& line) { return line.starts_with(beginning); });
    EXPECT_NE(found, lines.end()) << beginning;
    return static_cast<std::size_t>(found - lines.begin());
}

/// The columns, from 0, in which a word of a line ends.
std::set<std::size_t> wordEnds(const std::string& line) {
    std::set<std::size_t> ends;
    for (std::size_t i = 0; i < line.size(); ++i)
        if (line[i] != ' ' && (i + 1 == line.size() || line[i + 1] == ' ')) ends.insert(i);
    return ends;
}

/// Every line from first to last has a figure that ends in each of these columns (from 1).
void expectAligned(const Lines& lines, std::size_t first, std::size_t last,
                   const std::vector<std::size_t>& columns) {
    ASSERT_LT(last, lines.size());
    for (std::size_t i = first; i <= last; ++i)
        for (const std::size_t column : columns)
            EXPECT_TRUE(wordEnds(lines[i]).contains(column - 1)) << column << ": " << lines[i];
}

TEST(RoutingReport, LinesUpSixtyOneRoutes) {
    Problem problem = roadOf(mostStops);
    for (int n = 1; n <= mostStops; ++n) problem.stops(n).end1 = 9999;
    const Lines lines = reportOf(problem, oneStopRoutes(mostStops));
    const std::size_t summary = lineOf(lines, "  no      hr") + 1;
    expectAligned(lines, summary, summary + 60, {4, 12, 18, 24, 30, 36, 44, 52, 58, 66, 76});
    expectAligned(lines, summary + 61, summary + 61, {5, 12, 18, 24, 30, 36, 58, 66, 76});
    const std::size_t vehicles = lineOf(lines, "  no  typ") + 1;
    expectAligned(lines, vehicles, vehicles + 60, {4, 9, 16, 23, 30, 37, 44, 51, 58, 65});
    expectAligned(lines, vehicles + 61, vehicles + 61, {5, 16, 23, 30, 37, 44, 51, 58, 65});
    const std::size_t costs = lineOf(lines, "  no     cost,$") + 1;
    expectAligned(lines, costs, costs + 60, {5, 15, 24, 33, 42, 51, 60, 69});
    expectAligned(lines, costs + 61, costs + 61, {5, 15, 24, 33, 42, 51, 60, 69});
    EXPECT_EQ(lines[costs + 61].substr(0, 6), "Total ");
    EXPECT_EQ(static_cast<std::size_t>(std::ranges::count_if(
                  lines, [](const std::string& line) { return line.ends_with("***"); })),
              62U);
}

TEST(RoutingReport, LinesUpARouteOfSixtyOneStops) {
    const Lines lines = reportOf(roadOf(mostStops), oneRoute(mostStops));
    const std::size_t schedule = lineOf(lines, " No description        time") + 1;
    expectAligned(lines, schedule, schedule + 60, {3, 27, 31, 39, 43, 48, 56, 65, 70});
    expectAligned(lines, schedule + 61, schedule + 61, {8, 27, 31, 39, 43, 48, 56, 65});
    const std::size_t volumes = lineOf(lines, " No description      Weight") + 1;
    expectAligned(lines, volumes, volumes, {68, 75});
    expectAligned(lines, volumes + 1, volumes + 61, {3, 27, 34, 44, 55, 68, 75});
    EXPECT_TRUE(lines[volumes + 62].starts_with("Totals Weight: Del = "));
}

TEST(RoutingReport, TotalsAreTheSumsOfTheirRows) {
    const Lines lines = reportOf(roadOf(20), oneStopRoutes(20));
    const std::size_t costs = lineOf(lines, "  no     cost,$") + 1;
    for (const std::size_t end : {15U, 24U, 33U, 42U, 51U, 60U, 69U}) {
        double sum = 0;
        for (std::size_t i = costs; i < costs + 20; ++i) sum += val(lines[i].substr(end - 9, 9));
        EXPECT_NEAR(sum, val(lines[costs + 20].substr(end - 9, 9)), 20 * .005) << end;
    }
}

TEST(RoutingReport, ShowsAKnownRoute) {
    // 3 miles out, 3 on, 6 back at a mile a minute, 6 minutes at each stop: back 24 minutes after 8:00.
    const Lines lines = reportOf(roadOf(2), oneRoute(2));
    const std::size_t summary = lineOf(lines, "  no      hr") + 1;
    EXPECT_EQ(lines[summary], "   1      .4    .2    .2    .0    .2 08:00AM 08:24AM     2      12     11.00");
    const std::size_t leaves = lineOf(lines, "A ");
    EXPECT_EQ(lines[leaves], "A Truck of the kind 61 leaves at 8:00AM on day 1 from the depot at Yard");
    const std::size_t schedule = lineOf(lines, " No description        time") + 1;
    EXPECT_EQ(lines[schedule], "  1 Customer number 08:03AM   1 08:09AM   1    6     3.0        3  YES");
    EXPECT_EQ(lines[schedule + 2], "   Depot            08:24AM   1 -------  --  ---     6.0        6");
    EXPECT_EQ(std::ranges::count(lines, "VIOLATIONS"), 0);
}

TEST(RoutingReport, CutsTheLabelBehindFiftyCharacters) {
    const Problem problem = roadOf(1);
    const Plan plan = oneRoute(1);
    const Outcome outcome(problem, plan);
    const Lines lines = reportPage(outcome, {std::string(60, 'x'), {"d", "t"}}).lines();
    EXPECT_EQ(lines[1], "Label- " + std::string(50, 'x'));
    EXPECT_EQ(lines[2], "Date- d");
    EXPECT_EQ(lines[3], "Time- t");
}

std::string startClock(double minutes) {
    Plan plan = oneRoute(1);
    plan.routes(1).start = minutes;
    const Lines lines = reportOf(roadOf(1), plan);
    const std::string& line = lines[lineOf(lines, "A ")];
    const std::size_t from = line.find(" at ") + 4;
    return line.substr(from, line.find(" from") - from);
}

TEST(RoutingReport, KnowsTheClock) {
    EXPECT_EQ(startClock(0), "12:00AM on day 1");
    EXPECT_EQ(startClock(1), "12:01AM on day 1");
    EXPECT_EQ(startClock(440), "7:19AM on day 1"); // the minute is cut from the hour's fraction
    EXPECT_EQ(startClock(720), "12:00PM on day 1");
    EXPECT_EQ(startClock(780), "1:00PM on day 1");
    EXPECT_EQ(startClock(1439.9), "11:59PM on day 1");
    EXPECT_EQ(startClock(1440), "12:00AM on day 2");
    EXPECT_EQ(startClock(4350), "12:30AM on day 4");
    EXPECT_EQ(startClock(-30), "11:30PM on day 0");
}

TEST(RoutingReport, TellsTheLowestViolationOnceForEachKind) {
    Problem problem = roadOf(2);
    problem.latestReturn = 500;
    problem.maxDistance = 11;
    const Lines lines = reportOf(problem, oneRoute(2));
    EXPECT_EQ(std::ranges::count(lines, "VIOLATIONS"), 2);
    EXPECT_EQ(std::ranges::count(lines, "Latest return time is not being met.  Possible reasons are:"), 2);
    EXPECT_EQ(
        std::ranges::count(lines, "Total distance on the route has been exceeded.  Possible causes are:"), 0);
    const std::size_t summary = lineOf(lines, "  no      hr") + 1;
    EXPECT_EQ(lines[summary], "   1      .4    .2    .2    .0    .2 08:00AM 08:24AMv    2      12v    11.00");
}

TEST(RoutingReport, KnowsNoUseOfACapacityOfZero) {
    Problem problem = roadOf(1);
    problem.vehicles(mostStops).weightCapacity = 0;
    EXPECT_EQ(errorOf([&] { reportOf(problem, oneRoute(1)); }), ErrorNumber::DivisionByZero);
    EXPECT_EQ(errorOf([&] { reportOf(roadOf(1), {}); }), ErrorNumber::DivisionByZero);
}

TEST(RoutingReport, HasNoRoomForMoreThanSixtyOneRoutes) {
    Plan plan = oneStopRoutes(mostStops);
    const PlannedRoute first = plan.routes(1);
    plan.routes(++plan.routeCount) = first;
    EXPECT_EQ(errorOf([&] { reportOf(roadOf(mostStops), plan); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(RoutingReport, WantsAStopOnEachRoute) {
    Plan plan = oneRoute(1);
    plan.routes(1).stops.clear();
    EXPECT_EQ(errorOf([&] { reportOf(roadOf(1), plan); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(PrintedData, FollowsItsHeadings) {
    Problem problem = roadOf(1);
    problem.vehicles = {};
    problem.vehicles.add({"Van", 7, 12, 28000, 3200, 30, .415, 60.5, 14.5, 21.75});
    problem.distances.add({0, "Yard", 1, "Customer number 1", 1234.5});
    problem.zones.add({-5, 5.25, 6, -6});
    problem.zoneSpeeds.add({1, 2, 22.5});
    problem.barriers.add({1, 2, 3, 4, 5, 6, 7, 8});
    const Lines lines = dataPage(problem).lines();
    EXPECT_EQ(lines[0], "                         --PARAMETERS AND LABELS--");
    EXPECT_EQ(lines[1], "Problem label - Enter label");
    EXPECT_EQ(lines[lineOf(lines, "DEPOT DATA") + 1], "Depot description - Yard  Located in zone - 0");
    EXPECT_EQ(lines[lineOf(lines, "Duration of 4th")],
              "Duration of 4th break (minutes) - 0  To begin after - 9999");
    EXPECT_EQ(lines[lineOf(lines, "NO. DESCRIPTION     TY") + 1],
              "  1 Customer number D     10      1    3.00     .00  0    0    0 9999    0    0");
    EXPECT_EQ(lines[lineOf(lines, "NO. DESCRIPTION      TP") + 1],
              "  1 Van               7  12  28000   3200   30.00    .42   60.50  14.50  21.75");
    EXPECT_EQ(lines[lineOf(lines, "NO.  NO DESCRIPTION----  NO DESCRIPTION---- IN MILES") + 1],
              "  1   0 Yard              1 Customer number  1234.50");
    EXPECT_EQ(lines[lineOf(lines, "NO.    LEFT") + 1], "  1   -5.00    5.25    6.00   -6.00");
    EXPECT_EQ(lines[lineOf(lines, "NO.   ZONE") + 1], "  1      1           2   22.5");
    EXPECT_EQ(lines[lineOf(lines, "NO. HORIZTL") + 1],
              "  1    1.00    2.00    3.00    4.00    5.00    6.00    7.00    8.00");
}

} // namespace
} // namespace vantore::router
