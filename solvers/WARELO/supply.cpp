#include "solvers/WARELO/supply.h"

#include <algorithm>
#include <array>
#include <limits>

namespace vantore::warelo {

namespace {

constexpr double unreached = std::numeric_limits<double>::infinity();

/// Of the costs of a cwt.: shorter by less is not shorter, so that rounding makes no circle of ways.
constexpr double relativeTolerance = 1E-12;

/// The flows as they grow, and the cheapest ways by which full plants hand work on.
class Flows {
  public:
    Flows(const Network& network, Supply& supply)
        : network_(network), supply_(supply), left_(network.plants.size()), toSlack_(network.plants.size()),
          next_(network.plants.size()), over_(network.plants.size()),
          tolerance_(relativeTolerance * largestCost()) {
        for (std::size_t p = 0; p < left_.size(); ++p) left_[p] = network.plants[p].capacity;
        // What the rounding of the sales' sum may exceed the capacity by goes to the largest plant.
        *std::max_element(left_.begin(), left_.end()) += 2 * roundingShare * network.capacity();
        findWaysToSlack();
    }

    void supply(std::size_t warehouse, double amount) {
        while (amount > 0) {
            const std::size_t plant = takerOver(warehouse, cheapestFor(warehouse));
            const double step = std::min(amount, mostAlong(plant));
            if (step <= 0) return; // nothing is left but what rounding has lost
            send(plant, warehouse, step);
            amount -= step;
        }
    }

    double price(std::size_t plant) const { return toSlack_[plant]; }

    double priceAt(std::size_t warehouse) const {
        const std::size_t plant = cheapestFor(warehouse);
        return cost(plant, warehouse) + toSlack_[plant];
    }

  private:
    double& flow(std::size_t p, std::size_t w) {
        return supply_.flows(static_cast<long long>(p), static_cast<long long>(w));
    }
    double cost(std::size_t p, std::size_t w) const { return network_.supplyCostOf(p, w); }

    double largestCost() const {
        double largest = 0;
        for (std::size_t p = 0; p < network_.plants.size(); ++p)
            for (std::size_t w = 0; w < network_.warehouses.size(); ++w)
                largest = std::max(largest, cost(p, w));
        return largest;
    }

    std::size_t cheapestFor(std::size_t warehouse) const {
        std::size_t best = 0;
        double least = unreached;
        for (std::size_t p = 0; p < toSlack_.size(); ++p) {
            const double price = cost(p, warehouse) + toSlack_[p];
            if (price < least) {
                least = price;
                best = p;
            }
        }
        return best;
    }

    bool handsOn(std::size_t plant) const { return left_[plant] <= 0 && next_[plant] != plant; }

    /// The plant that supplies a warehouse in the end where one after the other hands on over this very
    /// warehouse. Those between would get as much as they give, and what they have there now would only limit
    /// the step.
    std::size_t takerOver(std::size_t warehouse, std::size_t plant) const {
        while (handsOn(plant) && over_[plant] == warehouse) plant = next_[plant];
        return plant;
    }

    std::size_t takerFrom(std::size_t plant) const { return takerOver(over_[plant], next_[plant]); }

    /// How much the way from a plant to one with capacity left can take on.
    double mostAlong(std::size_t plant) {
        double most = unreached;
        for (; handsOn(plant); plant = takerFrom(plant)) most = std::min(most, flow(plant, over_[plant]));
        return std::min(most, left_[plant]);
    }

    void send(std::size_t plant, std::size_t warehouse, double amount) {
        flow(plant, warehouse) += amount;
        while (handsOn(plant)) {
            const std::size_t over = over_[plant];
            flow(plant, over) -= amount;
            plant = takerFrom(plant);
            flow(plant, over) += amount;
        }
        left_[plant] -= amount;
        findWaysToSlack();
    }

    /// The cheapest ways from each plant to one with capacity left (Bellman and Ford).
    void findWaysToSlack() {
        for (std::size_t p = 0; p < left_.size(); ++p) {
            toSlack_[p] = left_[p] > 0 ? 0 : unreached;
            next_[p] = p;
        }
        bool shorter = true;
        for (std::size_t pass = 0; shorter && pass < left_.size(); ++pass) {
            shorter = false;
            for (std::size_t p = 0; p < left_.size(); ++p) shorter = shortenWayFrom(p) || shorter;
        }
    }

    bool shortenWayFrom(std::size_t p) {
        if (left_[p] > 0) return false;
        bool shorter = false;
        for (std::size_t w = 0; w < network_.warehouses.size(); ++w) {
            if (flow(p, w) <= 0) continue;
            for (std::size_t q = 0; q < left_.size(); ++q) {
                if (q == p) continue;
                const double length = cost(q, w) - cost(p, w) + toSlack_[q];
                if (length >= toSlack_[p] - tolerance_) continue;
                toSlack_[p] = length;
                next_[p] = q;
                over_[p] = w;
                shorter = true;
            }
        }
        return shorter;
    }

    const Network& network_;
    Supply& supply_;
    std::vector<double> left_;      ///< capacity
    std::vector<double> toSlack_;   ///< cost of handing a cwt. on, 0 where capacity is left
    std::vector<std::size_t> next_; ///< the plant that takes it, itself where none does
    std::vector<std::size_t> over_; ///< the warehouse over which it does
    double tolerance_;
};

double costOf(const Network& network, const Supply& supply) {
    double cost = 0;
    for (long long p = 0; p < static_cast<long long>(network.plants.size()); ++p)
        for (long long w = 0; w < static_cast<long long>(network.warehouses.size()); ++w)
            cost += supply.flows(p, w) * network.supplyCost(p, w);
    return cost;
}

} // namespace

Supply cheapestSupply(const Network& network, const std::vector<double>& throughput) {
    Supply supply;
    Flows flows(network, supply);
    for (std::size_t w = 0; w < throughput.size(); ++w) flows.supply(w, throughput[w]);
    supply.cost = costOf(network, supply);
    for (std::size_t p = 0; p < network.plants.size(); ++p) supply.capacityPrice.push_back(flows.price(p));
    for (std::size_t w = 0; w < throughput.size(); ++w) supply.warehousePrice.push_back(flows.priceAt(w));
    return supply;
}

} // namespace vantore::warelo
