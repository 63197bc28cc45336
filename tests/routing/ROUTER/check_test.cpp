#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "routing/ROUTER/check.h"
#include "tests/support/error_of.h"

namespace vantore::router {
namespace {

using vantore::tests::errorOf;

/// A problem without violations: one stop of each type, one type of vehicle.
Problem soundProblem() {
    Problem problem;
    problem.label = "Sound";
    problem.overtimeAfter = 8;
    for (const char* type : {delivery, pickup}) {
        Stop stop;
        stop.description = "Stop";
        stop.type = type;
        stop.weight = 100;
        stop.cube = 10;
        stop.end1 = 480;
        stop.begin2 = 600;
        stop.end2 = 900;
        problem.stops.add(stop);
    }
    Vehicle vehicle;
    vehicle.number = 2;
    vehicle.weightCapacity = 500;
    vehicle.cubeCapacity = 50;
    problem.vehicles.add(vehicle);
    return problem;
}

bool isTotal(const std::string& line) {
    static const std::vector<std::string> captions = {
        "Total delivered stop weight- ", "Total vehicle weight capacity- ", "Total pickup stop weight-    ",
        "Total delivered stop cube-   ", "Total vehicle cube capacity-   ", "Total pickup stop cube-      "};
    return std::ranges::any_of(captions,
                               [&](const std::string& caption) { return line.starts_with(caption); });
}

/// The violations of the sound problem after a change.
template <class Change>
std::vector<std::string> found(Change change, double depotRowZone = 0) {
    Problem problem = soundProblem();
    change(problem);
    const Findings findings = check(problem, depotRowZone);
    std::vector<std::string> messages;
    for (const std::string& line : findings.lines)
        if (!isTotal(line) && line != "DATA VALIDATION CHECK COMPLETE") messages.push_back(line);
    EXPECT_EQ(std::erase(messages, ""), findings.violations == 0 ? 2U : 1U);
    EXPECT_EQ(std::erase(messages, "No violations detected"), findings.violations == 0 ? 1U : 0U);
    EXPECT_EQ(findings.violations, static_cast<int>(messages.size()));
    return messages;
}

using Messages = std::vector<std::string>;

TEST(DataCheck, FindsNothingInASoundProblem) {
    const Findings findings = check(soundProblem(), 0);
    EXPECT_EQ(findings.violations, 0);
    EXPECT_EQ(findings.lines,
              (Messages{"Total delivered stop weight- 100", "Total vehicle weight capacity- 1000",
                        "Total pickup stop weight-    100", "Total vehicle weight capacity- 1000",
                        "Total delivered stop cube-   10", "Total vehicle cube capacity-   100",
                        "Total pickup stop cube-      10", "Total vehicle cube capacity-   100", "",
                        "No violations detected", "", "DATA VALIDATION CHECK COMPLETE"}));
}

TEST(DataCheck, TellsOfEmptyTables) {
    const Findings findings = check(Problem{}, 0);
    EXPECT_EQ(findings.lines.front(), "Number of stops is 0. Increase it.");
    const auto end = findings.lines.end();
    EXPECT_EQ(*(end - 4), "There should be at least 1 vehicle type specified in the vehicle file.");
    EXPECT_EQ(*(end - 3), "There should be at least 1 stop in the stops file.");
    EXPECT_EQ(findings.violations, 4); // and overtime after 9999 hours
}

TEST(DataCheck, ComparesWeightsWithTheFleet) {
    EXPECT_EQ(found([](Problem& p) { p.stops(1).weight = 500, p.vehicles(1).number = .98; }),
              (Messages{"Total delivered stop weight exceeds total vehicle weight capacity."}));
    EXPECT_EQ(found([](Problem& p) { p.stops(2).weight = 500, p.vehicles(1).number = .98; }),
              (Messages{"Total pickup stop weight exceeds total vehicle weight capacity."}));
    EXPECT_EQ(found([](Problem& p) { p.stops(2).weight = 500, p.vehicles(1).number = 1; }), Messages{});
}

TEST(DataCheck, BoundsTheTotalsOfWeight) {
    const auto most = [](double total) {
        return [total](Problem& p) {
            p.vehicles(1).number = 1;
            p.vehicles(1).weightCapacity = total;
            p.stops(1).weight = p.stops(2).weight = total;
        };
    };
    // In single precision what is less than .03 above is not above.
    EXPECT_EQ(found(most(999999.03)),
              (Messages{"The weight of stop 1 exceeds the weight capacity of the smallest vehicle.",
                        "The weight of stop 2 exceeds the weight capacity of the smallest vehicle."}));
    const Messages messages = found(most(999999.1));
    ASSERT_EQ(messages.size(), 5U);
    EXPECT_EQ(messages[0], "Total delivered stop weight exceeds 999999. Reduce weight or rescale weights.");
    EXPECT_EQ(messages[1], "Total pickup stop weight exceeds 999999. Reduce weight or rescale weights.");
    EXPECT_EQ(messages[2], "Total vehicle weight capacity exceeds 999999. Reduce it.");
    EXPECT_EQ(found(most(1E300)).size(), 5U);
    EXPECT_EQ(found(most(-1E300)).size(), 0U);
}

TEST(DataCheck, BoundsTheTotalsOfCube) {
    EXPECT_EQ(found([](Problem& p) { p.stops(2).cube = 50, p.vehicles(1).number = .9; }),
              (Messages{"Total stop cube exceeds total vehicle cube capacity."}));
    const auto most = [](int stop, double total) {
        return [stop, total](Problem& p) {
            p.vehicles(1).number = 1;
            p.vehicles(1).cubeCapacity = total;
            p.stops(stop).cube = total;
        };
    };
    EXPECT_EQ(found(most(1, 999999)), Messages{});
    for (const int stop : {1, 2}) {
        const Messages messages = found(most(stop, 999999.01));
        ASSERT_EQ(messages.size(), 3U);
        EXPECT_EQ(messages[0], "Total stop cube exceeds 999999. Reduce cube or rescale cube volume.");
        EXPECT_EQ(messages[1], "Total vehicle cube capacity exceeds 999999. Reduce it.");
    }
}

TEST(DataCheck, KnowsTheWeekOfTheDepotsTimes) {
    const auto times = [](double start, double end) {
        return found([=](Problem& p) { p.earliestStart = start, p.latestReturn = end; });
    };
    EXPECT_EQ(times(0, 10080), Messages{});
    EXPECT_EQ(times(10080, 10080), Messages{});
    EXPECT_EQ(times(11, 10), (Messages{"Earliest starting time exceeds latest return time."}));
    EXPECT_EQ(times(-1, 10), (Messages{"Earliest starting time is less than 0 or greater than 10080."}));
    EXPECT_EQ(times(0, 10081), (Messages{"Latest return time is less than 0 or greater than 10080."}));
    EXPECT_EQ(times(10081, 10082).size(), 2U);
    EXPECT_EQ(times(-2, -1).size(), 2U);
}

TEST(DataCheck, BoundsTheFleetAndTheSpeed) {
    EXPECT_EQ(found([](Problem& p) { p.vehicles(1).number = 200; }), Messages{});
    EXPECT_EQ(found([](Problem& p) { p.vehicles(1).number = 201; }),
              (Messages{"Total number of vehicles exceeds 200. Reduce the number."}));
    EXPECT_EQ(found([](Problem& p) {
                  p.vehicles(1).number = 1;
                  while (p.vehicles.count() < 76) p.vehicles.add(p.vehicles(1));
              }),
              (Messages{"Number of vehicle types exceeds 75. Reduce the number."}));
    EXPECT_EQ(found([](Problem& p) { p.defaultSpeed = 0; }),
              (Messages{"Default speed is less than or equal to 0. Increase it."}));
    EXPECT_EQ(found([](Problem& p) { p.defaultSpeed = .1; }), Messages{});
}

TEST(DataCheck, KnowsTwoTypesOfStops) {
    EXPECT_EQ(found([](Problem& p) { p.stops(2).type = "d"; }),
              (Messages{"Stop 2 is not D or P type. Change it."}));
}

TEST(DataCheck, LooksAtEachTimeWindow) {
    const auto windows = [](double begin1, double end1, double begin2, double end2) {
        return found([=](Problem& p) {
            p.stops(2).begin1 = begin1, p.stops(2).end1 = end1, p.stops(2).begin2 = begin2,
            p.stops(2).end2 = end2;
        });
    };
    EXPECT_EQ(windows(0, 480, 480, 480), Messages{});
    EXPECT_EQ(windows(500, 480, 480, 490),
              (Messages{"For stop 2 time windows - Begining time 1 exceeds ending time 1. Correct it."}));
    EXPECT_EQ(windows(0, 480, 490, 480),
              (Messages{"For stop 2 time windows - Begining time 2 exceeds ending time 2. Correct it."}));
    EXPECT_EQ(windows(0, 9999, 0, 9999),
              (Messages{"For stop 2 time windows - Ending time 2 exceeds Beginning time 2. Correct it."}));
    EXPECT_EQ(windows(-9, 0, 0, 480), (Messages{"For stop 2 time window - do not set Ending time 1 to 0."}));
    EXPECT_EQ(windows(-9, -8, -7, 0), (Messages{"For stop 2 time window - do not set Ending time 2 to 0."}));
    EXPECT_EQ(windows(480, 480, 480, 480),
              (Messages{"For stop 2 time window - do not set Beginning time 1 equal to Ending time 1."}));
}

TEST(DataCheck, RefusesLimitsOfZeroAlone) {
    const auto of = [](double Problem::*limit, double value) {
        return found([=](Problem& p) { p.*limit = value; });
    };
    EXPECT_EQ(of(&Problem::maxTime, 0),
              (Messages{"Maximum time allowed on route should be greater then 0."}));
    EXPECT_EQ(of(&Problem::maxDistance, 0),
              (Messages{"Maximum distance allowed on route should be greater than 0."}));
    EXPECT_EQ(of(&Problem::horizontalScale, 0),
              (Messages{"Horizontal caling factor must be greater than 0."}));
    EXPECT_EQ(of(&Problem::verticalScale, 0), (Messages{"Vertical scaling factor must be greater than 0."}));
    EXPECT_EQ(of(&Problem::overtimeAfter, 0), (Messages{"Time to begin overtime should be greater than 0."}));
    for (double Problem::*limit : {&Problem::maxTime, &Problem::maxDistance, &Problem::horizontalScale,
                                   &Problem::verticalScale, &Problem::overtimeAfter})
        EXPECT_EQ(of(limit, -1), Messages{});
}

TEST(DataCheck, BoundsPickupsAndOvertime) {
    EXPECT_EQ(found([](Problem& p) { p.pickupPercent = 100, p.overtimeAfter = 168; }), Messages{});
    EXPECT_EQ(found([](Problem& p) { p.pickupPercent = 100.5; }),
              (Messages{"Percent of vehicle in use before allowing pickups must not exceed 100."}));
    EXPECT_EQ(found([](Problem& p) { p.overtimeAfter = 168.5; }),
              (Messages{"Time to begin overtime should not exceed 168 hours."}));
}

TEST(DataCheck, HoldsEachStopAgainstTheVehicles) {
    const auto addSmall = [](Problem& p) {
        p.vehicles.add(p.vehicles(1));
        p.vehicles(2).weightCapacity = 90;
        p.vehicles(2).cubeCapacity = 9;
        p.stops(2).weight = 90;
    };
    EXPECT_EQ(found(addSmall),
              (Messages{"The weight of stop 1 exceeds the weight capacity of the smallest vehicle.",
                        "The cube of stop 1 exceeds the cubic capacity of the smallest vehicle.",
                        "The cube of stop 2 exceeds the cubic capacity of the smallest vehicle.",
                        "Warning: Stop 1 weight exceeds the capacity of vehicle type 2  This could cause a "
                        "problem.",
                        "Warning: Stop 1 cube exceeds the capacity of vehicle type 2  This could cause a "
                        "problem.",
                        "Warning: Stop 2 cube exceeds the capacity of vehicle type 2  This could cause a "
                        "problem."}));
}

TEST(DataCheck, WantsBreaksOneAfterTheOther) {
    EXPECT_EQ(found([](Problem& p) { p.breaks(1).beginsAfter = 10000; }),
              (Messages{"Second break time start is less than the first. Correct it.",
                        "Second break time may begin before the first has been completed. Shorten 1st break "
                        "duration or extend beginning of second break time."}));
    EXPECT_EQ(found([](Problem& p) { p.breaks(1).beginsAfter = p.breaks(2).beginsAfter = 10000; }),
              (Messages{"Third break time start is less than the second. Correct it.",
                        "Third break time may begin before the second has been completed. Shorten 2nd break "
                        "duration or extend beginning of third break time."}));
    EXPECT_EQ(found([](Problem& p) { p.breaks(4).beginsAfter = 9998; }),
              (Messages{"Fourth break time start is less than the third. Correct it.",
                        "Fourth break time may begin before the third has been completed. Shorten 3rd break "
                        "duration or extend beginning of fourth break time."}));
    EXPECT_EQ(found([](Problem& p) { p.breaks(1) = {15, 9984}; }), Messages{});
    EXPECT_EQ(found([](Problem& p) { p.breaks(1) = {15.5, 9984}; }).size(), 1U);
}

TEST(DataCheck, WantsSpeedsAboveZeroAndStopsThatThereAre) {
    EXPECT_EQ(found([](Problem& p) {
                  p.zoneSpeeds.add({1, 2.5, 0});
                  p.speeds.add({0, "", 3, "", 5});
                  p.speeds.add({1, "", 2, "", 0});
                  p.speeds.add({-1, "", 2, "", -5});
                  p.distances.add({2, "", 1, "", 0});
                  p.distances.add({3, "", 1, "", 1});
              }),
              (Messages{"Specific speed number 2 must be greater than 0.",
                        "Speed between zone 1 and zone 2.5 must be greater than 0.",
                        "Specified distance 2 not in stop list.", "Specified speed 1 not in stop list."}));
}

TEST(DataCheck, WantsZonesThatThereAre) {
    const auto zones = [](Problem& p) {
        p.zones.add({});
        p.stops(1).zone = 1;
        p.stops(2).zone = 2;
    };
    const std::string message = " has a speed zone number greater than the number of defined speed zones.";
    EXPECT_EQ(found(zones, 1), Messages{"Stop 2" + message});
    EXPECT_EQ(found(zones, 1.5), (Messages{"Stop 0" + message, "Stop 2" + message}));
}

TEST(DataCheck, CountsEachCommaAndApostropheInNames) {
    const std::string message = "THERE IS A COMMA (,) AND/OR AN APOSTROPHE (') IN ";
    EXPECT_EQ(
        found([](Problem& p) {
            p.label = "a,b'c";
            p.depotDescription = "O'Dell";
            p.stops(2).description = "x,";
        }),
        (Messages{message + "PROBLEM LABEL. ELIMINATE THEM.", message + "PROBLEM LABEL. ELIMINATE THEM.",
                  message + "THE DEPOT NAME. ELIMINATE IT.", message + "STOP 2 DESCRIPTION. ELIMINATE IT."}));
}

TEST(DataCheck, WantsCapacities) {
    const Messages messages = found([](Problem& p) {
        p.vehicles.add({});
        p.vehicles(2).weightCapacity = 500;
        p.stops(1).cube = p.stops(2).cube = 0;
        p.vehicles(1).weightCapacity = 0;
        p.stops(1).weight = p.stops(2).weight = 0;
    });
    EXPECT_EQ(messages, (Messages{"Vehcile type 1 must have a weight capacity greater than 0",
                                  "Vehicle type 2 must have a cube capacity greater than 0"}));
}

TEST(DataCheck, WantsBarriersAwayFromTheAxis) {
    EXPECT_EQ(
        found([](Problem& p) {
            p.barriers.add({1, 5, 4, 5, 0, 2, 4, 2});
            p.barriers.add({0, 5, 4, 5, 0, 2, 4, 2});
            p.barriers.add({0, 5, 4, 5, 1, 2, 4, 2});
        }),
        (Messages{"For barrier number 2, both northwest and southwest horizontal coordinates must not be "
                  "zero."}));
}

TEST(DataCheck, OverflowsWhereATotalDoes) {
    EXPECT_EQ(errorOf([] { found([](Problem& p) { p.vehicles(1).weightCapacity = 1E308; }); }),
              ErrorNumber::Overflow);
}

} // namespace
} // namespace vantore::router
