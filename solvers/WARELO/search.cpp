#include "solvers/WARELO/search.h"

#include <algorithm>
#include <limits>
#include <set>
#include <utility>

#include "solvers/WARELO/bound.h"
#include "solvers/WARELO/local_search.h"

namespace vantore::warelo {

namespace {

constexpr int firstPasses = 6;
constexpr int mostSteps = 600;
constexpr int stepsPerStart = 20;
constexpr int stepsPerHalf = 80;
constexpr double goodEnough = 1E-7; // of the cost
constexpr double wellEnough = 5E-5; // of the cost: not worth halving ranges for

/// How long ranges are halved, for a second or so; work is customers x warehouses x steps.
constexpr int mostHalvings = 100;
constexpr double mostWork = 4E+7;

/// The best of both so far, told whenever it gets better.
class Progress {
  public:
    Progress(const Network& network, const Hear& hear) : network_(network), hear_(hear) {}

    const Found& found() const { return found_; }

    void take(Allocation allocation) {
        const double cost = costOf(network_, allocation);
        if (!found_.allocation.empty() && cost >= found_.cost) return;
        found_.allocation = std::move(allocation);
        found_.cost = cost;
        hear_(found_);
    }

    void take(double bound) {
        found_.bound = std::max(found_.bound, bound);
        hear_(found_);
    }

  private:
    const Network& network_;
    const Hear& hear_;
    Found found_;
};

/// Without limits of capacity first, then at the prices of the allocation before, in which a warehouse's
/// inventory has its share in each cwt.
Allocation firstAllocation(const Network& network) {
    std::vector<double> price(network.warehouses.size());
    for (std::size_t w = 0; w < price.size(); ++w) {
        price[w] = std::numeric_limits<double>::infinity();
        for (std::size_t p = 0; p < network.plants.size(); ++p)
            price[w] = std::min(price[w], network.supplyCostOf(p, w));
    }
    Allocation allocation = cheapestAllocation(network, price);
    for (int pass = 0; pass < firstPasses; ++pass) {
        const std::vector<double> throughput = throughputOf(network, allocation);
        price = cheapestSupply(network, throughput).warehousePrice;
        for (std::size_t w = 0; w < price.size(); ++w)
            if (throughput[w] > 0) price[w] += network.inventoryCost(w, throughput[w]) / throughput[w];
        allocation = cheapestAllocation(network, price);
    }
    return allocation;
}

bool servesSomebody(const std::vector<double>& warehousePrice) {
    return std::ranges::any_of(warehousePrice,
                               [](double price) { return price < std::numeric_limits<double>::infinity(); });
}

/// Leads the prices of a bound to an allocation.
void startFrom(const Bound& bound, const Network& network, std::set<Allocation>& starts, Progress& progress) {
    const std::vector<double> price = bound.warehousePrice();
    if (!servesSomebody(price)) return;
    const Allocation start = cheapestAllocation(network, price);
    if (starts.insert(start).second) progress.take(improved(network, start));
}

/// Ranges of throughputs that together hold every allocation, each with its bound.
class Halving {
  public:
    Halving(const Network& network, Progress& progress, std::set<Allocation>& starts)
        : network_(network), progress_(progress), starts_(starts),
          workOfStep_(static_cast<double>(network.customers.size() * network.warehouses.size())) {}

    void run(const Bound& whole) {
        std::vector<Bound> open = {whole};
        for (int halving = 0; isWorthWhile(halving); ++halving) {
            const auto lowest = std::ranges::min_element(open, {}, &Bound::value);
            const Bound bound = *lowest;
            open.erase(lowest);
            const Bound::Doubt doubt = bound.greatestDoubt();
            if (doubt.cost <= 0) return;
            Range below = bound.range(doubt.warehouse);
            Range above = below;
            below.most = above.least = doubt.throughput;
            open.push_back(raised(Bound(bound, doubt.warehouse, below)));
            open.push_back(raised(Bound(bound, doubt.warehouse, above)));
            progress_.take(std::ranges::min_element(open, {}, &Bound::value)->value());
        }
    }

  private:
    bool isWorthWhile(int halving) const {
        return progress_.found().gap() > wellEnough && halving < mostHalvings && work_ < mostWork;
    }

    Bound raised(Bound bound) {
        for (int step = 0; step < stepsPerHalf && bound.value() < progress_.found().cost; ++step) {
            work_ += workOfStep_;
            if (!bound.step(progress_.found().cost)) break;
        }
        startFrom(bound, network_, starts_, progress_);
        return bound;
    }

    const Network& network_;
    Progress& progress_;
    std::set<Allocation>& starts_;
    double workOfStep_;
    double work_ = 0;
};

} // namespace

void search(const Network& network, const Hear& hear) {
    Progress progress(network, hear);
    const Allocation first = firstAllocation(network);
    progress.take(first);
    progress.take(improved(network, first));
    Bound bound(network, progress.found().allocation);
    std::set<Allocation> starts;
    for (int step = 1; step <= mostSteps && bound.step(progress.found().cost); ++step) {
        if (step % stepsPerStart != 0) continue;
        progress.take(bound.value());
        if (progress.found().gap() <= goodEnough) return;
        startFrom(bound, network, starts, progress);
    }
    progress.take(bound.value());
    Halving(network, progress, starts).run(bound);
}

} // namespace vantore::warelo
