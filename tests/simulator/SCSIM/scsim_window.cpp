#include "tests/simulator/SCSIM/scsim_window.h"

#include "shell/base/text.h"

namespace vantore::tests {

using namespace scsim;

Problem kettles() {
    Problem problem;
    problem.title = "Kettles";
    problem.seed = 4711;
    problem.years = 2;
    problem.averageDemand = 100;
    problem.demandDeviation = 20;
    problem.price = 30;
    for (int month = 1; month <= monthsPerYear; ++month) problem.seasonalIndices(month) = 1;
    problem.dayProfile.fill(90);
    for (const Level level : allLevels) {
        LevelData& data = problem.levels(level);
        data = {10, 1, 40, 20, 1, 0, 95, 2};
        data.smoothingConstant = .2;
        data.averagedDays = 10;
        data.forecastFrequency = 180;
        data.reorderParameters = Parameters::Specified;
        data.reorderQuantity = 600;
        data.reorderPoint = 700;
        data.orderInterval = 7;
        data.targetLevel = 2000;
        data.targetDays = 14;
        data.reviewTime = 5;
        problem.lanes(level) = {.5, 2, 0};
    }
    problem.factory = {4, 300, .2, 2, 0, 1};
    return problem;
}

std::string fileOf(const Problem& problem) {
    ItemWriter writer;
    write(problem, writer);
    return writer.text();
}

std::vector<std::string> traceOf(const ModuleSession& session) {
    return lines(session.readFile("RESULTS"));
}

} // namespace vantore::tests
