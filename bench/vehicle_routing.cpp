// What OPTMZR.EXE finds, beside the best that is known:
//
//     bench_vehicle_routing [PROBLEMS [INSTANCE...]]
//
// Of published instances (the answers are in the folder of the instances) the best known cost, with plain
// and, where the legs can be specified, with rounded distances; of PROBLEMS mixed ones (usually 60) the plan
// that each was built around, and the savings construction with the local search. Times are the
// processor's, of the search alone.

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "bench/mixed_problems.h"
#include "solvers/OPTMZR/judgement.h"
#include "solvers/OPTMZR/local_search.h"
#include "solvers/OPTMZR/plan_builder.h"
#include "solvers/OPTMZR/savings.h"
#include "solvers/OPTMZR/search.h"

namespace {

using namespace vantore;
using namespace vantore::router;
using optmzr::Judgement;

struct Result {
    Judgement judgement;
    double seconds = 0;
};

Result searched(const Problem& problem) {
    const std::clock_t start = std::clock();
    Plan best;
    optmzr::search(problem, [&best](const Plan& plan) { best = plan; });
    const std::clock_t used = std::clock() - start;
    return {optmzr::judged(problem, Travel(problem), best), static_cast<double>(used) / CLOCKS_PER_SEC};
}

Judgement bySavings(const Problem& problem) {
    const Travel travel(problem);
    const optmzr::Instance instance(problem, travel);
    constexpr optmzr::Penalties high{1000, 1000, 1000, 1000, 1000};
    optmzr::Solution solution = optmzr::savings(instance, high);
    optmzr::Dice dice(1);
    optmzr::LocalSearch(instance).improve(solution, high, dice);
    return optmzr::judged(problem, travel, optmzr::planOf(problem, travel, instance, solution));
}

/// A published instance: a place a line, the first one the depot's.
struct Published {
    double capacity = 0;
    std::vector<Stop> places;
};

Published readInstance(const std::filesystem::path& path) {
    std::ifstream file(path);
    Published instance;
    std::string section;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string first, colon;
        words >> first;
        int number = 0;
        if (std::istringstream(first) >> number && number > 0 && section == "NODE_COORD_SECTION") {
            Stop& place = instance.places.emplace_back();
            words >> place.x >> place.y;
        } else if (number > 0 && section == "DEMAND_SECTION") {
            words >> instance.places.at(static_cast<std::size_t>(number - 1)).weight;
        } else {
            section = first;
            if (first == "CAPACITY") words >> colon >> instance.capacity;
        }
    }
    return instance;
}

/// One type of vehicle, a cost of 1 a mile and nothing else.
Problem problemOf(const Published& instance, int vehicles) {
    Problem problem;
    problem.depotX = instance.places.front().x;
    problem.depotY = instance.places.front().y;
    problem.maxTime = problem.maxDistance = problem.overtimeAfter = problem.latestReturn = 1E+06;
    for (std::size_t i = 1; i < instance.places.size(); ++i) {
        Stop stop = instance.places[i];
        stop.type = delivery;
        stop.end1 = stop.begin2 = stop.end2 = 1E+06;
        problem.stops.add(stop);
    }
    Vehicle vehicle;
    vehicle.number = vehicles;
    vehicle.weightCapacity = instance.capacity;
    vehicle.cubeCapacity = 1;
    vehicle.costPerMile = 1;
    problem.vehicles.add(vehicle);
    return problem;
}

/// The same with all distances rounded; false when they are more than can be specified.
bool roundDistances(Problem& problem, const Published& instance) {
    const auto count = static_cast<int>(instance.places.size());
    if (count * (count - 1) / 2 > mostLegs) return false;
    for (int a = 0; a < count; ++a) {
        for (int b = a + 1; b < count; ++b) {
            const Stop& from = instance.places[static_cast<std::size_t>(a)];
            const Stop& to = instance.places[static_cast<std::size_t>(b)];
            problem.distances.add({static_cast<std::int16_t>(a), "", static_cast<std::int16_t>(b), "",
                                   std::round(std::hypot(from.x - to.x, from.y - to.y))});
        }
    }
    return true;
}

