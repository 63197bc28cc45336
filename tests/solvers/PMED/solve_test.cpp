#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "solvers/PMED/solve.h"
#include "solvers/great_circle.h"
#include "tests/location/PMED/problems.h"
#include "tests/solvers/PMED/plain_enumeration.h"
#include "tests/support/error_of.h"

namespace vantore::pmed {
namespace {

using tests::Units;
using vantore::tests::errorOf;

SolverInput inputOf(int sitesToLocate, std::initializer_list<Site> sites) {
    SolverInput input;
    input.problem.hScale = input.problem.vScale = 1;
    for (const Site& site : sites) input.problem.sites(++input.problem.rowCount) = site;
    input.sitesToLocate = sitesToLocate;
    return input;
}

Site site(double x, double y, double volume, double fixedCost, bool candidate = true) {
    Site result;
    result.x = x;
    result.y = y;
    result.volume = volume;
    result.rate = 1;
    result.fixedCost = fixedCost;
    result.candidate = candidate;
    return result;
}

std::vector<int> servedBy(const SolverInput& input, const Assignment& assignment) {
    std::vector<int> served;
    for (int i = 1; i <= input.problem.rowCount; ++i) served.push_back(assignment.servedBy(i));
    return served;
}

TEST(PmedSolver, WeighsTransportAgainstFixedCosts) {
    // One site: 10 from the first, 30 from the second, 20 from the third.
    SolverInput input = inputOf(1, {site(0, 0, 3, 0), site(10, 0, 1, 0)});
    EXPECT_EQ(solve(input).totalCost, 10);
    EXPECT_EQ(servedBy(input, solve(input)), (std::vector<int>{1, 1}));
    input.problem.sites(1).fixedCost = 21;
    EXPECT_EQ(solve(input).totalCost, 30);
    EXPECT_EQ(servedBy(input, solve(input)), (std::vector<int>{2, 2}));
}

TEST(PmedSolver, LocatesAsManySitesAsItIsToldWhateverTheyCost) {
    const SolverInput input = inputOf(2, {site(0, 0, 3, 1000), site(10, 0, 1, 1000)});
    EXPECT_EQ(solve(input).totalCost, 2000);
}

TEST(PmedSolver, ServesFromTheLowestOfEquallyNearSites) {
    const SolverInput input = inputOf(2, {site(5, 0, 1, 0, false), site(10, 0, 9, 0), site(0, 0, 9, 0)});
    EXPECT_EQ(servedBy(input, solve(input)), (std::vector<int>{2, 2, 3}));
}

TEST(PmedSolver, TakesTheFirstOfChoicesThatCostTheSame) {
    const SolverInput input =
        inputOf(1, {site(0, 0, 1, 0), site(0, 10, 1, 0), site(10, 0, 1, 0), site(10, 10, 1, 0)});
    EXPECT_EQ(solve(input).servedBy(1), 1);
}

TEST(PmedSolver, ScalesEachAxisByItsFactor) {
    SolverInput input = inputOf(1, {site(0, 0, 1, 0), site(3, 2, 0, 1, false)});
    input.problem.sites(2).volume = 1;
    input.problem.hScale = 4;
    input.problem.vScale = -2.5;
    EXPECT_EQ(solve(input).totalCost, 13); // 12 across, 5 up
}

TEST(PmedSolver, MeasuresDegreesAlongGreatCircles) {
    SolverInput input = inputOf(1, {site(100, 0, 1, 0), site(10, 0, 1, 0, false)});
    input.problem.coordinates = Coordinates::Degrees;
    input.problem.hScale = 99; // of no account
    input.problem.vScale = 1.5;
    // A quarter of the equator.
    EXPECT_NEAR(solve(input).totalCost, 1.5 * 3958.8 * std::acos(-1.0) / 2, 1E-9);
}

TEST(GreatCircle, HoldsForPlacesOppositeAndForLatitudesThatAreNone) {
    constexpr double pi = 3.14159265358979323846;
    EXPECT_NEAR(greatCircleMiles({0, 0}, {0, 180}), 3958.8 * pi, 1E-9);
    EXPECT_NEAR(greatCircleMiles({90, 7}, {-90, 70}), 3958.8 * pi, 1E-9);
    EXPECT_EQ(greatCircleMiles({41.25, 95.9}, {41.25, 95.9}), 0);
    // From 60 degrees over the pole to the other side: 120 degrees is another name of that place.
    EXPECT_NEAR(greatCircleMiles({120, 0}, {60, 180}), 0, 1E-4);
    for (int i = 0; i < 2000; ++i)
        EXPECT_TRUE(std::isfinite(greatCircleMiles({i * 49.9, i * 13.7}, {i * 7.3, i * 51.1})));
}

TEST(PmedSolver, LetsASmallDifferenceBetweenLargeCostsDecide) {
    // The fixed costs are the same but for the sum of transport, lost in 16 digits.
    SolverInput input = inputOf(1, {site(0, 0, .001, 1E17), site(1, 0, .003, 1E17)});
    EXPECT_EQ(solve(input).servedBy(1), 2);
}

TEST(PmedSolver, OverflowsRatherThanGiveWhatIsNoCost) {
    SolverInput input = inputOf(1, {site(0, 0, 1, 0), site(1E5, 0, 1E9, 0, false)});
    input.problem.hScale = 1E300;
    EXPECT_EQ(errorOf([&] { solve(input); }), ErrorNumber::Overflow);
    input.problem.hScale = 1E308;
    EXPECT_EQ(errorOf([&] { solve(input); }), ErrorNumber::Overflow);
}

TEST(PmedSolver, SolvesTheLargestProblem) {
    std::mt19937 random(15);
    SolverInput input = tests::randomInput(random, Units::Everyday, 65, 15);
    while (input.problem.rowCount < 65) {
        const int next = ++input.problem.rowCount;
        input.problem.sites(next) = site(next * 7 % 90, next * 13 % 70, 10, 100, false);
    }
    for (int i = 1; i <= 65; ++i) input.problem.sites(i).candidate = i <= 15;
    input.sitesToLocate = 7;
    const Assignment assignment = solve(input);
    EXPECT_NEAR(assignment.totalCost, static_cast<double>(tests::leastCost(input).total()),
                1E-12 * assignment.totalCost);
}

/// How many random problems; a longer run takes the count from the environment.
int problemCount() {
    const char* count = std::getenv("PMED_RANDOM_PROBLEMS");
    return count != nullptr ? std::atoi(count) : 3000;
}

/// The assignment holds: each point is served by the nearest of as many candidates as are to be located, and
/// costs what the plain program finds.
void expectBest(const SolverInput& input, const Assignment& assignment) {
    const Problem& problem = input.problem;
    std::set<int> sites;
    for (int i = 1; i <= problem.rowCount; ++i) {
        sites.insert(assignment.servedBy(i));
        ASSERT_TRUE(problem.sites(assignment.servedBy(i)).candidate);
    }
    ASSERT_LE(static_cast<double>(sites.size()), input.sitesToLocate);
    for (int i = 1; i <= problem.rowCount; ++i)
        for (const int other : sites)
            ASSERT_LE(tests::plainDistance(problem, i, assignment.servedBy(i)),
                      tests::plainDistance(problem, i, other) * (1 + 1E-12L) + 1E-9L);
    const tests::PlainCost least = tests::leastCost(input);
    const long double slack = 1E-12L * std::abs(least.transport);
    ASSERT_LE(std::abs(static_cast<long double>(assignment.totalCost) - least.total()),
              slack + 1E-14L * std::abs(least.total()));
    // What the sites themselves cost, where all of them serve a point.
    if (static_cast<double>(sites.size()) < input.sitesToLocate) return;
    const tests::PlainCost ours = tests::plainCost(problem, {sites.begin(), sites.end()});
    ASSERT_LE(ours.total() - least.total(), slack + 1E-18L * std::abs(least.fixed));
}

TEST(PmedSolver, FindsTheLeastCostOfThousandsOfRandomProblemsOfEveryUnitAndSize) {
    std::mt19937 random(20261121);
    for (int trial = 0; trial < problemCount(); ++trial) {
        const auto units = static_cast<Units>(trial % tests::unitKinds);
        const bool large = trial % 100 == 0;
        const SolverInput input = tests::randomInput(random, units, large ? 65 : 12, large ? 12 : 7);
        expectBest(input, solve(input));
        if (HasFatalFailure()) FAIL() << "problem " << trial;
    }
}

} // namespace
} // namespace vantore::pmed
