#include "solvers/OPTMZR/exhaustive_search.h"

#include <algorithm>
#include <cmath>

namespace vantore::optmzr {

ExhaustiveSearch::ExhaustiveSearch(const Instance& instance)
    : instance_(instance), judge_(instance, {}), all_((Set{1} << instance.stopCount) - 1),
      routes_((all_ + 1) * instance.fleets.size()), bounds_(all_ + 1), used_(instance.fleets.size()) {
    judge_.beStrict({});
}

bool ExhaustiveSearch::Price::isBelow(const Price& other) const {
    constexpr double least = 1E-10; // that a difference must be to count
    if (misses.count != other.misses.count) return misses.count < other.misses.count;
    if (std::abs(misses.excess - other.misses.excess) > least) return misses.excess < other.misses.excess;
    return cost < other.cost - least;
}

Solution ExhaustiveSearch::best() {
    for (Set set = 1; set <= all_; ++set) priceOrders(set);
    boundSets();
    divide(all_, {});
    Solution solution;
    for (const auto& [set, fleet] : best_) solution.push_back({fleet, routeOf(set, fleet).stops});
    return solution;
}

void ExhaustiveSearch::priceOrders(Set set) {
    std::vector<int> stops;
    for (int stop = 1; stop <= instance_.stopCount; ++stop)
        if ((set >> (stop - 1) & 1U) != 0) stops.push_back(stop);
    do {
        const RouteSums sums = sumsOf(instance_, stops);
        const RouteOrder order = judge_.order(sums, stops);
        for (int f = 0; f < instance_.fleetCount(); ++f) {
            const RouteValue value = judge_.value(instance_.fleet(f), sums, order, stops);
            const Price price{value.misses, value.cost};
            Route& best = routeOf(set, f);
            if (best.price && !price.isBelow(*best.price)) continue;
            best = {price, stops};
        }
    } while (std::next_permutation(stops.begin(), stops.end()));
}

/// What each set costs at least: divided in the best way, with any number of vehicles.
void ExhaustiveSearch::boundSets() {
    for (Set set = 1; set <= all_; ++set) {
        std::optional<Price> least;
        const Set lowest = set & (~set + 1);
        for (Set part = set; part > 0; part = (part - 1) & set) {
            if ((part & lowest) == 0) continue;
            for (int f = 0; f < instance_.fleetCount(); ++f) {
                const Price price = *routeOf(part, f).price + bounds_[set & ~part];
                if (!least || price.isBelow(*least)) least = price;
            }
        }
        bounds_[set] = *least;
    }
}

void ExhaustiveSearch::divide(Set left, const Price& spent) {
    if (least_ && !(spent + bounds_[left]).isBelow(*least_)) return;
    if (left == 0) {
        least_ = spent;
        best_ = parts_;
        return;
    }
    const Set lowest = left & (~left + 1);
    for (Set part = left; part > 0; part = (part - 1) & left) {
        if ((part & lowest) == 0) continue;
        for (int f = 0; f < instance_.fleetCount(); ++f) {
            int& used = used_[static_cast<std::size_t>(f)];
            Price price = spent + *routeOf(part, f).price;
            if (used >= instance_.fleet(f).available) price = price + Price{{1, 1}, 0};
            ++used;
            parts_.emplace_back(part, f);
            divide(left & ~part, price);
            parts_.pop_back();
            --used;
        }
    }
}

} // namespace vantore::optmzr