double showPublished(const std::string& name, double best, const Problem& problem) {
    const Result result = searched(problem);
    const double gap = 100 * (result.judgement.cost / best - 1);
    std::printf("%-18s %12.4f %12.4f %8.3f%% %8.2f%s\n", name.c_str(), best, result.judgement.cost, gap,
                result.seconds, result.judgement.violations > 0 ? "  beyond its limits" : "");
    std::fflush(stdout);
    return gap;
}

void comparePublished(const std::filesystem::path& folder, const std::vector<std::string>& wanted) {
    std::printf("%-18s %12s %12s %9s %8s\n", "instance", "best known", "found", "gap", "time, s");
    std::ifstream answers(folder / "answers.csv");
    std::string line;
    std::getline(answers, line); // the heading
    double sum = 0;
    int count = 0;
    while (std::getline(answers, line)) {
        for (char& c : line) c = c == ',' ? ' ' : c;
        std::istringstream words(line);
        std::string name;
        double rounded = 0, plain = 0;
        int vehicles = 0;
        if (!(words >> name >> rounded >> plain >> vehicles)) continue;
        if (!wanted.empty() && std::find(wanted.begin(), wanted.end(), name) == wanted.end()) continue;
        const Published instance = readInstance(folder / (name + ".vrp"));
        Problem problem = problemOf(instance, vehicles);
        sum += showPublished(name, plain, problem);
        ++count;
        if (!roundDistances(problem, instance)) continue;
        sum += showPublished(name + ", rounded", rounded, problem);
        ++count;
    }
    if (count > 0) std::printf("%-18s %35.3f%%\n\n", "average", sum / count);
}

void compareMixed(int problems) {
    std::printf("%-5s %5s %-9s %10s %10s %10s %9s %8s\n", "seed", "stops", "features", "built", "savings",
                "found", "saving", "time, s");
    double sum = 0;
    int counted = 0;
    for (int seed = 1; seed <= problems; ++seed) {
        bench::MixedProblems source(static_cast<unsigned>(seed));
        const int stops = 8 + (seed * 53) / problems;
        const bench::MixedProblem mixed = source.make(stops);
        const Judgement built = optmzr::judged(mixed.problem, Travel(mixed.problem), mixed.plan);
        const Judgement plain = bySavings(mixed.problem);
        const Result result = searched(mixed.problem);
        const bool isWorse = result.judgement.violations > built.violations ||
                             result.judgement.cost > built.cost * (1 + 1E-09);
        const double saving = 100 * (1 - result.judgement.cost / plain.cost);
        std::printf("%-5d %5d %-9s %10.2f %10.2f%c %10.2f %8.2f%% %8.2f%s\n", seed, stops,
                    mixed.features.c_str(), built.cost, plain.cost, plain.violations > 0 ? 'v' : ' ',
                    result.judgement.cost, saving, result.seconds, isWorse ? "  WORSE THAN BUILT" : "");
        std::fflush(stdout);
        if (plain.violations > 0) continue;
        sum += saving;
        ++counted;
    }
    if (counted > 0)
        std::printf("average saving over the savings construction, where it keeps the limits (%d): %.2f%%\n",
                    counted, sum / counted);
}

} // namespace

int main(int argc, char** argv) {
    try {
        const std::vector<std::string> arguments(argv + 1, argv + argc);
        const int problems = arguments.empty() ? 60 : std::atoi(arguments.front().c_str());
        const std::vector<std::string> wanted(arguments.begin() + (arguments.empty() ? 0 : 1),
                                              arguments.end());
        comparePublished(VANTORE_SOURCE_FOLDER "/tests/data/cvrp", wanted);
        compareMixed(problems);
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
