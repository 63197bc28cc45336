#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "routing/ROUTER/printed_data.h"
#include "routing/ROUTER/report.h"
#include "shell/base/number_text.h"
#include "shell/base/text.h"
#include "tests/routing/ROUTER/random_problems.h"
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

/// The figure of a line that ends in a column (from 1).
double figureAt(const std::string& line, std::size_t end) {
    EXPECT_GE(line.size(), end) << line;
    const std::string upTo = line.substr(0, end);
    return val(upTo.substr(upTo.find_last_of(' ') + 1));
}

/// A column of figures, and by how much a rounded one may be off.
struct Summed {
    std::size_t end;
    double half;
};

/// The line behind the rows, the first of which is `first`, has the sums of their columns.
void expectSums(const Lines& lines, std::size_t first, int rows, const std::vector<Summed>& columns) {
    const std::size_t total = first + static_cast<std::size_t>(rows);
    ASSERT_LT(total, lines.size());
    ASSERT_TRUE(lines[total].starts_with("Total")) << lines[total];
    for (const Summed& column : columns) {
        double sum = 0;
        for (std::size_t i = first; i < total; ++i) sum += figureAt(lines[i], column.end);
        ASSERT_NEAR(figureAt(lines[total], column.end), sum, (rows + 1) * column.half + 1E-9)
            << column.end << ": " << lines[total];
    }
}

