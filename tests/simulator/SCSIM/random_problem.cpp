#include "tests/simulator/SCSIM/random_problem.h"

#include <cmath>

namespace vantore::tests {

using namespace scsim;

namespace {

class Draw {
  public:
    explicit Draw(std::mt19937& random) : random_(random) {}

    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool chance(int percent) { return whole(1, 100) <= percent; }

    /// To two decimals.
    double cents(double low, double high) {
        return std::round(std::uniform_real_distribution<double>(low, high)(random_) * 100) / 100;
    }

    double cost(double high) { return chance(5) ? 0 : cents(0, high); }
    double meanTime() { return chance(70) ? whole(1, 8) : cents(1, 15); }
    double timeDeviation() { return chance(50) ? 0 : cents(0, chance(80) ? 2 : 12); }

  private:
    std::mt19937& random_;
};

void drawDemand(Draw& draw, Problem& problem) {
    problem.demandSource = draw.chance(60) ? DemandSource::Generated : DemandSource::Specified;
    problem.averageDemand = draw.chance(70) ? draw.whole(1, 300) : draw.cents(1, 2000);
    problem.demandDeviation = draw.chance(20) ? 0 : draw.cents(0, problem.averageDemand / 2);
    problem.growth = draw.chance(50) ? 0 : draw.cents(0, 40);
    for (int month = 1; month <= monthsPerYear; ++month)
        problem.seasonalIndices(month) = draw.chance(3) ? -draw.cents(0, 1) : draw.cents(.2, 1.8);
    problem.profileGrowth = draw.chance(50) ? 0 : draw.cents(0, 40);
    for (int day = 1; day <= daysPerYear; ++day)
        problem.dayProfile(day) = draw.chance(95) ? draw.whole(0, 200) : draw.cents(-20, 400);
}

void drawPolicy(Draw& draw, LevelData& data) {
    constexpr std::array policies = {Policy::ReorderPoint, Policy::PeriodicReview, Policy::StockToDemand};
    data.policy = policies.at(static_cast<std::size_t>(draw.whole(0, 2)));
    data.reorderParameters = draw.chance(50) ? Parameters::Calculated : Parameters::Specified;
    data.reorderQuantity = draw.chance(70) ? draw.whole(20, 2000) : draw.cents(1, 3000);
    data.reorderPoint = draw.chance(10) ? 0 : draw.cents(0, 4000);
    data.reviewParameters = draw.chance(50) ? Parameters::Calculated : Parameters::Specified;
    data.orderInterval = draw.chance(80) ? draw.whole(0, 60) : draw.cents(-2, 90);
    data.targetLevel = draw.chance(70) ? draw.whole(0, 9000) : draw.cents(-100, 20000);
    data.targetDays = draw.chance(50) ? draw.whole(0, 60) : draw.cents(0, 90);
    data.reviewTime = draw.chance(80) ? draw.whole(0, 30) : draw.cents(0, 40);
}

void drawLevel(Draw& draw, LevelData& data) {
    constexpr std::array forecasts = {ForecastMethod::ExponentialSmoothing, ForecastMethod::MovingAverage,
                                      ForecastMethod::Specified};
    data.itemValue = draw.cost(100);
    data.orderFillingCost = draw.cost(3);
    data.orderProcessingCost = draw.cost(150);
    data.carryingCost = draw.cost(40);
    data.averageFillTime = draw.meanTime();
    data.fillTimeDeviation = draw.timeDeviation();
    data.inStockProbability = draw.chance(10) ? 100 : draw.cents(50, 99.99);
    data.backOrderCost = draw.cost(10);
    data.forecast = forecasts.at(static_cast<std::size_t>(draw.whole(0, 2)));
    data.smoothingConstant = draw.chance(95) ? draw.cents(0, 1) : draw.cents(1, 1.5);
    data.averagedDays = draw.chance(80) ? draw.whole(1, 60) : draw.cents(1, 500);
    data.forecastFrequency = draw.chance(80) ? draw.whole(1, 200) : draw.cents(1, 200);
    drawPolicy(draw, data);
}

} // namespace

Problem randomProblem(std::mt19937& random, int mostYears) {
    Draw draw(random);
    Problem problem;
    problem.title = "Random channel";
    problem.seed = draw.chance(80) ? draw.whole(-100000, 100000) : draw.cents(-1E9, 1E9);
    problem.years = draw.chance(95) ? draw.whole(1, mostYears) : draw.cents(1, mostYears);
    problem.price = draw.cents(0, 200);
    drawDemand(draw, problem);
    for (const Level level : allLevels) {
        drawLevel(draw, problem.levels(level));
        problem.lanes(level) = {draw.cost(4), draw.meanTime(), draw.timeDeviation()};
    }
    problem.factory = {draw.cost(60),        draw.chance(80) ? draw.whole(1, 1500) : draw.cents(1, 2500),
                       draw.cost(3),         draw.meanTime(),
                       draw.timeDeviation(), draw.cost(30)};
    return problem;
}

Problem steadyProblem(std::mt19937& random, int mostYears) {
    Problem problem = randomProblem(random, mostYears);
    for (const Level level : allLevels) {
        problem.levels(level).fillTimeDeviation = 0;
        problem.lanes(level).timeDeviation = 0;
    }
    problem.factory.productionTimeDeviation = 0;
    return problem;
}

} // namespace vantore::tests
