#include <gtest/gtest.h>

#include <string>

#include "routing/ROUTER/plan.h"
#include "tests/support/error_of.h"

namespace vantore::router {
namespace {

using vantore::tests::errorOf;

const char* const sample = "SPECIFIED\r\n1,2,5147,1,6000,450\r\n4\r\n5\r\n2,1,400.5,2,2800,510\r\n2\r\n";

Plan readFrom(const std::string& text) {
    ItemReader reader(text);
    return readPlan(reader);
}

TEST(PlanFile, HoldsEachRouteUnderItsNumber) {
    const Plan plan = readFrom(sample);
    EXPECT_EQ(plan.remark, specifiedRemark);
    EXPECT_EQ(plan.routeCount, 2);
    EXPECT_EQ(plan.routes(1).totalWeight, 5147);
    EXPECT_EQ(plan.routes(1).vehicle, 1);
    EXPECT_EQ(plan.routes(1).weightCapacity, 6000);
    EXPECT_EQ(plan.routes(1).start, 450);
    EXPECT_EQ(plan.routes(1).stops, (std::vector<int>{4, 5}));
    EXPECT_EQ(plan.routes(2).stops, std::vector<int>{2});
}

TEST(PlanFile, IsWrittenAsItWasRead) {
    ItemWriter writer;
    writePlan(readFrom(sample), writer);
    EXPECT_EQ(writer.text(), sample);
}

TEST(PlannedRoute, WeighsItsStops) {
    Problem problem;
    for (const double weight : {100.0, 20.5, 3.0}) {
        problem.stops.add({});
        problem.stops(problem.stops.count()).weight = weight;
        problem.vehicles.add({});
        problem.vehicles(problem.vehicles.count()).weightCapacity = 10 * weight;
    }
    const PlannedRoute route = plannedRoute(problem, 2, 480, {3, 1});
    EXPECT_EQ(route.totalWeight, 103);
    EXPECT_EQ(route.vehicle, 2);
    EXPECT_EQ(route.weightCapacity, 205);
    EXPECT_EQ(route.start, 480);
    EXPECT_EQ(route.stops, (std::vector<int>{3, 1}));
    EXPECT_EQ(errorOf([&] { plannedRoute(problem, 4, 480, {}); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { plannedRoute(problem, 1, 480, {4}); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(PlanFile, MayHoldNoRoute) {
    EXPECT_EQ(readFrom("\"computed\"\r\n").routeCount, 0);
    EXPECT_EQ(errorOf([] { readFrom(""); }), ErrorNumber::InputPastEnd);
}

TEST(PlanFile, LeavesRowsEmptyWhereNumbersAreLeftOut) {
    const Plan plan = readFrom("x\n3,1,0,1,0,480\n2\n");
    EXPECT_EQ(plan.routeCount, 3);
    EXPECT_EQ(plan.routes(1).stopCount(), 0);
    EXPECT_EQ(plan.routes(3).stopCount(), 1);
}

TEST(PlanFile, KeepsTheLastOfEqualNumbers) {
    const Plan plan = readFrom("x\n1,2,0,1,0,480\n2\n3\n1,1,0,1,0,490\n5\n");
    EXPECT_EQ(plan.routeCount, 1);
    EXPECT_EQ(plan.routes(1).stops, std::vector<int>{5});
}

TEST(PlanFile, RefusesNumbersThatNoTableHolds) {
    EXPECT_EQ(errorOf([] { readFrom("x\n0,1,0,1,0,480\n2\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("x\n1,-1,0,1,0,480\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("x\n1,162,0,1,0,480\n"); }), ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorOf([] { readFrom("x\n1,161,0,1,0,480\n"); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(errorOf([] { readFrom("x\n1E10,1,0,1,0,480\n2\n"); }), ErrorNumber::Overflow);
}

TEST(PlanFile, RefusesStopsThatAreNoWholeNumbers) {
    EXPECT_EQ(errorOf([] { readFrom("x\n1,1,0,1,0,480\n2.5\n"); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorOf([] { readFrom("x\n1,1,0,1,0,480\nMill\n"); }), ErrorNumber::TypeMismatch);
    EXPECT_EQ(errorOf([] { readFrom("x\n1,1,0,1,0,480\n1E10\n"); }), ErrorNumber::Overflow);
}

TEST(PlanFile, CountsMoreRoutesThanItKeeps) {
    std::string text = "x\n";
    for (int r = 1; r <= 201; ++r) text += std::to_string(r) + ",1,0,1,0,480\n1\n";
    const Plan plan = readFrom(text);
    EXPECT_EQ(plan.routeCount, 201);
    EXPECT_TRUE(plan.hasTooManyRoutes());
    EXPECT_EQ(plan.routes(200).stopCount(), 1);
    EXPECT_FALSE(readFrom(text.substr(0, text.find("201,"))).hasTooManyRoutes());
}

} // namespace
} // namespace vantore::router
