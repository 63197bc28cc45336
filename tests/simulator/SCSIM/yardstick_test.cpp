#include <gtest/gtest.h>

#include <optional>

#include "simulator/SCSIM/method.h"
#include "simulator/SCSIM/report.h"
#include "tests/simulator/SCSIM/plain_channel.h"
#include "tests/simulator/SCSIM/random_problem.h"

namespace vantore::scsim {
namespace {

using tests::PlainChannel;

constexpr int randomProblems = 1000;

struct Outcome {
    int error = 0; ///< 1 for a run that was stopped
    std::vector<TraceRow> trace;
};

Outcome outcomeOf(const Problem& problem, std::deque<double> forecasts, RunFigures& run) {
    Outcome outcome;
    const Answers answers = {[&](const ForecastQuestion&) -> std::optional<double> {
                                 if (forecasts.empty()) return std::nullopt;
                                 const double answer = forecasts.front();
                                 forecasts.pop_front();
                                 return answer;
                             },
                             [](const OrdersQuestion&) { return false; }};
    const Watchers watchers = {.trace = [&](const TraceRow& row) { outcome.trace.push_back(row); },
                               .dayStarts = {}};
    UniformGenerator uniforms;
    try {
        outcome.error = simulate(problem, uniforms, answers, watchers, run) == Ending::Complete ? 0 : 1;
    } catch (const RuntimeError& error) {
        outcome.error = static_cast<int>(error.number());
    }
    return outcome;
}

std::deque<double> randomForecasts(std::mt19937& random) {
    std::deque<double> forecasts;
    const bool enough = random() % 20 != 0;
    const std::size_t count = enough ? 30000 : random() % 12;
    for (std::size_t i = 0; i < count; ++i) forecasts.push_back(static_cast<double>(random() % 300));
    return forecasts;
}

void expectSameBoxes(const PlainChannel& plain, const RunFigures& run) {
    for (std::size_t k = 0; k < levelCount; ++k) {
        const ControlParameters& shown = run.calculated(allLevels.at(k));
        EXPECT_EQ(shown.reorderQuantity.value_or(-1), plain.shown[k][0]);
        EXPECT_EQ(shown.reorderPoint.value_or(-1), plain.shown[k][1]);
        EXPECT_EQ(shown.orderInterval.value_or(-1), plain.shown[k][2]);
        EXPECT_EQ(shown.targetLevel.value_or(-1), plain.shown[k][3]);
    }
}

void expectSameReports(const Problem& problem, const PlainChannel& plain, const RunFigures& run,
                       std::mt19937& random) {
    const int years = static_cast<int>(problem.years);
    const int first = 1 + static_cast<int>(random() % static_cast<unsigned>(years));
    const int last = first + static_cast<int>(random() % static_cast<unsigned>(years - first + 1));
    constexpr std::array subjects = {Subject::Channel, Subject::Retailer, Subject::Distributor,
                                     Subject::Warehouse, Subject::Factory};
    for (std::size_t what = 0; what < subjects.size(); ++what)
        EXPECT_EQ(reportOf(problem, run.days, subjects.at(what),
                           {static_cast<double>(first), static_cast<double>(last)})
                      .lines(),
                  plain.report(static_cast<int>(what), first, last));
}

TEST(Channel, AgreesWithAPlainProgramOnRandomProblems) {
    std::mt19937 random(20260101);
    int complete = 0;
    RunFigures run;
    for (int i = 0; i < randomProblems; ++i) {
        const Problem problem = tests::randomProblem(random, i % 50 == 0 ? mostYears : 2);
        const std::deque<double> forecasts = randomForecasts(random);
        PlainChannel plain(problem, forecasts);
        const int error = plain.run();
        const Outcome outcome = outcomeOf(problem, forecasts, run);
        ASSERT_EQ(outcome.error, error) << "problem " << i;
        ASSERT_EQ(outcome.trace, plain.trace) << "problem " << i;
        if (error != 0) continue;
        ++complete;
        expectSameBoxes(plain, run);
        expectSameReports(problem, plain, run, random);
        ASSERT_FALSE(testing::Test::HasFailure()) << "problem " << i;
    }
    EXPECT_GT(complete, randomProblems * 8 / 10);
}

} // namespace
} // namespace vantore::scsim
