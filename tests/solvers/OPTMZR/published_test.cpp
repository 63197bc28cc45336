#include <gtest/gtest.h>

#include <cstdlib>

#include "bench/mixed_problems.h"
#include "tests/solvers/OPTMZR/found.h"

namespace vantore::optmzr::tests {
namespace {

/// How many mixed problems are tried; a longer run, of larger ones too, sets OPTMZR_MIXED_PROBLEMS.
int mixedProblems(int usually) {
    const char* wanted = std::getenv("OPTMZR_MIXED_PROBLEMS");
    return wanted == nullptr ? usually : std::atoi(wanted);
}

TEST(Search, IsNeverDearerThanThePlanThatAProblemWasBuiltAround) {
    constexpr int usually = 8;
    const int wanted = mixedProblems(usually);
    for (int seed = 1; seed <= wanted; ++seed) {
        bench::MixedProblems source(static_cast<unsigned>(seed));
        const bench::MixedProblem mixed = source.make(8 + (wanted > usually ? seed * 53 / wanted : seed));
        const Judgement built = judged(mixed.problem, router::Travel(mixed.problem), mixed.plan);
        ASSERT_EQ(built.violations, 0) << mixed.features;
        const Judgement judgement = found(mixed.problem).judgement;
        EXPECT_EQ(judgement.violations, 0) << mixed.features;
        EXPECT_LE(judgement.cost, built.cost * (1 + 1E-09)) << mixed.features;
    }
}

/// P-n16-k8 of Augerat et al. (1995): the best known cost with plain distances is 451.3351.
TEST(Search, FindsThePublishedPlan) {
    constexpr double places[][3] = {{37, 52, 19}, {49, 49, 30}, {52, 64, 16}, {31, 62, 23}, {52, 33, 11},
                                    {42, 41, 31}, {52, 41, 15}, {57, 58, 28}, {62, 42, 8},  {42, 57, 8},
                                    {27, 68, 7},  {43, 67, 14}, {58, 48, 6},  {58, 27, 19}, {37, 69, 11}};
    router::Problem problem;
    problem.depotX = 30;
    problem.depotY = 40;
    for (const auto& place : places) {
        router::Stop stop;
        stop.type = router::delivery;
        stop.x = place[0];
        stop.y = place[1];
        stop.weight = place[2];
        stop.end1 = stop.begin2 = stop.end2 = 9999;
        problem.stops.add(stop);
    }
    router::Vehicle vehicle;
    vehicle.number = 8;
    vehicle.weightCapacity = 35;
    vehicle.cubeCapacity = 1;
    vehicle.costPerMile = 1;
    problem.vehicles.add(vehicle);
    const Judgement judgement = found(problem).judgement;
    EXPECT_EQ(judgement.violations, 0);
    EXPECT_NEAR(judgement.cost, 451.3351, .00005);
}

} // namespace
} // namespace vantore::optmzr::tests
