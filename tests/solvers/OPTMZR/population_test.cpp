#include <gtest/gtest.h>

#include "solvers/OPTMZR/dice.h"
#include "solvers/OPTMZR/population.h"

namespace vantore::optmzr::tests {
namespace {

std::unique_ptr<Individual> individual(int stops, const Solution& solution, double cost) {
    RouteValue total;
    total.cost = total.penalised = cost;
    return std::make_unique<Individual>(stops, solution, total, 0);
}

TEST(Individual, KnowsItsTourAndTheNeighboursOfEachStop) {
    const auto plan = individual(5, {{0, {3, 1}}, {1, {5, 2, 4}}}, 10);
    EXPECT_EQ(plan->tour, (std::vector<int>{3, 1, 5, 2, 4}));
    EXPECT_EQ(plan->next, (std::vector<int>{0, 0, 4, 1, 0, 2}));
    EXPECT_EQ(plan->previous, (std::vector<int>{0, 3, 5, 0, 2, 0}));
    EXPECT_EQ(plan->cost, 10);
}

TEST(Individual, CostsWhatThePenaltiesMakeOfIt) {
    RouteValue total{.cost = 100, .load = 1, .minutes = 2, .distance = 3, .share = 4};
    const Individual plan(1, {{0, {1}}}, total, 5);
    EXPECT_EQ(plan.penalised({10, 20, 30, 40, 50}), 100 + 10 + 40 + 90 + 160 + 250);
}

TEST(BrokenPairs, AreTheShareOfStopsWithOtherNeighbours) {
    const auto plan = individual(4, {{0, {1, 2, 3, 4}}}, 1);
    EXPECT_EQ(brokenPairs(*plan, *plan), 0);
    EXPECT_EQ(brokenPairs(*plan, *individual(4, {{0, {4, 3, 2, 1}}}, 1)), 0); // driven backwards
    // 2 is followed by another stop than before and 3 begins a route that it didn't
    EXPECT_EQ(brokenPairs(*plan, *individual(4, {{0, {1, 2}}, {0, {3, 4}}}, 1)), .25);
    EXPECT_EQ(brokenPairs(*individual(4, {{0, {1, 2}}, {0, {3, 4}}}, 1), *plan), .5);
}

TEST(Population, KeepsTheCheapestAndTheDifferent) {
    Dice dice(1);
    Population population;
    const auto random = [&dice](double cost) {
        std::vector<int> stops{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
        dice.shuffle(stops);
        return individual(10, {{0, stops}}, cost);
    };
    const std::vector<int> best{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    population.add(individual(10, {{0, best}}, 1));
    for (int i = 0; i < 20; ++i) population.add(individual(10, {{0, best}}, 1.5)); // clones
    for (int i = 0; i < 44; ++i) population.add(random(2 + dice.below(100)));
    ASSERT_EQ(population.size(), 65U);
    population.add(random(50));
    ASSERT_EQ(population.size(), 25U);
    EXPECT_EQ(population.member(0).cost, 1);
    for (std::size_t i = 1; i < population.size(); ++i) {
        EXPECT_GE(population.member(i).cost, population.member(i - 1).cost);
        EXPECT_NE(population.member(i).cost, 1.5); // the clones went first
        EXPECT_EQ(population.member(i).nearest.size(), 24U);
    }
}

TEST(Population, RanksByCostAndByDifference) {
    Population population;
    population.add(individual(4, {{0, {1, 2, 3, 4}}}, 1));
    population.add(individual(4, {{0, {1, 2, 4, 3}}}, 2));
    population.add(individual(4, {{0, {3, 1, 4, 2}}}, 3));
    // of three all are of the best, so that the cost alone counts
    EXPECT_EQ(population.fitness(0), 0);
    EXPECT_EQ(population.fitness(1), .5);
    EXPECT_EQ(population.fitness(2), 1);
    for (int i = 0; i < 5; ++i) population.add(individual(4, {{0, {1, 2, 3, 4}}}, 4 + i));
    // of eight half a rank by difference: the third stands apart, the clones don't
    EXPECT_LT(population.fitness(2), population.fitness(3));
    EXPECT_NEAR(population.fitness(2), 2 / 7.0, 1E-12);
}

TEST(Population, PutsItsMembersInOrderAnewWhenPenaltiesChange) {
    Population population;
    RouteValue cheap{.cost = 1, .load = 2, .penalised = 1};
    RouteValue dear{.cost = 5, .penalised = 5};
    population.add(std::make_unique<Individual>(1, Solution{{0, {1}}}, cheap, 0));
    population.add(std::make_unique<Individual>(1, Solution{{0, {1}}}, dear, 0));
    EXPECT_EQ(population.member(0).total.cost, 1);
    population.price({10, 0, 0, 0, 0});
    EXPECT_EQ(population.member(0).total.cost, 5);
    EXPECT_EQ(population.member(1).cost, 21);
}

} // namespace
} // namespace vantore::optmzr::tests
