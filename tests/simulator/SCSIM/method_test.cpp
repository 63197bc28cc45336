#include "simulator/SCSIM/method.h"

#include <gtest/gtest.h>

#include "simulator/SCSIM/trace.h"
#include "tests/support/error_of.h"

namespace vantore::scsim {
namespace {

using tests::errorOf;

const Answers noAnswers = {[](const ForecastQuestion&) { return std::nullopt; },
                           [](const OrdersQuestion&) { return false; }};

/// Ten units a day, everything takes one day, all levels reorder specified quantities at a point.
Problem clockwork() {
    Problem problem;
    problem.years = 1;
    problem.demandSource = DemandSource::Specified;
    problem.dayProfile.fill(10);
    const auto reorder = [&problem](Level level, double quantity, double point) {
        LevelData& data = problem.levels(level);
        data.reorderParameters = Parameters::Specified;
        data.reorderQuantity = quantity;
        data.reorderPoint = point;
        data.averageFillTime = 1;
        problem.lanes(level).averageTime = 1;
    };
    reorder(Level::Retailer, 40, 30);
    reorder(Level::Distributor, 100, 50);
    reorder(Level::Warehouse, 200, 100);
    problem.factory.lotSize = 200;
    problem.factory.averageProductionTime = 1;
    return problem;
}

struct Ended {
    RunFigures figures;
    Ending ending = Ending::Stopped;
    std::vector<TraceRow> trace;
};

Ended runOf(const Problem& problem, const Answers& answers = noAnswers) {
    Ended ended;
    UniformGenerator uniforms;
    const Watchers watchers = {.trace = [&](const TraceRow& row) { ended.trace.push_back(row); },
                               .dayStarts = {}};
    ended.ending = simulate(problem, uniforms, answers, watchers, ended.figures);
    return ended;
}

/// What a level shows on a day: due, receipts, filled, on hand, back orders, on order, stock out, ordered.
std::array<double, 8> dayOf(const Ended& ended, Level level, int day) {
    const LevelDays& at = ended.figures.days.levels(level);
    return {at.demandDue(day),  at.receipts(day), at.filled(day),   at.onHand(day),
            at.backOrders(day), at.onOrder(day),  at.stockOut(day), at.orderQuantity(day)};
}

using Figures = std::array<double, 8>;

/// All stocks start at 0, so the first days are a cascade of orders and back orders.
TEST(Simulation, PassesOrdersUpAndGoodsDownTheChannel) {
    const Ended ended = runOf(clockwork());
    // Day -359: each level orders, nothing is due yet.
    EXPECT_EQ(dayOf(ended, Level::Retailer, -359), (Figures{0, 0, 0, 0, 0, 40, 0, 40}));
    EXPECT_EQ(dayOf(ended, Level::Distributor, -359), (Figures{0, 0, 0, 0, 0, 100, 0, 100}));
    EXPECT_EQ(dayOf(ended, Level::Warehouse, -359), (Figures{0, 0, 0, 0, 0, 200, 0, 200}));
    // Day -358: the first demand meets empty stocks; the factory completes its lot.
    EXPECT_EQ(dayOf(ended, Level::Retailer, -358), (Figures{10, 0, 0, 0, 10, 40, 10, 0}));
    EXPECT_EQ(dayOf(ended, Level::Distributor, -358), (Figures{40, 0, 0, 0, 40, 100, 40, 0}));
    EXPECT_EQ(dayOf(ended, Level::Warehouse, -358), (Figures{100, 0, 0, 0, 100, 200, 100, 0}));
    EXPECT_EQ(ended.figures.days.production(-358), 200);
    // Day -357: the lot arrives and fills the distributor's order.
    EXPECT_EQ(dayOf(ended, Level::Retailer, -357), (Figures{10, 0, 0, 0, 20, 80, 10, 40}));
    EXPECT_EQ(dayOf(ended, Level::Distributor, -357), (Figures{0, 0, 0, 0, 40, 100, 0, 0}));
    EXPECT_EQ(dayOf(ended, Level::Warehouse, -357), (Figures{0, 200, 100, 100, 0, 0, 0, 0}));
    // Day -356: it goes on to the distributor, who ships both of the retailer's orders and orders anew.
    EXPECT_EQ(dayOf(ended, Level::Retailer, -356), (Figures{10, 0, 0, 0, 30, 80, 10, 0}));
    EXPECT_EQ(dayOf(ended, Level::Distributor, -356), (Figures{40, 100, 80, 20, 0, 100, 0, 100}));
    // Day -355: the retailer fills its back orders and the day's demand.
    EXPECT_EQ(dayOf(ended, Level::Retailer, -355), (Figures{10, 80, 40, 40, 0, 0, 0, 0}));
    EXPECT_EQ(dayOf(ended, Level::Warehouse, -355), (Figures{100, 0, 100, 0, 0, 200, 0, 200}));
}

TEST(Simulation, RunsToTheLastWholeDayOfItsYears) {
    Problem problem = clockwork();
    EXPECT_EQ(runOf(problem).trace.size(), 360U);
    EXPECT_EQ(runOf(problem).trace.back()[0], 360);
    problem.years = 1.251; // 450.36 days
    EXPECT_EQ(lastDayOf(problem), 450);
    EXPECT_EQ(runOf(problem).trace.back()[0], 450);
}

TEST(Simulation, TracesTheFiguresOfADay) {
    const Ended ended = runOf(clockwork());
    const Days& days = ended.figures.days;
    const LevelDays& r = days.levels(Level::Retailer);
    const LevelDays& d = days.levels(Level::Distributor);
    const LevelDays& w = days.levels(Level::Warehouse);
    ASSERT_EQ(ended.ending, Ending::Complete);
    for (int day = 1; day <= 12; ++day) {
        const TraceRow expected = {static_cast<double>(day),
                                   10,
                                   r.filled(day),
                                   r.salesForecast(day),
                                   r.demandDue(day),
                                   r.onHand(day),
                                   r.backOrders(day),
                                   r.onOrder(day),
                                   r.receipts(day),
                                   r.orderQuantity(day),
                                   d.salesForecast(day),
                                   d.demandDue(day),
                                   d.onHand(day),
                                   d.backOrders(day),
                                   d.onOrder(day),
                                   d.receipts(day),
                                   d.orderQuantity(day),
                                   w.salesForecast(day),
                                   w.demandDue(day),
                                   w.onHand(day),
                                   w.backOrders(day),
                                   w.onOrder(day),
                                   w.receipts(day),
                                   w.orderQuantity(day),
                                   0,
                                   days.production(day)};
        EXPECT_EQ(ended.trace.at(static_cast<std::size_t>(day - 1)), expected);
    }
}

/// An order of 150 waits until another comes: lots are of 200.
TEST(Factory, MakesWholeLotsAndKeepsTheRest) {
    Problem problem = clockwork();
    problem.levels(Level::Warehouse).reorderQuantity = 150;
    const Ended ended = runOf(problem);
    EXPECT_EQ(ended.figures.days.levels(Level::Warehouse).orderQuantity(-359), 150);
    EXPECT_EQ(ended.figures.days.production(-358), 0);
    double ordered = 0, made = 0;
    for (int day = -359; day <= 360; ++day)
        ordered += ended.figures.days.levels(Level::Warehouse).orderQuantity(day);
    for (int day = -359; day <= 400; ++day) made += ended.figures.days.production(day);
    EXPECT_EQ(ended.trace.back()[24], ordered - made);
    EXPECT_LT(ordered - made, 200);
    EXPECT_GT(made, 3000);
}

TEST(Factory, CompletesWholeUnitsOfLotsWithAFraction) {
    Problem problem = clockwork();
    problem.factory.lotSize = 66.5; // three lots of an order of 200
    const Ended ended = runOf(problem);
    EXPECT_EQ(ended.figures.days.production(-358), 3 * 66);
    EXPECT_EQ(ended.figures.days.levels(Level::Warehouse).receipts(-357), 3 * 66.5);
}

TEST(Factory, NeverProducesWhereALotExceedsAllDemand) {
    Problem problem = clockwork();
    problem.factory.lotSize = 1E9;
    const Ended ended = runOf(problem);
    EXPECT_EQ(ended.trace.back()[22], 0);
    EXPECT_GT(ended.trace.back()[24], 3000);
    EXPECT_GT(ended.trace.back()[20], 3000); // the warehouse back-orders for ever
}

/// One by one this would take weeks.
TEST(Factory, MakesALargeOrderInOneStep) {
    Problem problem = clockwork();
    LevelData& warehouse = problem.levels(Level::Warehouse);
    warehouse.reorderQuantity = 1E15 + 3;
    problem.factory.lotSize = 7;
    const Ended ended = runOf(problem);
    EXPECT_EQ(ended.figures.days.production(-358), 1E15 + 1); // 142857142857143 lots
    EXPECT_EQ(ended.trace.back()[24], 2);
}

TEST(Factory, RefusesLotsOfNothing) {
    Problem problem = clockwork();
    problem.factory.lotSize = 0;
    EXPECT_EQ(errorOf([&] { runOf(problem); }), ErrorNumber::InvalidProcedureCall);
}

/// Stock and back orders of 80 meet a new order of 40: the day reads 0 in the report's table, not in the
/// trace.
TEST(Simulation, ShipsNothingWhereStockEqualsTheBackOrders) {
    Problem problem = clockwork();
    problem.levels(Level::Distributor).policy = Policy::None;
    const Ended starved = runOf(problem);
    EXPECT_EQ(starved.figures.days.levels(Level::Distributor).filled(360), 0);
    EXPECT_GT(starved.figures.days.levels(Level::Distributor).backOrders(360), 3000);
}

TEST(Simulation, UsesTimesBelowADayAsOneDay) {
    Problem problem = clockwork();
    for (const Level level : allLevels) {
        problem.levels(level).averageFillTime = 0;
        problem.lanes(level).averageTime = .9;
    }
    problem.factory.averageProductionTime = -3;
    EXPECT_EQ(runOf(problem).trace, runOf(clockwork()).trace);
}

/// Day 1's demand is due on day 1 + 8641.
TEST(Simulation, EndsInAnErrorWhereATimeLeadsBeyondTheTables) {
    Problem problem = clockwork();
    problem.levels(Level::Retailer).averageFillTime = 8640; // day 360 reaches day 9000
    EXPECT_EQ(runOf(problem).ending, Ending::Complete);
    problem.levels(Level::Retailer).averageFillTime = 8641;
    EXPECT_EQ(errorOf([&] { runOf(problem); }), ErrorNumber::SubscriptOutOfRange);
    problem.levels(Level::Retailer).averageFillTime = 1E300;
    EXPECT_EQ(errorOf([&] { runOf(problem); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(Simulation, StopsWhereNoForecastIsGivenAndKeepsWhatWasReached) {
    Problem problem = clockwork();
    problem.levels(Level::Warehouse).forecast = ForecastMethod::Specified;
    problem.levels(Level::Warehouse).forecastFrequency = 370; // the second forecast is due on day 10
    int asked = 0;
    const Answers answers = {[&asked](const ForecastQuestion&) -> std::optional<double> {
                                 return ++asked == 1 ? std::optional<double>(5) : std::nullopt;
                             },
                             {}};
    const Ended ended = runOf(problem, answers);
    EXPECT_EQ(ended.ending, Ending::Stopped);
    EXPECT_EQ(ended.trace.size(), 9U);
    EXPECT_EQ(ended.figures.days.levels(Level::Retailer).demandDue(10), 10);
    EXPECT_EQ(ended.figures.days.levels(Level::Warehouse).demandDue(11), 0);
}

TEST(Simulation, StopsAtTheQuestionAboutManyOrders) {
    Problem problem = clockwork();
    problem.levels(Level::Distributor).reorderQuantity = 0;
    EXPECT_EQ(runOf(problem).ending, Ending::Stopped);
}

TEST(Simulation, ShowsCalculatedParametersAsItGoes) {
    Problem problem = clockwork();
    LevelData& distributor = problem.levels(Level::Distributor);
    distributor.reorderParameters = Parameters::Calculated;
    distributor.orderProcessingCost = 25;
    distributor.itemValue = 100;
    distributor.carryingCost = 20;
    distributor.forecast = ForecastMethod::MovingAverage;
    distributor.averagedDays = 4;
    distributor.inStockProbability = 95;
    const Ended ended = runOf(problem);
    // The retailer orders 40 every fourth day: a forecast of 10, Q = sqrt(2 x 10 x 360 x 25 / 20) = 94.87.
    EXPECT_EQ(ended.figures.calculated(Level::Distributor).reorderQuantity, 94);
    EXPECT_TRUE(ended.figures.calculated(Level::Distributor).reorderPoint.has_value());
    EXPECT_FALSE(ended.figures.calculated(Level::Retailer).reorderPoint.has_value());
}

TEST(Simulation, TellsEachDayThatStarts) {
    std::vector<int> started;
    RunFigures figures;
    UniformGenerator uniforms;
    const Watchers watchers = {.trace = {}, .dayStarts = [&](int day) { started.push_back(day); }};
    simulate(clockwork(), uniforms, noAnswers, watchers, figures);
    ASSERT_EQ(started.size(), 720U);
    EXPECT_EQ(started.front(), -359);
    EXPECT_EQ(started.back(), 360);
}

TEST(Simulation, OverflowsWhereAYearIsBeyondAllDays) {
    Problem problem = clockwork();
    problem.years = 1E300;
    EXPECT_EQ(errorOf([&] { runOf(problem); }), ErrorNumber::Overflow);
    problem.years = 25;
    EXPECT_EQ(errorOf([&] { runOf(problem); }), ErrorNumber::SubscriptOutOfRange);
}

TEST(Trace, HasTwoHeadingLinesAndALineADay) {
    const std::vector<std::string> heading = traceHeading();
    ASSERT_EQ(heading.size(), 2U);
    EXPECT_TRUE(heading[0].starts_with("\"   \",\"Daily \",\"Customer\",\"Retailer      \",\"Retailer\","));
    EXPECT_TRUE(heading[0].ends_with(",\"Warehouse    \",\"Plant \",\"Plant    \",\"Plant\""));
    EXPECT_TRUE(heading[1].starts_with("\"Day\",\"Demand\",\"Sales   \",\"Sales forecast\",\"Sales   \","));
    EXPECT_TRUE(heading[1].ends_with(",\"Shipmts rec'd\",\"Demand\",\"Acc. dem.\",\"Sales\""));
    TraceRow row{};
    row[0] = 7;
    row[3] = .5;
    row[25] = -200;
    EXPECT_EQ(traceLine(row), "7,0,0,.5,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,-200");
}

} // namespace
} // namespace vantore::scsim
