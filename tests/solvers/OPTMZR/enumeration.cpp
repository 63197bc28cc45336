#include "tests/solvers/OPTMZR/enumeration.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <numeric>
#include <utility>
#include <vector>

#include "routing/ROUTER/travel.h"

namespace vantore::optmzr::tests {

using router::Problem;
using router::Stop;

namespace {

constexpr BestOfAll none{std::numeric_limits<int>::max(), 0, 0};

bool better(const BestOfAll& a, const BestOfAll& b) {
    constexpr double least = 1E-10;
    if (a.violations != b.violations) return a.violations < b.violations;
    if (std::abs(a.excess - b.excess) > least * (1 + std::abs(b.excess))) return a.excess < b.excess;
    return a.cost < b.cost - least * std::abs(b.cost);
}

BestOfAll plus(const BestOfAll& a, const BestOfAll& b) {
    return {a.violations + b.violations, a.excess + b.excess, a.cost + b.cost};
}

class Enumeration {
  public:
    explicit Enumeration(const Problem& problem)
        : problem_(problem), n_(problem.stops.count()), rows_(problem.vehicles.count()) {
        const router::Travel travel(problem);
        for (int a = 0; a <= n_; ++a) {
            distance_.emplace_back();
            minutes_.emplace_back();
            for (int b = 0; b <= n_; ++b) {
                distance_.back().push_back(travel.leg(a, b).distance);
                minutes_.back().push_back(60 * travel.leg(a, b).distance / travel.leg(a, b).speed);
            }
        }
        for (int i = 1; i <= n_; ++i) {
            const Stop& stop = problem.stops(i);
            stay_.push_back(stop.loadTime > 0 ? stop.loadTime
                                              : problem.fixedStopTime + stop.weight * problem.timePerWeight +
                                                    stop.cube * problem.timePerCube);
        }
    }

    BestOfAll bestOf(int row, const std::vector<int>& stops) {
        clearSets(1);
        for (const double start : starts(stops)) tryRoute(0, stops, start);
        return routes_[0][std::size_t(row)];
    }

    BestOfAll best() {
        const int all = (1 << n_) - 1;
        clearSets(std::size_t(all) + 1);
        for (int set = 1; set <= all; ++set) tryOrders(set);
        return rest(all, std::vector<int>(static_cast<std::size_t>(rows_ + 1)));
    }

  private:
    void clearSets(std::size_t count) {
        routes_.assign(count, std::vector<BestOfAll>(std::size_t(rows_ + 1), none));
    }

    void tryOrders(int set) {
        std::vector<int> order;
        for (int i = 0; i < n_; ++i)
            if ((set >> i & 1) != 0) order.push_back(i + 1);
        do {
            for (const double start : starts(order)) tryRoute(set, order, start);
        } while (std::next_permutation(order.begin(), order.end()));
    }

    /// Earliest start, and whatever makes an arrival meet a bound of a window or the time of a break, after
    /// any of the breaks.
    std::vector<double> starts(const std::vector<int>& order) const {
        std::vector<double> delays{0};
        std::vector<double> dues;
        for (int k = 1; k <= 4; ++k) {
            const router::Break& pause = problem_.breaks(k);
            if (pause.duration == 0 || pause.beginsAfter >= 9999) continue;
            dues.push_back(pause.beginsAfter);
            for (std::size_t i = delays.size(); i > 0; --i) delays.push_back(delays[i - 1] + pause.duration);
        }
        std::vector<double> result{problem_.earliestStart};
        const auto consider = [&](double start) {
            for (const double shift : {-1E-8, 0.0, 1E-8})
                if (start + shift > problem_.earliestStart && start < problem_.latestReturn)
                    result.push_back(start + shift);
        };
        double after = 0;
        int before = 0;
        for (const int stop : order) {
            after += minutes_[std::size_t(before)][std::size_t(stop)];
            const Stop& s = problem_.stops(stop);
            for (const double delay : delays) {
                for (const double bound : {s.begin1, s.end1, s.begin2, s.end2})
                    consider(bound - after - delay);
                for (const double due : dues) consider(due - after - delay);
            }
            after += stay_[std::size_t(stop - 1)];
            before = stop;
        }
        after += minutes_[std::size_t(before)][0];
        for (const double delay : delays)
            for (const double due : dues) consider(due - after - delay);
        std::sort(result.begin(), result.end());
        result.erase(std::unique(result.begin(), result.end()), result.end());
        return result;
    }

