#include <gtest/gtest.h>

#include <string>

#include "routing/ROUTER/report.h"
#include "tests/routing/ROUTER/plain_router.h"
#include "tests/routing/ROUTER/random_problems.h"

namespace vantore::router::tests {
namespace {

constexpr int problemCount = 1000;

/// Random problems up to the limits, rough at the edges, with plans that serve each stop once.
class RoughProblems {
  public:
    explicit RoughProblems(unsigned seed) : random_(seed) {}

    Problem next() {
        Problem problem = random_.next(random_.from(1, random_.oneIn(4) ? mostStops : 12));
        problem.depotDescription = names(3);
        for (int n = 1; n <= problem.stops.count(); ++n) roughen(problem.stops(n), problem);
        for (int k = 1; k <= problem.vehicles.count(); ++k) problem.vehicles(k).description = names(4);
        if (random_.oneIn(3)) problem.depotZone = random_.from(0, 3);
        if (random_.oneIn(12)) addLimits(problem);
        for (int k = 3; k <= breakCount; ++k)
            if (random_.oneIn(4))
                problem.breaks(k) = {random_.from(1, 180) / 4.0, 1.0 * random_.from(0, 1500)};
        return problem;
    }

    Plan planFor(const Problem& problem) { return random_.plan(problem); }

  private:
    std::string names(int most) {
        static const std::vector<std::string> words = {"Kelling", "Ågård",      "Gmünd",
                                                       "X",       "north-east", "Łódź"};
        std::string name;
        for (int k = random_.from(0, most); k > 0; --k)
            name +=
                words[static_cast<std::size_t>(random_.from(0, static_cast<int>(words.size()) - 1))] + " ";
        return name;
    }

    void roughen(Stop& stop, const Problem& problem) {
        stop.description = names(4);
        if (random_.oneIn(10)) stop.type = "";
        if (random_.oneIn(10)) stop.weight = 0;
        if (random_.oneIn(10)) stop.weight = random_.from(1, 100000) / 8.0;
        if (random_.oneIn(10)) stop.loadTime = -random_.from(1, 30);
        if (random_.oneIn(8)) stop.x = problem.depotX;
        if (random_.oneIn(8)) stop.y = problem.stops(1).y;
        if (random_.oneIn(10)) stop.begin1 = stop.end1 = 0;
    }

    /// As many rows as the tables take.
    void addLimits(Problem& problem) {
        const auto number = [&] { return static_cast<std::int16_t>(random_.from(0, problem.stops.count())); };
        while (problem.distances.count() < mostLegs)
            problem.distances.add({number(), "", number(), "", random_.from(1, 900) / 4.0});
        while (problem.speeds.count() < mostLegs)
            problem.speeds.add({number(), "", number(), "", 1.0 * random_.from(5, 90)});
        while (problem.zoneSpeeds.count() < mostZoneSpeeds)
            problem.zoneSpeeds.add(
                {1.0 * random_.from(0, 60), 1.0 * random_.from(0, 60), 1.0 * random_.from(5, 90)});
        while (problem.barriers.count() < mostBarriers) {
            const double x = random_.from(2, 90);
            const double y = random_.from(2, 90);
            problem.barriers.add({x, y + random_.from(0, 6), x + random_.from(0, 9), y + random_.from(0, 6),
                                  x - 1.0 * random_.from(0, 1), y - random_.from(0, 3),
                                  x + random_.from(0, 9), y - random_.from(0, 3)});
        }
    }

    RandomProblems random_;
};

std::vector<std::string> moduleReport(const Outcome& outcome) {
    return reportPage(outcome, {"A label that is a good deal longer than fifty characters allow",
                                {"01-02-2026", "12:00:00"}})
        .lines();
}

TEST(Yardstick, AgreesOnAThousandRandomProblems) {
    RoughProblems problems(20261121);
    int routes = 0;
    for (int k = 1; k <= problemCount; ++k) {
        const Problem problem = problems.next();
        const Plan plan = problems.planFor(problem);
        const Outcome outcome(problem, plan);
        const PlainReport plain =
            plainReport(problem, plan, "A label that is a good deal longer than fifty characters allow",
                        "01-02-2026", "12:00:00");
        ASSERT_EQ(moduleReport(outcome), plain.lines) << "problem " << k;
        ASSERT_EQ(outcome.barrierWarnings(), plain.barrierWarnings) << "problem " << k;
        ASSERT_EQ(barrierWarnings(problem, plan), plain.barrierWarnings) << "problem " << k;
        ASSERT_EQ(outcome.missedWindows(), plain.missedWindows) << "problem " << k;
        routes += plan.routeCount;
    }
    EXPECT_GT(routes, 2 * problemCount);
}

} // namespace
} // namespace vantore::router::tests
