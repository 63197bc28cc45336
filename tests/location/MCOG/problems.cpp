#include "tests/location/MCOG/problems.h"

#include <algorithm>
#include <cmath>

namespace vantore::mcog::tests {

namespace {

double between(std::mt19937& random, double least, double most) {
    return std::uniform_real_distribution<double>(least, most)(random);
}

double coordinate(std::mt19937& random, unsigned kind) {
    switch (kind) {
    case 0: return between(random, 0, 99999);
    case 1: return static_cast<double>(random() % 5);
    default:
        return std::clamp(1000.0 * static_cast<double>(random() % 9) + between(random, -90, 90), 0.0,
                          99999.0);
    }
}

} // namespace

Problem randomProblem(std::mt19937& random, int points) {
    Problem problem;
    problem.label = "Random";
    problem.mapFactor = between(random, .01, 20);
    problem.rowCount = points;
    const auto kind = static_cast<unsigned>(random() % 3);
    const bool allRange = random() % 4 == 0;
    for (int i = 1; i <= points; ++i) {
        Point& point = problem.points(i);
        point.x = coordinate(random, kind);
        point.y = coordinate(random, kind);
        point.volume = std::round(allRange ? between(random, 1, 999999999) : between(random, 1, 5000));
        point.rate = allRange ? between(random, .000001, 99999.9999) : between(random, .01, 2);
    }
    return problem;
}

Problem spreadProblem(std::mt19937& random, int points) {
    Problem problem;
    problem.mapFactor = 1;
    problem.rowCount = points;
    for (int i = 1; i <= points; ++i)
        problem.points(i) = {"", between(random, 0, 1000), between(random, 0, 1000),
                             std::round(between(random, 100, 5000)), between(random, .05, .2)};
    return problem;
}

} // namespace vantore::mcog::tests
