#include "solvers/WARELO/bound.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace vantore::warelo {

namespace {

constexpr double firstLength = 1;
constexpr double leastLength = 1E-4;
constexpr int patience = 12; // steps without gain until they are made shorter

} // namespace

Bound::Bound(const Network& network, const Allocation& allocation)
    : network_(network), meanCapacity_(network.capacity() / static_cast<double>(network.plants.size())),
      length_(firstLength) {
    const std::vector<double> throughput = throughputOf(network, allocation);
    const Supply supply = cheapestSupply(network, throughput);
    plantPrice_ = supply.capacityPrice;
    for (std::size_t c = 0; c < allocation.size(); ++c) {
        const std::size_t w = allocation[c];
        customerPrice_.push_back(network.deliveryCostOf(w, c) + supply.warehousePrice[w] +
                                 network.inventoryCost(w, throughput[w]) / throughput[w]);
    }
    evaluate();
    best_ = present_;
}

bool Bound::step(double cost) {
    if (length_ < leastLength) return false;
    double norm = 0;
    for (const int times : timesServed_) norm += (1 - times) * (1 - times);
    std::vector<double> excess(plantOutput_.size());
    for (std::size_t p = 0; p < excess.size(); ++p) {
        excess[p] = (plantOutput_[p] - network_.plants[p].capacity) / meanCapacity_;
        if (excess[p] < 0 && plantPrice_[p] == 0) excess[p] = 0;
        norm += excess[p] * excess[p];
    }
    if (norm == 0) return false; // the sets are an allocation, and nothing is dearer than it has to be
    const double stride = length_ * std::max(cost - present_, 0.0) / norm;
    if (stride == 0) return false;
    for (std::size_t c = 0; c < customerPrice_.size(); ++c)
        customerPrice_[c] += stride * (1 - timesServed_[c]) / network_.customers[c].sales;
    for (std::size_t p = 0; p < excess.size(); ++p)
        plantPrice_[p] = std::max(0.0, plantPrice_[p] + stride * excess[p] / meanCapacity_);
    evaluate();
    learn();
    return true;
}

/// Keeps what is best, and shortens the steps when they don't get higher.
void Bound::learn() {
    if (present_ > best_) {
        best_ = present_;
        stepsWithoutGain_ = 0;
    } else if (++stepsWithoutGain_ >= patience) {
        length_ /= 2;
        stepsWithoutGain_ = 0;
    }
}

void Bound::evaluate() {
    timesServed_.assign(network_.customers.size(), 0);
    plantOutput_.assign(network_.plants.size(), 0);
    unitCost_.assign(network_.warehouses.size(), 0);
    throughput_.assign(network_.warehouses.size(), 0);
    present_ = 0;
    for (std::size_t c = 0; c < customerPrice_.size(); ++c)
        present_ += network_.customers[c].sales * customerPrice_[c];
    for (std::size_t p = 0; p < plantPrice_.size(); ++p)
        present_ -= network_.plants[p].capacity * plantPrice_[p];
    for (std::size_t w = 0; w < network_.warehouses.size(); ++w) present_ += serve(w);
}

/// Lets a warehouse choose its customers, and gives f.
double Bound::serve(std::size_t w) {
    std::size_t source = 0;
    const auto price = [&](std::size_t p) { return network_.supplyCostOf(p, w) + plantPrice_[p]; };
    for (std::size_t p = 1; p < plantPrice_.size(); ++p)
        if (price(p) < price(source)) source = p;
    unitCost_[w] = price(source);

    std::vector<std::pair<double, std::size_t>> brackets;
    for (std::size_t c = 0; c < customerPrice_.size(); ++c) {
        const double bracket = unitCost_[w] + network_.deliveryCostOf(w, c) - customerPrice_[c];
        if (bracket < 0) brackets.emplace_back(bracket, c);
    }
    std::ranges::sort(brackets);
    double least = 0, linear = 0, throughput = 0;
    std::size_t chosen = 0;
    for (std::size_t i = 0; i < brackets.size(); ++i) {
        const double sales = network_.customers[brackets[i].second].sales;
        linear += sales * brackets[i].first;
        throughput += sales;
        const double value = linear + network_.inventoryCost(w, throughput);
        if (value >= least) continue;
        least = value;
        chosen = i + 1;
        throughput_[w] = throughput;
    }
    for (std::size_t i = 0; i < chosen; ++i) ++timesServed_[brackets[i].second];
    plantOutput_[source] += throughput_[w];
    return least;
}

std::vector<double> Bound::warehousePrice() const {
    std::vector<double> price(throughput_.size(), std::numeric_limits<double>::infinity());
    for (std::size_t w = 0; w < price.size(); ++w)
        if (throughput_[w] > 0)
            price[w] = unitCost_[w] + network_.inventoryCost(w, throughput_[w]) / throughput_[w];
    return price;
}

} // namespace vantore::warelo
