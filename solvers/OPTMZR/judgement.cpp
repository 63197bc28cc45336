#include "solvers/OPTMZR/judgement.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

#include "shell/base/arithmetic.h"
#include "solvers/OPTMZR/timing.h"

namespace vantore::optmzr {

using router::PlannedRoute;
using router::Problem;
using router::SimulatedRoute;
using router::Travel;
using router::Visit;

namespace {

constexpr double roundingError = 1E-12; // of a figure

/// Counts a limit that is exceeded.
void hold(Judgement& judgement, double value, double limit, double unit) {
    if (value <= limit) return;
    ++judgement.violations;
    judgement.excess += (value - limit) / (unit > 0 ? unit : 1);
}

/// Loads in any order of summing: what exceeds a capacity by rounding alone doesn't exceed it.
double withoutRounding(double load) {
    constexpr double roundingOfSums = 1E-13;
    return load - roundingOfSums * std::abs(load);
}

void holdLoads(const Problem& problem, const PlannedRoute& planned, const SimulatedRoute& route,
               Judgement& judgement) {
    const router::Vehicle& vehicle = problem.vehicles(planned.vehicle);
    double weight = route.deliveredWeight;
    double cube = route.deliveredCube;
    for (const Visit& visit : route.visits) {
        weight = std::max(weight, withoutRounding(visit.weightOnBoard));
        cube = std::max(cube, withoutRounding(visit.cubeOnBoard));
    }
    hold(judgement, weight, vehicle.weightCapacity, vehicle.weightCapacity);
    hold(judgement, cube, vehicle.cubeCapacity, vehicle.cubeCapacity);
}

/// Nothing may be picked up while what is still to be delivered takes too much of the vehicle.
void holdPickups(const Problem& problem, const PlannedRoute& planned, const SimulatedRoute& route,
                 Judgement& judgement) {
    if (problem.pickupPercent >= 100) return;
    const router::Vehicle& vehicle = problem.vehicles(planned.vehicle);
    const double share = problem.pickupPercent / 100;
    double weight = route.deliveredWeight;
    double cube = route.deliveredCube;
    for (const int number : planned.stops) {
        const router::Stop& stop = problem.stops(number);
        if (stop.type == router::delivery) {
            weight -= stop.weight;
            cube -= stop.cube;
            continue;
        }
        // What the sums' rounding leaves on board is nothing.
        hold(judgement, weight - roundingError * route.deliveredWeight, share * vehicle.weightCapacity,
             vehicle.weightCapacity);
        hold(judgement, cube - roundingError * route.deliveredCube, share * vehicle.cubeCapacity,
             vehicle.cubeCapacity);
    }
}

/// Minutes from an arrival to the nearest time at which the stop is open.
double minutesOutside(const router::Stop& stop, double arrival) {
    const OpeningHours open(stop);
    if (open.neverOpen()) return router::minutesPerHour;
    double least = std::abs(arrival - open.windows().front().begin);
    for (const Window& window : open.windows())
        least = std::min({least, std::abs(arrival - window.begin), std::abs(arrival - window.end)});
    return least;
}

void holdTimes(const Problem& problem, const SimulatedRoute& route, Judgement& judgement) {
    for (const Visit& visit : route.visits) {
        if (visit.isInWindow) continue;
        ++judgement.violations;
        judgement.excess += minutesOutside(problem.stops(visit.stop), visit.arrival) / router::minutesPerHour;
    }
    hold(judgement, problem.earliestStart, route.start, router::minutesPerHour);
    hold(judgement, route.returned, problem.latestReturn, router::minutesPerHour);
    hold(judgement, route.totalTime(), problem.maxTime, 1);
    hold(judgement, route.distance, problem.maxDistance, problem.maxDistance);
}

/// A route as the clock sees it.
class Timed {
  public:
    Timed(const Problem& problem, const Travel& travel, const PlannedRoute& route) {
        double after = 0;
        int before = router::depotNumber;
        for (const int number : route.stops) {
            const router::Stop& stop = problem.stops(number);
            after += router::minutesPerHour * Travel::hours(travel.leg(before, number));
            arrivals_.push_back(after);
            hours_.emplace_back(stop);
            after += router::stopMinutes(problem, stop);
            before = number;
        }
        arrivals_.push_back(after +
                            router::minutesPerHour * Travel::hours(travel.leg(before, router::depotNumber)));
        for (const OpeningHours& open : hours_) open_.push_back(&open);
        clock_ = {problem.earliestStart, problem.latestReturn, {}};
        for (const router::Break& pause : problem.breaks.span())
            if (pause.duration != 0) clock_.breaks.push_back(pause);
    }

