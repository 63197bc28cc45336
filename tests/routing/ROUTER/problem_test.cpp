#include <gtest/gtest.h>

#include <string>

#include "routing/ROUTER/problem.h"
#include "tests/support/error_of.h"

namespace vantore::router {
namespace {

using vantore::tests::errorOf;

const char* const general =
    "\"Round 1\",\"NW\",\"Yard, north\",2,10,-4.5,480,1020,35,8,50,1.2,.9,11,320,4,.01,"
    ".035,25,660,30,720,0,9999,0,9999\r\n";
const char* const tables = "2\r\n"
                           "\"Mill\",\"D\",1240,140,62,51.5,1,0,480,720,730,1020\r\n"
                           "\"O'Dell\",\"P\",400,61,66.3,33,0,18,0,1440,1440,9999\r\n"
                           "1\r\n"
                           "\"Van\",7,2,2800,320,30,.41,60,14.5,21.75\r\n"
                           "1\r\n"
                           "0,\"Yard, north\",2,\"O'Dell\",17.25\r\n"
                           "1\r\n"
                           "-5,5,6,-6\r\n"
                           "1\r\n"
                           "1,2,22\r\n"
                           "1\r\n"
                           "1,\"Mill\",2,\" \",34\r\n"
                           "1\r\n"
                           "1,2,3,4,5,6,7,8\r\n";

Problem readFrom(const std::string& text) {
    ItemReader reader(text);
    return read(reader);
}

std::string written(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

TEST(RoutingFile, IsWrittenAsItWasRead) {
    const std::string sample = std::string(general) + tables;
    EXPECT_EQ(written(readFrom(sample)), sample);
}

TEST(RoutingFile, HoldsTheGeneralDataAndTheBreaks) {
    const Problem problem = readFrom(std::string(general) + tables);
    EXPECT_EQ(problem.label, "Round 1");
    EXPECT_EQ(problem.corner, "NW");
    EXPECT_EQ(problem.depotDescription, "Yard, north");
    EXPECT_EQ(problem.depotZone, 2);
    EXPECT_EQ(problem.depotY, -4.5);
    EXPECT_EQ(problem.earliestStart, 480);
    EXPECT_EQ(problem.latestReturn, 1020);
    EXPECT_EQ(problem.defaultSpeed, 35);
    EXPECT_EQ(problem.overtimeAfter, 8);
    EXPECT_EQ(problem.pickupPercent, 50);
    EXPECT_EQ(problem.horizontalScale, 1.2);
    EXPECT_EQ(problem.verticalScale, .9);
    EXPECT_EQ(problem.maxTime, 11);
    EXPECT_EQ(problem.maxDistance, 320);
    EXPECT_EQ(problem.fixedStopTime, 4);
    EXPECT_EQ(problem.timePerWeight, .01);
    EXPECT_EQ(problem.timePerCube, .035);
    EXPECT_EQ(problem.breaks(1).duration, 25);
    EXPECT_EQ(problem.breaks(1).beginsAfter, 660);
    EXPECT_EQ(problem.breaks(2).duration, 30);
    EXPECT_EQ(problem.breaks(4).beginsAfter, 9999);
}

TEST(RoutingFile, HoldsTheSevenTables) {
    const Problem problem = readFrom(std::string(general) + tables);
    EXPECT_EQ(problem.stops(1).end2, 1020);
    EXPECT_EQ(problem.stops(2).type, pickup);
    EXPECT_EQ(problem.stops(2).loadTime, 18);
    EXPECT_EQ(problem.vehicles(1).type, 7);
    EXPECT_EQ(problem.vehicles(1).overtimeCost, 21.75);
    EXPECT_EQ(problem.distances(1).from, depotNumber);
    EXPECT_EQ(problem.distances(1).to, 2);
    EXPECT_EQ(problem.distances(1).value, 17.25);
    EXPECT_EQ(problem.zones(1).top, 6);
    EXPECT_EQ(problem.zoneSpeeds(1).destination, 2);
    EXPECT_EQ(problem.speeds(1).fromDescription, "Mill");
    EXPECT_EQ(problem.barriers(1).southeastY, 8);
}

TEST(RoutingFile, StartsWithTheDefaultsAndNoRows) {
    EXPECT_EQ(skeleton(), "\"Enter label\",\"SW\",\"Enter name\",0,0,0,0,9999,30,9999,0,1,1,9999,9999,0,0,0,"
                          "0,9999,0,9999,0,9999,0,9999\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n");
}

TEST(RoutingFile, RefusesCountsAboveTheLimitOfEachTable) {
    const int limits[] = {61, 75, 1000, 1000, 1000, 1000, 25};
    std::string before = general;
    for (const int limit : limits) {
        const auto errorFor = [&](int count) {
            return errorOf([&] { readFrom(before + std::to_string(count) + "\r\n"); });
        };
        EXPECT_EQ(errorFor(limit + 1), ErrorNumber::SubscriptOutOfRange) << before;
        EXPECT_EQ(errorFor(limit), ErrorNumber::InputPastEnd) << before;
        EXPECT_EQ(errorFor(-1), ErrorNumber::SubscriptOutOfRange) << before;
        before += "0\r\n";
    }
}

TEST(RoutingFile, RoundsStopNumbersToSixteenBits) {
    const auto withLeg = [](const std::string& number) {
        return readFrom(std::string(general) + "0\r\n0\r\n1\r\n" + number +
                        ",a,1,b,5\r\n0\r\n0\r\n0\r\n0\r\n");
    };
    EXPECT_EQ(withLeg("2.5").distances(1).from, 2);
    EXPECT_EQ(withLeg("32767").distances(1).from, 32767);
    EXPECT_EQ(errorOf([&] { withLeg("32768"); }), ErrorNumber::Overflow);
}

TEST(RoutingFile, EndsTooEarlyWhereverItIsCut) {
    const std::string sample = std::string(general) + tables;
    const std::size_t lastNumber = sample.size() - 3;
    for (std::size_t end = 0; end < lastNumber; ++end)
        EXPECT_EQ(errorOf([&] { readFrom(sample.substr(0, end)); }), ErrorNumber::InputPastEnd) << end;
}

TEST(DepotStop, HasTheDepotsNameZoneAndPlace) {
    const Stop depot = depotStop(readFrom(std::string(general) + tables));
    EXPECT_EQ(depot.description, "Yard, north");
    EXPECT_EQ(depot.zone, 2);
    EXPECT_EQ(depot.x, 10);
    EXPECT_EQ(depot.y, -4.5);
    EXPECT_EQ(depot.weight, 0);
}

} // namespace
} // namespace vantore::router
