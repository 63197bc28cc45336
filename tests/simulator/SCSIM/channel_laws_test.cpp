#include <gtest/gtest.h>

#include "simulator/SCSIM/method.h"
#include "tests/simulator/SCSIM/random_problem.h"

namespace vantore::scsim {
namespace {

constexpr int randomProblems = 60;
constexpr double bit = 1E-9; // of the quantities involved

/// Every forecast is 50; many orders are always allowed up to a point.
struct Played {
    RunFigures figures;
    std::vector<TraceRow> trace;
    bool complete = false;
    double nextUniform = 0;
};

void play(const Problem& problem, Played& played) {
    const Answers answers = {[](const ForecastQuestion&) { return 50.0; },
                             [](const OrdersQuestion&) { return false; }};
    const Watchers watchers = {.trace = [&](const TraceRow& row) { played.trace.push_back(row); },
                               .dayStarts = {}};
    UniformGenerator uniforms;
    played.trace.clear();
    try {
        played.complete = simulate(problem, uniforms, answers, watchers, played.figures) == Ending::Complete;
    } catch (const RuntimeError&) {
        played.complete = false;
    }
    played.nextUniform = uniforms.next();
}

double sum(const DaySeries& series, int last) {
    double total = 0;
    for (int day = firstDay; day <= last; ++day) total += series(day);
    return total;
}

void expectNear(double a, double b) {
    EXPECT_NEAR(a, b, bit * (1 + std::abs(a) + std::abs(b)));
}

/// The columns of a level's stock, back orders and what is on order in the trace.
std::size_t stockColumn(Level level) {
    return 5 + 7 * static_cast<std::size_t>(level);
}

template <class Check>
void onRandomChannels(unsigned seed, Check check) {
    std::mt19937 random(seed);
    int complete = 0;
    Played played;
    for (int i = 0; i < randomProblems; ++i) {
        const Problem problem = tests::randomProblem(random, 2);
        play(problem, played);
        if (!played.complete) continue;
        ++complete;
        check(problem, played);
        ASSERT_FALSE(testing::Test::HasFailure()) << "problem " << i;
    }
    EXPECT_GT(complete, randomProblems * 8 / 10);
}

TEST(ChannelLaws, StockIsWhatCameLessWhatWent) {
    onRandomChannels(1, [](const Problem&, const Played& played) {
        for (const Level level : allLevels) {
            const LevelDays& at = played.figures.days.levels(level);
            double stock = sum(at.receipts, 0) - sum(at.filled, 0);
            for (const TraceRow& row : played.trace) {
                const auto day = static_cast<int>(row[0]);
                stock += at.receipts(day) - at.filled(day);
                expectNear(row[stockColumn(level)], stock);
            }
        }
    });
}

TEST(ChannelLaws, OrdersAreReceiptsAndWhatIsOnOrder) {
    onRandomChannels(2, [](const Problem&, const Played& played) {
        for (const Level level : allLevels) {
            const LevelDays& at = played.figures.days.levels(level);
            double onOrder = sum(at.orderQuantity, 0) - sum(at.receipts, 0);
            for (const TraceRow& row : played.trace) {
                const auto day = static_cast<int>(row[0]);
                onOrder += at.orderQuantity(day) - at.receipts(day);
                expectNear(row[stockColumn(level) + 2], onOrder);
                expectNear(at.onOrder(day), onOrder);
            }
        }
    });
}

TEST(ChannelLaws, DemandIsFilledOrBackOrdered) {
    onRandomChannels(3, [](const Problem&, const Played& played) {
        for (const Level level : allLevels) {
            const LevelDays& at = played.figures.days.levels(level);
            for (const TraceRow& row : played.trace) {
                const auto day = static_cast<int>(row[0]);
                expectNear(at.demandDue(day), at.filled(day) + at.backOrders(day) - at.backOrders(day - 1));
                EXPECT_EQ(at.backOrders(day), row[stockColumn(level) + 1]);
                EXPECT_GE(at.onHand(day), 0);
                EXPECT_GE(at.backOrders(day), 0);
                EXPECT_GE(at.stockOut(day), 0);
                EXPECT_LE(at.stockOut(day), at.demandDue(day));
            }
        }
    });
}

/// The tables hold what is still on its way beyond the last day.
TEST(ChannelLaws, WhatLeavesALevelArrivesAtTheNext) {
    onRandomChannels(4, [](const Problem& problem, const Played& played) {
        // Tables of a longer run before this one may hold arrivals behind its end.
        RunFigures fresh;
        UniformGenerator uniforms;
        const Answers answers = {[](const ForecastQuestion&) { return 50.0; },
                                 [](const OrdersQuestion&) { return false; }};
        simulate(problem, uniforms, answers, {}, fresh);
        const Days& days = fresh.days;
        const auto total = [](const DaySeries& series) { return sum(series, lastDayOfTables); };
        const LevelDays& r = days.levels(Level::Retailer);
        const LevelDays& d = days.levels(Level::Distributor);
        const LevelDays& w = days.levels(Level::Warehouse);
        expectNear(total(r.demandDue), sum(days.customerDemand, lastDayOf(problem)));
        expectNear(total(d.demandDue), total(r.orderQuantity));
        expectNear(total(w.demandDue), total(d.orderQuantity));
        expectNear(total(r.receipts), total(d.filled));
        expectNear(total(d.receipts), total(w.filled));
        expectNear(total(w.receipts) + played.trace.back()[24], total(w.orderQuantity));
        if (problem.factory.lotSize == std::floor(problem.factory.lotSize))
            expectNear(total(days.production), total(w.receipts));
    });
}

TEST(ChannelLaws, ADayTakesSixteenUniforms) {
    onRandomChannels(5, [](const Problem& problem, const Played& played) {
        UniformGenerator uniforms(problem.seed);
        const int simulated = lastDayOf(problem) - firstDay + 1;
        const bool generated = problem.demandSource == DemandSource::Generated;
        const int generatedDays =
            generated ? static_cast<int>((problem.years + 1) * daysPerYear) + daysPerYear : 0;
        for (int i = 0; i < 16 * simulated + 2 * generatedDays; ++i) uniforms.next();
        EXPECT_EQ(played.nextUniform, uniforms.next());
    });
}

TEST(ChannelLaws, OneSeedGivesOneRun) {
    Played again;
    onRandomChannels(6, [&](const Problem& problem, const Played& played) {
        play(problem, again); // in tables that served others
        EXPECT_EQ(played.trace, again.trace);
    });
}

TEST(ChannelLaws, AnotherSeedGivesAnotherRun) {
    onRandomChannels(7, [](Problem problem, const Played& played) {
        if (problem.demandSource == DemandSource::Specified || problem.demandDeviation < 1) return;
        Played other;
        problem.seed += 1;
        play(problem, other);
        EXPECT_NE(played.trace, other.trace);
    });
}

/// Generated demand takes its uniforms first, so that random times shift with the length; without either the
/// longer run begins like the shorter one.
TEST(ChannelLaws, ALongerRunBeginsLikeAShorterOne) {
    std::mt19937 random(8);
    Played shorter, longer;
    int complete = 0;
    for (int i = 0; i < randomProblems; ++i) {
        Problem problem = i % 2 == 0 ? tests::steadyProblem(random, 1) : tests::randomProblem(random, 1);
        if (i % 2 == 1) problem.demandSource = DemandSource::Specified;
        problem.years = 1;
        play(problem, shorter);
        problem.years = 3;
        play(problem, longer);
        if (!shorter.complete || !longer.complete) continue;
        ++complete;
        longer.trace.resize(shorter.trace.size());
        ASSERT_EQ(longer.trace, shorter.trace) << "problem " << i;
    }
    EXPECT_GT(complete, randomProblems / 2);
}

} // namespace
} // namespace vantore::scsim
