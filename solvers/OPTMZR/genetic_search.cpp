#include "solvers/OPTMZR/genetic_search.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "solvers/OPTMZR/savings.h"

namespace vantore::optmzr {

namespace {

constexpr int plansAtFirst = 60;
constexpr int patience = 100;     // plans for each stop without a better one, before beginning anew
constexpr int lastPatience = 200; // before ending
constexpr int plansBetweenPrices = 100;
constexpr double wantedShare = .2; // of plans that keep a limit
constexpr double tolerance = .05;
constexpr double dearer = 1.2;
constexpr double cheaper = .85;
constexpr double leastPenalty = 1E-04;
constexpr double mostPenalty = 1E+05;
constexpr double repairFactor = 10;

/// Steps that a problem is worth, twice as many for each pair of stops of the largest one as of the smallest.
long long stepsFor(int stopCount) {
    constexpr long long stepsOfAPair = 27'000;
    return stepsOfAPair * stopCount * stopCount * (router::mostStops + stopCount) / router::mostStops;
}

} // namespace

Penalties firstPenalties(const Instance& instance) {
    Penalties penalties;
    const double load = instance.largestLoad > 0 ? instance.largestLoad : 1;
    double fixed = 0;
    for (const Fleet& fleet : instance.fleets) fixed = std::max(fixed, fleet.fixedCost);
    penalties.load = penalties.share = 1 / load;
    penalties.minutes = 1.0 / router::minutesPerHour;
    penalties.vehicle = 2 + fixed;
    return penalties;
}

GeneticSearch::GeneticSearch(const Instance& instance, std::function<void(const Found&)> onFound)
    : instance_(instance), onFound_(std::move(onFound)), search_(instance), split_(instance),
      penalties_(firstPenalties(instance)), budget_(stepsFor(instance.stopCount)), best_(beyondReach),
      bestSinceBegin_(beyondReach) {}

void GeneticSearch::run() {
    educate(savings(instance_, penalties_));
    searchOn();
}

void GeneticSearch::runStrictly() {
    constexpr StrictPenalties strict{.limit = 1E+07, .excess = 1E+03};
    search_.beStrict(strict);
    split_.beStrict(strict);
    penalties_.vehicle = strict.limit + strict.excess;
    isStrict_ = true;
    budget_ += work();
    best_ = beyondReach;
    sinceBest_ = 0;
    searchOn();
}

void GeneticSearch::searchOn() {
    while (!isOver()) {
        begin();
        while (!isOver() && sinceBetter_ < patience * effort()) breed();
    }
}

/// The size of the problem; small ones have as many traps as larger ones.
int GeneticSearch::effort() const {
    constexpr int least = 20;
    return std::max(least, instance_.stopCount);
}

bool GeneticSearch::isOver() const {
    return work() >= budget_ || sinceBest_ >= lastPatience * effort();
}

void GeneticSearch::begin() {
    feasible_ = {};
    infeasible_ = {};
    sinceBetter_ = 0;
    bestSinceBegin_ = beyondReach;
    for (int i = 0; i < plansAtFirst && !isOver(); ++i) addRandom();
}

void GeneticSearch::addRandom() {
    std::vector<int> tour;
    for (int stop = 1; stop <= instance_.stopCount; ++stop) tour.push_back(stop);
    dice_.shuffle(tour);
    educate(split_.routes(tour, penalties_, dice_));
}

void GeneticSearch::breed() {
    const Individual& a = parent();
    const Individual& b = parent();
    educate(split_.routes(crossed(a.tour, b.tour), penalties_, dice_));
}

/// The better of two that chance names.
const Individual& GeneticSearch::parent() {
    const auto draw = [this] {
        const int count = static_cast<int>(feasible_.size() + infeasible_.size());
        const auto index = static_cast<std::size_t>(dice_.below(count));
        const bool isFeasible = index < feasible_.size();
        const Population& population = isFeasible ? feasible_ : infeasible_;
        const std::size_t member = isFeasible ? index : index - feasible_.size();
        return std::pair(population.fitness(member), &population.member(member));
    };
    const auto first = draw();
    const auto second = draw();
    return second.first < first.first ? *second.second : *first.second;
}

/// Puts the routes in the order that they have around the depot, so that tours of like plans are alike.
void GeneticSearch::sortAround(Solution& solution) const {
    std::vector<std::pair<double, FleetRoute>> routes;
    for (FleetRoute& route : solution) {
        router::Place middle;
        for (const int stop : route.stops) {
            middle.x += instance_.customer(stop).place.x;
            middle.y += instance_.customer(stop).place.y;
        }
        routes.emplace_back(std::atan2(middle.y, middle.x), std::move(route));
    }
    std::stable_sort(routes.begin(), routes.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    solution.clear();
    for (auto& [angle, route] : routes) solution.push_back(std::move(route));
}

/// A part of one tour at its place, the other stops in the order of the other tour.
std::vector<int> GeneticSearch::crossed(const std::vector<int>& a, const std::vector<int>& b) {
    const std::size_t count = a.size();
    if (count < 2) return a;
    const auto start = static_cast<std::size_t>(dice_.below(static_cast<int>(count)));
    auto end = static_cast<std::size_t>(dice_.below(static_cast<int>(count)));
    while (end == start) end = static_cast<std::size_t>(dice_.below(static_cast<int>(count)));
    std::vector<int> child(count);
    std::vector<bool> isTaken(count + 1);
    std::size_t at = start;
    while (at % count != (end + 1) % count) {
        child[at % count] = a[at % count];
        isTaken[static_cast<std::size_t>(a[at % count])] = true;
        ++at;
        if (at % count == start) break;
    }
    for (std::size_t i = 1; i <= count; ++i) {
        const int stop = b[(end + i) % count];
        if (isTaken[static_cast<std::size_t>(stop)]) continue;
        child[at % count] = stop;
        ++at;
    }
    return child;
}

/// Improves a solution and takes it into its population; half of those that break limits are repaired with
/// higher penalties besides.
void GeneticSearch::educate(Solution solution) {
    search_.improve(solution, penalties_, dice_);
    const auto take = [this](Solution& improved) {
        sortAround(improved);
        const RouteValue total = search_.total();
        const int missing = search_.missingVehicles();
        onFound_({improved, total, search_.violations(), isStrict_, missing});
        auto individual = std::make_unique<Individual>(instance_.stopCount, improved, total, missing);
        individual->cost = isStrict_ ? total.penalised : individual->penalised(penalties_);
        const bool isFeasible = isStrict_ || search_.isFeasible();
        (isFeasible ? feasible_ : infeasible_).add(std::move(individual));
        return isFeasible;
    };
    const double cost = search_.total().penalised;
    note(search_.total(), search_.missingVehicles());
    const bool isFeasible = take(solution);
    ++sinceBetter_;
    ++sinceBest_;
    const auto noteCost = [this](double value) {
        if (value < best_ - leastGain) sinceBest_ = 0;
        if (value < bestSinceBegin_ - leastGain) sinceBetter_ = 0;
        best_ = std::min(best_, value);
        bestSinceBegin_ = std::min(bestSinceBegin_, value);
    };
    if (isFeasible) return noteCost(cost);
    if (dice_.below(2) == 0) return;
    search_.improve(solution, penalties_.times(repairFactor), dice_);
    if (search_.isFeasible()) {
        noteCost(search_.total().cost);
        take(solution);
    }
}

void GeneticSearch::note(const RouteValue& total, int missing) {
    ++kept_.plans;
    if (total.load < slack) ++kept_.load;
    if (total.minutes < slack) ++kept_.minutes;
    if (total.distance < slack) ++kept_.distance;
    if (total.share < slack) ++kept_.share;
    if (missing == 0) ++kept_.vehicle;
    if (kept_.plans >= plansBetweenPrices && !isStrict_) adaptPenalties();
}

/// So that a fifth of the plans keep each kind of limit: the best plans lie at the limits.
void GeneticSearch::adaptPenalties() {
    const auto adapt = [this](double& penalty, int kept) {
        const double share = static_cast<double>(kept) / kept_.plans;
        if (share < wantedShare - tolerance) penalty = std::min(penalty * dearer, mostPenalty);
        if (share > wantedShare + tolerance) penalty = std::max(penalty * cheaper, leastPenalty);
    };
    adapt(penalties_.load, kept_.load);
    adapt(penalties_.minutes, kept_.minutes);
    adapt(penalties_.distance, kept_.distance);
    adapt(penalties_.share, kept_.share);
    adapt(penalties_.vehicle, kept_.vehicle);
    kept_ = {};
    feasible_.price(penalties_);
    infeasible_.price(penalties_);
}

} // namespace vantore::optmzr