TEST(RoutingReport, TotalsAreTheSumsOfTheirRows) {
    tests::RandomProblems problems(316);
    for (int trial = 0; trial < 200; ++trial) {
        const Problem problem = problems.next(problems.from(1, 40));
        const Plan plan = problems.plan(problem);
        const Lines lines = reportOf(problem, plan);
        expectSums(lines, lineOf(lines, "  no      hr") + 1, plan.routeCount,
                   {{12, .05}, {18, .05}, {24, .05}, {30, .05}, {36, .05}, {58, 0}, {66, .5}, {76, .005}});
        expectSums(lines, lineOf(lines, "  no  typ") + 1, plan.routeCount,
                   {{16, 0}, {23, 0}, {30, 0}, {44, 0}, {51, 0}, {58, 0}});
        expectSums(lines, lineOf(lines, "  no     cost,$") + 1, plan.routeCount,
                   {{15, .005}, {24, .005}, {33, .005}, {42, .005}, {51, .005}, {60, .005}, {69, .005}});
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

TEST(RoutingReport, SumsUpARoute) {
    Problem problem = roadOf(2);
    problem.maxTime = 9999;
    problem.maxDistance = 123456;
    const Lines lines = reportOf(problem, oneRoute(2));
    const std::size_t first = lineOf(lines, "Route time:");
    EXPECT_EQ(Lines(lines.begin() + static_cast<std::ptrdiff_t>(first), lines.end()),
              (Lines{"Route time:                      Distance:",
                     "  Driving                .2 hr    To 1st stop                    3 mi",
                     "  Load/unload            .2       From last stop                 6",
                     "  Break                  .0       On route                       3",
                     "    Total                .4 hr      Total                       12 mi", "",
                     "  Max allowed        9999.0 hr    Max allowed               123456 mi", "",
                     "Route costs:", "  Driver (reg time)         $4.00", "  Driver (over time)          .00",
                     "  Vehicle (mileage)          6.00", "  Fixed                      1.00",
                     "               Total       $11.00"}));
}

TEST(RoutingReport, PutsHoursThatReachIntoTheirCaptionOnALineOfTheirOwn) {
    Problem problem = roadOf(1);
    problem.maxTime = 10000;
    const Lines lines = reportOf(problem, oneRoute(1));
    const std::size_t line = lineOf(lines, "  Max allowed");
    EXPECT_EQ(lines[line], "  Max allowed        ");
    EXPECT_EQ(lines[line + 1], "                    10000.0 hr    Max allowed                 9999 mi");
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

/// A problem with other figures in all its places.
Problem variedProblem() {
    Problem problem;
    problem.label = "Round";
    problem.corner = "NE";
    problem.depotDescription = "Yard";
    problem.depotZone = 1;
    problem.depotX = 2;
    problem.depotY = 3;
    problem.earliestStart = 4;
    problem.latestReturn = 5;
    problem.defaultSpeed = 6;
    problem.overtimeAfter = 7;
    problem.pickupPercent = 8;
    problem.horizontalScale = 9.5;
    problem.verticalScale = .25;
    problem.maxTime = 11;
    problem.maxDistance = 12;
    problem.fixedStopTime = 13;
    problem.timePerWeight = .014;
    problem.timePerCube = .15;
    for (int k = 1; k <= breakCount; ++k) problem.breaks(k) = {10.0 + k, 100.0 * k};
    problem.stops.add({"Customer number one", "Delivered", 16, 17.5, 18, 19.125, 2, 21, 22, 23, 24, 10080});
    problem.vehicles.add({"Van", 7, 12, 28000, 3200, 30, .415, 60.5, 14.5, 21.75});
    problem.distances.add({0, "Yard", 1, "Customer number one", 1234.5});
    problem.zones.add({-5, 5.25, 6, -6});
    problem.zoneSpeeds.add({1, 2, 22.5});
    problem.speeds.add({1, "Customer number one", 0, "Yard", 33});
    problem.barriers.add({1, 2, 3, 4, 5, 6, 7, 8});
    return problem;
}

TEST(PrintedData, FollowsItsHeadings) {
    EXPECT_EQ(dataPage(variedProblem()).lines(),
              (Lines{"                         --PARAMETERS AND LABELS--",
                     "Problem label - Round",
                     "Grid corner with 0,0 coordinates (NW, SW, SE, or NE) - NE",
                     "DEPOT DATA",
                     "Depot description - Yard  Located in zone - 1",
                     "Horizontal coordinate - 2  Vertical coordinate - 3",
                     "Earliest starting time (min) - 4  Latest return time (min) - 5",
                     "Default vehicle speed (miles per hour) - 6",
                     "After how many clock hours will overtime begin - 7",
                     "GENERAL DATA",
                     "Percent of vehicle in use before allowing pickups - 8",
                     "Horizontal scaling factor - 9.5  Vertical scaling factor - .25",
                     "Maximum TIME allowed on a route (hours) - 11",
                     "Maximum DISTANCE allowed on a route (miles) - 12",
                     "LOAD/UNLOAD TIME FORMULA",
                     "Fixed time per stop - 13",
                     "Variable time per stop by weight - .014  By cube - .15",
                     "BREAK TIMES",
                     "Duration of 1st break (minutes) - 11  To begin after - 100",
                     "Duration of 2nd break (minutes) - 12  To begin after - 200",
                     "Duration of 3rd break (minutes) - 13  To begin after - 300",
                     "Duration of 4th break (minutes) - 14  To begin after - 400",
                     "",
                     "                            --STOP DATA--",
                     "    STOP                LOAD VOLUME   -COORDINATES-    LOAD ---TIME WINDOWS----",
                     "NO. DESCRIPTION     TY  WGHT   CUBE    HCRD    VCRD ZN TIME BEG1 END1 BEG2 END2",
                     "  1 Customer number De    16     18   18.00   19.13  2   21   22   23   2410080",
                     "",
                     "                          --VEHICLE DATA--",
                     "                                          ---VEHICLE---  ----DRIVER----   OVER",
                     "    VEHICLE                 --CAPACITY---   FIXED PER MI   FIXED PER HR   TIME",
                     "NO. DESCRIPTION      TP  NO WEIGHT   CUBE    COST   COST    COST   COST   COST",
                     "  1 Van               7  12  28000   3200   30.00    .42   60.50  14.50  21.75",
                     "",
                     "                 --SPECIFIED STOP-TO-STOP DISTANCES--",
                     "        STOP                STOP            DISTANCE",
                     "NO.  NO DESCRIPTION----  NO DESCRIPTION---- IN MILES",
                     "  1   0 Yard              1 Customer number  1234.50",
                     "",
                     "                     --SPEED ZONES DEFINITION--",
                     "    -----------COORDINATES---------",
                     "NO.    LEFT   RIGHT     TOP  BOTTOM",
                     "  1   -5.00    5.25    6.00   -6.00",
                     "",
                     "                       --ZONE-TO-ZONE SPEEDS--",
                     "    ORIGIN DESTINATION  SPEED",
                     "NO.   ZONE        ZONE    MPH",
                     "  1      1           2   22.5",
                     "",
                     "                   --SPECIFIED STOP-TO-STOP SPEEDS--",
                     "        STOP                STOP            SPEED",
                     "NO.  NO DESCRIPTION----  NO DESCRIPTION---- IN MPH",
                     "  1   1 Customer number   0 Yard             33.00",
                     "",
                     "                         --BARRIERS DEFINITION--",
                     "    ---NORTHWEST--- ---NORTHEAST--- ---SOUTHWEST--- ---SOUTHEAST---",
                     "    --COORDINATES-- --COORDINATES-- --COORDINATES-- --COORDINATES--",
                     "NO. HORIZTL VERTICL HORIZTL VERTICL HORIZTL VERTICL HORIZTL VERTICL",
                     "  1    1.00    2.00    3.00    4.00    5.00    6.00    7.00    8.00"}));
}

} // namespace
} // namespace vantore::router
