// How many times a second the cost of a plan is known: 61 stops on routes of six, 25 barriers, 1000 specified
// distances and speeds. The legs are computed once per problem, which is timed by itself.

#include <benchmark/benchmark.h>

#include <random>

#include "routing/ROUTER/simulation.h"

namespace {

using namespace vantore::router;

int from(std::mt19937& random, int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
}

Problem largestProblem() {
    std::mt19937 random(61);
    Problem problem;
    problem.breaks(1) = {20, 600};
    Vehicle& van = problem.vehicles.add({});
    van.number = 20;
    van.weightCapacity = 900;
    van.fixedCost = 40;
    van.costPerMile = .5;
    for (int i = 1; i <= mostStops; ++i) {
        Stop stop;
        stop.type = delivery;
        stop.weight = from(random, 10, 200);
        stop.x = from(random, 0, 1000);
        stop.y = from(random, 0, 1000);
        stop.end1 = stop.begin2 = 1000;
        stop.end2 = 9999;
        problem.stops.add(stop);
    }
    for (int k = 0; k < mostBarriers; ++k) {
        const double x = from(random, 0, 900) + .5;
        const double y = from(random, 0, 900) + .5;
        problem.barriers.add({x, y + 20, x + 60, y + 25, x, y, x + 60, y});
    }
    for (int k = 0; k < mostLegs; ++k) {
        const auto stop = [&] { return static_cast<std::int16_t>(from(random, 0, mostStops)); };
        problem.distances.add({stop(), "", stop(), "", static_cast<double>(from(random, 50, 900))});
        problem.speeds.add({stop(), "", stop(), "", static_cast<double>(from(random, 20, 70))});
    }
    return problem;
}

void computeLegs(benchmark::State& state) {
    const Problem problem = largestProblem();
    for (auto _ : state) benchmark::DoNotOptimize(Travel(problem));
}
BENCHMARK(computeLegs)->Unit(benchmark::kMillisecond);

void costOfAPlan(benchmark::State& state) {
    const Problem problem = largestProblem();
    const Travel travel(problem);
    std::vector<PlannedRoute> routes;
    for (int stop = 1; stop <= mostStops; ++stop) {
        if (stop % 6 == 1) {
            routes.emplace_back();
            routes.back().vehicle = 1;
            routes.back().start = 480;
        }
        routes.back().stops.push_back(stop);
    }
    for (auto _ : state) {
        double cost = 0;
        for (const PlannedRoute& route : routes) cost += simulate(problem, travel, route).costs.total;
        benchmark::DoNotOptimize(cost);
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(costOfAPlan)->Unit(benchmark::kMicrosecond);

} // namespace
