#include "tests/location/PMED/problems.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <vector>

namespace vantore::pmed::tests {

namespace {

double between(std::mt19937& random, double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
}

int upTo(std::mt19937& random, int most) {
    return 1 + static_cast<int>(random() % static_cast<unsigned>(most));
}

Site randomSite(std::mt19937& random, Units units) {
    Site site;
    const auto small = [&] { return static_cast<double>(random() % 4); };
    switch (units) {
    case Units::Everyday:
        site.volume = std::round(between(random, 0, 9000));
        site.rate = std::round(between(random, 0, 200)) / 1000;
        site.fixedCost = std::round(between(random, 0, 40000));
        break;
    case Units::Large:
        site.volume = between(random, 1E8, 999999999);
        site.rate = between(random, 1E4, 99999);
        site.fixedCost = between(random, -1E15, 1E17);
        break;
    case Units::Tiny:
        site.volume = between(random, 0, 1E-6);
        site.rate = between(random, 0, 1E-8);
        site.fixedCost = between(random, 0, 1E-12);
        break;
    case Units::Mixed:
        site.volume = between(random, 0, .01);
        site.rate = between(random, 0, .01);
        site.fixedCost = 1E15;
        break;
    case Units::WholeGrid:
        site.volume = small();
        site.rate = small();
        site.fixedCost = small();
        break;
    }
    return site;
}

void placeSite(std::mt19937& random, Units units, Coordinates coordinates, Site& site) {
    if (coordinates == Coordinates::Degrees) {
        site.x = std::round(between(random, 6600, 12500)) / 100;
        site.y = std::round(between(random, 2500, 4900)) / 100;
    } else if (units == Units::WholeGrid) {
        site.x = static_cast<double>(random() % 5);
        site.y = static_cast<double>(random() % 5);
    } else {
        site.x = between(random, 0, 99999);
        site.y = between(random, 0, 99999);
    }
}

void markCandidates(std::mt19937& random, Problem& problem, int count) {
    std::vector<int> numbers(static_cast<std::size_t>(problem.rowCount));
    std::iota(numbers.begin(), numbers.end(), 1);
    std::shuffle(numbers.begin(), numbers.end(), random);
    for (int i = 0; i < count; ++i) problem.sites(numbers[static_cast<std::size_t>(i)]).candidate = true;
}

} // namespace

SolverInput randomInput(std::mt19937& random, Units units, int mostPoints, int mostCandidates) {
    SolverInput input;
    Problem& problem = input.problem;
    problem.label = "Random";
    problem.coordinates = random() % 3 == 0 ? Coordinates::Degrees : Coordinates::Linear;
    const bool whole = units == Units::WholeGrid;
    problem.hScale = whole ? 1 : between(random, .1, 3);
    problem.vScale = whole ? 1 : between(random, 1, 3);
    problem.rowCount = upTo(random, mostPoints);
    for (int i = 1; i <= problem.rowCount; ++i) {
        problem.sites(i) = randomSite(random, units);
        problem.sites(i).label = "Point " + std::to_string(i) + " of the region";
        placeSite(random, units, problem.coordinates, problem.sites(i));
    }
    const int candidates = upTo(random, std::min(problem.rowCount, mostCandidates));
    markCandidates(random, problem, candidates);
    input.sitesToLocate = upTo(random, candidates);
    return input;
}

} // namespace vantore::pmed::tests