    void tryRoute(int set, const std::vector<int>& order, double start) {
        BestOfAll figures; // but for the loads and the costs
        double clock = start, distance = 0;
        bool taken[4] = {false, false, false, false};
        int before = 0;
        const auto drive = [&](int to) {
            const double leg = minutes_[std::size_t(before)][std::size_t(to)];
            clock += leg;
            distance += distance_[std::size_t(before)][std::size_t(to)];
            for (int k = 0; k < 4; ++k) {
                const double due = problem_.breaks(k + 1).beginsAfter;
                if (taken[k] || (before == 0 ? clock < due : clock <= due)) continue;
                taken[k] = true;
                clock += problem_.breaks(k + 1).duration;
            }
            before = to;
        };
        for (const int stop : order) {
            drive(stop);
            const Stop& s = problem_.stops(stop);
            const bool first = clock >= s.begin1 && clock <= s.end1;
            const bool second = clock >= s.begin2 && clock <= s.end2;
            if (!first && !second) {
                ++figures.violations;
                double miss = std::min(std::abs(clock - s.begin1), std::abs(clock - s.end1));
                miss = std::min({miss, std::abs(clock - s.begin2), std::abs(clock - s.end2)});
                figures.excess += miss / 60;
            }
            clock += stay_[std::size_t(stop - 1)];
        }
        drive(0);
        exceed(figures, clock, problem_.latestReturn, 60);
        exceed(figures, (clock - start) / 60, problem_.maxTime, 1);
        exceed(figures, distance, problem_.maxDistance, problem_.maxDistance);
        for (int row = 1; row <= rows_; ++row) {
            BestOfAll& best = routes_[std::size_t(set)][std::size_t(row)];
            if (figures.violations > best.violations) continue;
            BestOfAll route = figures;
            route.cost = cost(row, distance, clock - start);
            carry(row, order, route);
            if (better(route, best)) best = route;
        }
    }

    static void exceed(BestOfAll& figures, double value, double limit, double unit) {
        if (value <= limit + 1E-12 * std::abs(limit)) return;
        ++figures.violations;
        figures.excess += (value - limit) / unit;
    }

    double cost(int row, double distance, double minutes) const {
        const router::Vehicle& v = problem_.vehicles(row);
        const double overtime = std::max(0.0, minutes - 60 * problem_.overtimeAfter);
        return v.fixedCost + v.driverFixedCost + distance * v.costPerMile +
               (minutes - overtime) / 60 * v.driverCostPerHour + overtime / 60 * v.overtimeCost;
    }

    void carry(int row, const std::vector<int>& order, BestOfAll& route) const {
        const router::Vehicle& v = problem_.vehicles(row);
        double weight = 0, cube = 0;
        for (const int stop : order) {
            if (problem_.stops(stop).type != "D") continue;
            weight += problem_.stops(stop).weight;
            cube += problem_.stops(stop).cube;
        }
        double leftWeight = weight, leftCube = cube, mostWeight = weight, mostCube = cube;
        for (const int stop : order) {
            const Stop& s = problem_.stops(stop);
            if (s.type == "D") {
                weight -= s.weight, leftWeight -= s.weight;
                cube -= s.cube, leftCube -= s.cube;
                continue;
            }
            const double share = problem_.pickupPercent / 100;
            if (share < 1) {
                exceed(route, leftWeight, share * v.weightCapacity, v.weightCapacity);
                exceed(route, leftCube, share * v.cubeCapacity, v.cubeCapacity);
            }
            weight += s.weight;
            cube += s.cube;
            mostWeight = std::max(mostWeight, weight);
            mostCube = std::max(mostCube, cube);
        }
        exceed(route, mostWeight, v.weightCapacity, v.weightCapacity);
        exceed(route, mostCube, v.cubeCapacity, v.cubeCapacity);
    }

    /// The best plan for the stops that are left when so many vehicles of each row are used.
    BestOfAll rest(int left, const std::vector<int>& used) {
        if (left == 0) return {};
        const auto known = plans_.find({left, used});
        if (known != plans_.end()) return known->second;
        const int lowest = left & -left;
        BestOfAll best = none;
        for (int set = left; set > 0; set = (set - 1) & left) {
            if ((set & lowest) == 0) continue;
            for (int row = 1; row <= rows_; ++row) {
                std::vector<int> more = used;
                BestOfAll route = routes_[std::size_t(set)][std::size_t(row)];
                if (++more[std::size_t(row)] > static_cast<int>(problem_.vehicles(row).number)) {
                    ++route.violations;
                    ++route.excess;
                }
                const BestOfAll plan = plus(route, rest(left & ~set, more));
                if (better(plan, best)) best = plan;
            }
        }
        return plans_[{left, used}] = best;
    }

    const Problem& problem_;
    int n_, rows_;
    std::vector<std::vector<double>> distance_, minutes_;
    std::vector<double> stay_;
    std::vector<std::vector<BestOfAll>> routes_; ///< by set of stops and vehicle row
    std::map<std::pair<int, std::vector<int>>, BestOfAll> plans_;
};

} // namespace

BestOfAll enumerated(const Problem& problem) {
    return Enumeration(problem).best();
}

BestOfAll enumeratedRoute(const Problem& problem, int row, const std::vector<int>& stops) {
    return Enumeration(problem).bestOf(row, stops);
}

} // namespace vantore::optmzr::tests