    /// Starts of which one is the best, the one to be preferred first.
    std::vector<double> candidates() const {
        const TimedRoute route{arrivals_, open_};
        const Timing best = bestTiming(clock_, route);
        const double end = std::min(best.latestStart, best.start + longestDay);
        std::vector<double> starts{best.start, (best.start + end) / 2, end};
        const double wholeMinute = std::ceil(best.start);
        if (wholeMinute <= end) starts.insert(starts.begin(), wholeMinute);
        if (best.excess() == 0) return withNeighbours(starts);
        for (const double start : decisiveStarts(clock_, route)) starts.push_back(start);
        return withNeighbours(starts);
    }

  private:
    static constexpr double longestDay = 1E+05; // minutes

    /// A start that meets a bound may miss it by rounding.
    static std::vector<double> withNeighbours(const std::vector<double>& starts) {
        constexpr double little = 1E-09;
        std::vector<double> result = starts;
        for (const double start : starts) {
            result.push_back(start + little);
            result.push_back(start - little);
        }
        return result;
    }

    std::vector<double> arrivals_;
    std::vector<OpeningHours> hours_;
    std::vector<const OpeningHours*> open_;
    Clock clock_;
};

} // namespace

Judgement& Judgement::operator+=(const Judgement& other) {
    violations += other.violations;
    excess += other.excess;
    cost += other.cost;
    return *this;
}

bool isBetter(const Judgement& a, const Judgement& b) {
    constexpr double least = 1E-10; // of the figure, that a difference must be to count
    if (a.violations != b.violations) return a.violations < b.violations;
    if (std::abs(a.excess - b.excess) > least * (1 + std::abs(b.excess))) return a.excess < b.excess;
    return a.cost < b.cost - least * std::abs(b.cost);
}

Judgement judged(const Problem& problem, const Travel& travel, const PlannedRoute& route) {
    const SimulatedRoute simulated = router::simulate(problem, travel, route);
    Judgement judgement{.cost = simulated.costs.total};
    holdLoads(problem, route, simulated, judgement);
    holdPickups(problem, route, simulated, judgement);
    holdTimes(problem, simulated, judgement);
    return judgement;
}

Judgement judged(const Problem& problem, const Travel& travel, const router::Plan& plan) {
    Judgement judgement;
    std::vector<int> used(static_cast<std::size_t>(problem.vehicles.count()) + 1);
    for (int r = 1; r <= plan.routeCount; ++r) {
        const PlannedRoute& route = plan.routes(r);
        judgement += judged(problem, travel, route);
        ++used[static_cast<std::size_t>(route.vehicle)];
    }
    for (int row = 1; row <= problem.vehicles.count(); ++row) {
        const int available = static_cast<int>(std::clamp(problem.vehicles(row).number, 0.0, 1E+06));
        const int missing = std::max(0, used[static_cast<std::size_t>(row)] - available);
        judgement.violations += missing;
        judgement.excess += missing;
    }
    return judgement;
}

double bestStart(const Problem& problem, const Travel& travel, PlannedRoute route) {
    const std::vector<double> starts = Timed(problem, travel, route).candidates();
    double best = starts.front();
    std::optional<Judgement> least;
    for (const double start : starts) {
        route.start = start;
        const Judgement judgement = judged(problem, travel, route);
        if (least && !isBetter(judgement, *least)) continue;
        least = judgement;
        best = start;
    }
    return best;
}

bool isWhole(const Problem& problem, const router::Plan& plan) {
    std::vector<int> visits(static_cast<std::size_t>(problem.stops.count()) + 1);
    for (int r = 1; r <= plan.routeCount; ++r) {
        const PlannedRoute& route = plan.routes(r);
        if (route.stops.empty() || route.vehicle < 1 || route.vehicle > problem.vehicles.count())
            return false;
        for (const int stop : route.stops) {
            if (stop < 1 || stop > problem.stops.count()) return false;
            ++visits[static_cast<std::size_t>(stop)];
        }
    }
    return std::all_of(visits.begin() + 1, visits.end(), [](int count) { return count == 1; });
}

} // namespace vantore::optmzr
