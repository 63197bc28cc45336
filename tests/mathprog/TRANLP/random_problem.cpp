#include "tests/mathprog/TRANLP/random_problem.h"

#include <random>

namespace vantore::tests {

namespace {

using tranlp::Problem;

constexpr unsigned mostUnits = 200;

/// The generator's own whole numbers, so that a problem is the same with every library.
class Dice {
  public:
    explicit Dice(unsigned seed) : generator_(seed) {}
    int upTo(unsigned most) { return static_cast<int>(generator_() % most) + 1; }
    double fraction() { return static_cast<double>(generator_()) / 4294967296.0; }

  private:
    std::mt19937 generator_;
};

double costOf(Costs costs, Dice& dice) {
    switch (costs) {
    case Costs::Whole: return dice.upTo(1000);
    case Costs::Few: return dice.upTo(4);
    case Costs::Cents: return dice.upTo(10000) * .01;
    case Costs::Fractional: return dice.fraction();
    default: return (dice.upTo(1001) - 501) * .1;
    }
}

double total(const tranlp::PlaceTable<double>& amounts, int count) {
    double sum = 0;
    for (int place = 1; place <= count; ++place) sum += amounts(place);
    return sum;
}

/// Adds to random places until both sums are the same.
void even(Problem& problem, Dice& dice) {
    double difference = total(problem.supply, problem.sources) - total(problem.demand, problem.sinks);
    for (; difference < 0; ++difference) ++problem.supply(dice.upTo(unsigned(problem.sources)));
    for (; difference > 0; --difference) ++problem.demand(dice.upTo(unsigned(problem.sinks)));
}

} // namespace

Problem randomProblem(int sources, int sinks, Costs costs, Balance balance, unsigned seed) {
    Dice dice(seed);
    Problem problem;
    problem.sources = sources;
    problem.sinks = sinks;
    for (int i = 1; i <= sources; ++i) problem.supply(i) = dice.upTo(mostUnits);
    for (int j = 1; j <= sinks; ++j) problem.demand(j) = dice.upTo(mostUnits);
    for (int i = 1; i <= sources; ++i)
        for (int j = 1; j <= sinks; ++j) problem.cost(i, j) = costOf(costs, dice);
    even(problem, dice);
    if (balance == Balance::SupplyHeavy)
        for (int i = 1; i <= sources; ++i) problem.supply(i) += dice.upTo(40) * .5;
    if (balance == Balance::DemandHeavy)
        for (int j = 1; j <= sinks; ++j) problem.demand(j) += dice.upTo(40) * .5;
    return problem;
}

} // namespace vantore::tests
