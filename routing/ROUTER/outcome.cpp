#include "routing/ROUTER/outcome.h"

#include <algorithm>

namespace vantore::router {

Outcome::Outcome(const Problem& problem, const Plan& plan)
    : problem_(problem), plan_(plan), travel_(problem) {
    for (int r = 1; r <= routeCount(); ++r) {
        if (planned(r).stops.empty()) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
        routes_(r) = simulate(problem, travel_, planned(r));
    }
}

double Outcome::costToServe(int r, int position) const {
    return incrementalCost(problem_, travel_, planned(r), simulated(r), position);
}

int Outcome::barrierWarnings() const {
    int warnings = 0;
    for (int r = 1; r <= routeCount(); ++r) warnings += simulated(r).barriersEnded;
    return warnings;
}

int Outcome::missedWindows() const {
    int missed = 0;
    for (int r = 1; r <= routeCount(); ++r)
        missed += static_cast<int>(std::ranges::count(simulated(r).visits, false, &Visit::isInWindow));
    return missed;
}

int barrierWarnings(const Problem& problem, const Plan& plan) {
    if (problem.barriers.count() == 0) return 0;
    const Travel travel(problem);
    int warnings = 0;
    for (int r = 1; r <= plan.routeCount; ++r) {
        int from = depotNumber;
        for (const int stop : plan.routes(r).stops) {
            warnings += travel.leg(from, stop).barriersEnded;
            from = stop;
        }
        warnings += travel.leg(from, depotNumber).barriersEnded;
    }
    return warnings;
}

} // namespace vantore::router
