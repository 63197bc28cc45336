#include "solvers/OPTMZR/population.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace vantore::optmzr {

namespace {

constexpr std::size_t fewest = 25;    // members after a clearance
constexpr std::size_t newcomers = 40; // until the next
constexpr double elite = 4;           // the best of them stay
constexpr std::size_t closest = 5;    // by which the difference of a member is measured

double averageDistance(const Individual& individual) {
    const std::size_t count = std::min(closest, individual.nearest.size());
    if (count == 0) return 1;
    double sum = 0;
    for (std::size_t i = 0; i < count; ++i) sum += individual.nearest[i].first;
    return sum / static_cast<double>(count);
}

bool isClone(const Individual& individual) {
    constexpr double same = 1E-06;
    return !individual.nearest.empty() && individual.nearest.front().first < same;
}

void insertNear(Individual& individual, double distance, const Individual* other) {
    const std::pair<double, const Individual*> entry(distance, other);
    const auto byDistance = [](const auto& a, const auto& b) { return a.first < b.first; };
    individual.nearest.insert(
        std::upper_bound(individual.nearest.begin(), individual.nearest.end(), entry, byDistance), entry);
}

} // namespace

Individual::Individual(int stopCount, Solution routes, const RouteValue& value, int missing)
    : solution(std::move(routes)), next(static_cast<std::size_t>(stopCount) + 1),
      previous(static_cast<std::size_t>(stopCount) + 1), total(value), missingVehicles(missing),
      cost(value.penalised) {
    for (const FleetRoute& route : solution) {
        int before = 0;
        for (const int stop : route.stops) {
            tour.push_back(stop);
            previous[static_cast<std::size_t>(stop)] = before;
            next[static_cast<std::size_t>(before)] = stop;
            before = stop;
        }
        next[static_cast<std::size_t>(before)] = 0;
    }
    next[0] = 0;
}

double Individual::penalised(const Penalties& penalties) const {
    return total.cost + penalties.load * total.load + penalties.minutes * total.minutes +
           penalties.distance * total.distance + penalties.share * total.share +
           penalties.vehicle * missingVehicles;
}

double brokenPairs(const Individual& a, const Individual& b) {
    int differences = 0;
    for (std::size_t i = 1; i < a.next.size(); ++i) {
        if (a.next[i] != b.next[i] && a.next[i] != b.previous[i]) ++differences;
        if (a.previous[i] == 0 && b.previous[i] != 0 && b.next[i] != 0) ++differences;
    }
    return static_cast<double>(differences) / static_cast<double>(a.next.size() - 1);
}

void Population::add(std::unique_ptr<Individual> individual) {
    for (const auto& member : members_) {
        const double distance = brokenPairs(*individual, *member);
        insertNear(*member, distance, individual.get());
        insertNear(*individual, distance, member.get());
    }
    insertSorted(std::move(individual));
    if (members_.size() > fewest + newcomers)
        while (members_.size() > fewest) removeWorst();
    rank();
}

void Population::insertSorted(std::unique_ptr<Individual> individual) {
    const auto byCost = [](const auto& a, const auto& b) { return a->cost < b->cost; };
    members_.insert(std::upper_bound(members_.begin(), members_.end(), individual, byCost),
                    std::move(individual));
}

void Population::price(const Penalties& penalties) {
    for (const auto& member : members_) member->cost = member->penalised(penalties);
    std::stable_sort(members_.begin(), members_.end(),
                     [](const auto& a, const auto& b) { return a->cost < b->cost; });
    rank();
}

void Population::rank() {
    fitness_.assign(members_.size(), 0);
    if (members_.size() < 2) return;
    std::vector<std::size_t> byDifference(members_.size());
    std::iota(byDifference.begin(), byDifference.end(), std::size_t{0});
    std::stable_sort(byDifference.begin(), byDifference.end(), [this](std::size_t a, std::size_t b) {
        return averageDistance(*members_[a]) > averageDistance(*members_[b]);
    });
    const double last = static_cast<double>(members_.size()) - 1;
    const double weight = std::max(0.0, 1 - elite / static_cast<double>(members_.size()));
    for (std::size_t i = 0; i < byDifference.size(); ++i) {
        const std::size_t member = byDifference[i];
        fitness_[member] = static_cast<double>(member) / last + weight * static_cast<double>(i) / last;
    }
}

/// The one with the worst fitness goes, clones before all others, the cheapest never.
void Population::removeWorst() {
    rank();
    std::size_t worst = 1;
    for (std::size_t i = 2; i < members_.size(); ++i) {
        const bool clone = isClone(*members_[i]);
        const bool worstIsClone = isClone(*members_[worst]);
        if (clone != worstIsClone ? clone : fitness_[i] > fitness_[worst]) worst = i;
    }
    const Individual* gone = members_[worst].get();
    for (const auto& member : members_)
        std::erase_if(member->nearest, [gone](const auto& entry) { return entry.second == gone; });
    members_.erase(members_.begin() + static_cast<std::ptrdiff_t>(worst));
}

} // namespace vantore::optmzr
