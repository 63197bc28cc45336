#include "solvers/WARELO/bound.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace vantore::warelo {

namespace {

constexpr double firstLength = 1;
constexpr double leastLength = 1E-4;
constexpr int patience = 12;                // steps without gain until they are made shorter
constexpr double memory = .95;              // share of the steps before in the means
constexpr double bending = 1.5;             // Camerini, Fratta and Maffioli's
constexpr double shareOfMeanCapacity = .05; // that counts as one customer
constexpr double infinity = std::numeric_limits<double>::infinity();

/// The sets of customers, each the one before and a further customer, from the least bracket on.
class Sets {
  public:
    explicit Sets(std::vector<std::pair<double, std::size_t>> brackets) : brackets_(std::move(brackets)) {
        std::ranges::sort(brackets_);
    }

    bool end() const { return next_ == brackets_.size(); }
    double bracket() const { return brackets_[next_].first; }
    std::size_t customer(std::size_t i) const { return brackets_[i].second; }
    std::size_t count() const { return next_; }
    double throughput() const { return throughput_; }
    double linear() const { return linear_; } ///< the sum of sales x bracket

    void add(double sales) {
        linear_ += sales * bracket();
        throughput_ += sales;
        ++next_;
    }

  private:
    std::vector<std::pair<double, std::size_t>> brackets_;
    std::size_t next_ = 0;
    double throughput_ = 0;
    double linear_ = 0;
};

/// A set that a warehouse may choose: so many customers whole, and an amount of the next.
struct Choice {
    double value = infinity;
    std::size_t whole = 0;
    double part = 0; ///< cwt.
    double throughput = 0;
};

double product(const std::vector<double>& a, const std::vector<double>& b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
}

} // namespace

Bound::Bound(const Network& network, const Allocation& allocation)
    : network_(&network),
      plantUnit_(shareOfMeanCapacity * network.capacity() / static_cast<double>(network.plants.size())),
      ranges_(network.warehouses.size()), length_(firstLength) {
    const std::vector<double> throughput = throughputOf(network, allocation);
    const Supply supply = cheapestSupply(network, throughput);
    plantPrice_ = supply.capacityPrice;
    for (std::size_t c = 0; c < allocation.size(); ++c) {
        const std::size_t w = allocation[c];
        customerPrice_.push_back(network.deliveryCostOf(w, c) + supply.warehousePrice[w] +
                                 network.inventoryCost(w, throughput[w]) / throughput[w]);
    }
    for (std::size_t p = 0; p < plantPrice_.size(); ++p) {
        std::vector<double>& shares = passedOn_.emplace_back();
        for (const std::size_t w : allocation)
            shares.push_back(supply.flows(static_cast<long long>(p), static_cast<long long>(w)) /
                             throughput[w]);
    }
    evaluate();
    best_ = present_;
}

Bound::Bound(Bound whole, std::size_t warehouse, Range part) : Bound(std::move(whole)) {
    ranges_[warehouse] = part;
    length_ = firstLength;
    stepsWithoutGain_ = 0;
    meanThroughput_.clear();
    direction_.clear();
    evaluate();
    best_ = std::max(best_, present_);
}

bool Bound::step(double cost) {
    if (length_ < leastLength) return false;
    const std::vector<double> uphill = subgradient();
    if (product(uphill, uphill) == 0) return false; // an allocation, and nothing dearer than it has to be
    bend(uphill);
    const double stride = length_ * std::max(cost - present_, 0.0) / product(direction_, direction_);
    if (stride == 0) return false;
    move(stride);
    evaluate();
    learn();
    return true;
}

/// How L changes with what each customer pays and, passed on to the customers, with what each plant asks; in
/// customers.
std::vector<double> Bound::subgradient() const {
    std::vector<double> change;
    for (const double times : timesServed_) change.push_back(1 - times);
    for (std::size_t p = 0; p < plantPrice_.size(); ++p) {
        double excess = plantOutput_[p] - network_->plants[p].capacity;
        for (std::size_t c = 0; c < timesServed_.size(); ++c)
            excess += passedOn_[p][c] * network_->customers[c].sales * (1 - timesServed_[c]);
        change.push_back(excess < 0 && plantPrice_[p] == 0 ? 0 : excess / plantUnit_);
    }
    return change;
}

/// Keeps as much of the last direction as takes the new one from more than a right angle to less.
void Bound::bend(const std::vector<double>& subgradient) {
    if (direction_.empty()) direction_.assign(subgradient.size(), 0);
    const double along = product(subgradient, direction_);
    const double kept = along < 0 ? -bending * along / product(direction_, direction_) : 0;
    for (std::size_t i = 0; i < direction_.size(); ++i) direction_[i] = subgradient[i] + kept * direction_[i];
}

void Bound::move(double stride) {
    const std::size_t customers = customerPrice_.size();
    for (std::size_t c = 0; c < customers; ++c)
        customerPrice_[c] += stride * direction_[c] / network_->customers[c].sales;
    for (std::size_t p = 0; p < plantPrice_.size(); ++p) {
        const double before = plantPrice_[p];
        plantPrice_[p] = std::max(0.0, before + stride * direction_[customers + p] / plantUnit_);
        for (std::size_t c = 0; c < customers; ++c)
            customerPrice_[c] += passedOn_[p][c] * (plantPrice_[p] - before);
    }
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
    const std::size_t warehouses = network_->warehouses.size();
    timesServed_.assign(network_->customers.size(), 0);
    plantOutput_.assign(network_->plants.size(), 0);
    unitCost_.resize(warehouses);
    throughput_.resize(warehouses);
    present_ = 0;
    for (std::size_t c = 0; c < customerPrice_.size(); ++c)
        present_ += network_->customers[c].sales * customerPrice_[c];
    for (std::size_t p = 0; p < plantPrice_.size(); ++p)
        present_ -= network_->plants[p].capacity * plantPrice_[p];
    for (std::size_t w = 0; w < warehouses; ++w) present_ += serve(w);

    const bool first = meanThroughput_.empty();
    meanThroughput_.resize(warehouses);
    meanInventoryCost_.resize(warehouses);
    const double old = first ? 0 : memory;
    for (std::size_t w = 0; w < warehouses; ++w) {
        meanThroughput_[w] = old * meanThroughput_[w] + (1 - old) * throughput_[w];
        meanInventoryCost_[w] =
            old * meanInventoryCost_[w] + (1 - old) * network_->inventoryCost(w, throughput_[w]);
    }
}

/// Lets a warehouse choose its plant and its customers, and gives f.
double Bound::serve(std::size_t w) {
    std::size_t source = 0;
    const auto price = [&](std::size_t p) { return network_->supplyCostOf(p, w) + plantPrice_[p]; };
    for (std::size_t p = 1; p < plantPrice_.size(); ++p)
        if (price(p) < price(source)) source = p;
    unitCost_[w] = price(source);
    return chooseUpTo(w, source);
}

double Bound::chooseUpTo(std::size_t w, std::size_t source) {
    const Range& range = ranges_[w];
    std::vector<std::pair<double, std::size_t>> brackets;
    for (std::size_t c = 0; c < customerPrice_.size(); ++c) {
        const double bracket = unitCost_[w] + network_->deliveryCostOf(w, c) - customerPrice_[c];
        if (bracket < 0 || range.least > 0) brackets.emplace_back(bracket, c);
    }
    Sets sets(std::move(brackets));
    Choice best;
    if (range.least == 0) best.value = 0; // nobody
    const auto consider = [&](double part) {
        const double throughput = sets.throughput() + part;
        if (throughput < range.least || throughput == 0) return;
        const double value =
            sets.linear() + (part > 0 ? part * sets.bracket() : 0) + network_->inventoryCost(w, throughput);
        if (value < best.value) best = {value, sets.count(), part, throughput};
    };
    while (!sets.end()) {
        const double sales = network_->customers[sets.customer(sets.count())].sales;
        const double after = sets.throughput() + sales;
        if (sets.throughput() < range.least && after > range.least) consider(range.least - sets.throughput());
        if (after > range.most) {
            consider(range.most - sets.throughput());
            break;
        }
        sets.add(sales);
        consider(0);
        if (!sets.end() && sets.bracket() >= 0 && sets.throughput() >= range.least) break;
    }
    for (std::size_t i = 0; i < best.whole; ++i) timesServed_[sets.customer(i)] += 1;
    if (best.part > 0) {
        const std::size_t c = sets.customer(best.whole);
        timesServed_[c] += best.part / network_->customers[c].sales;
    }
    throughput_[w] = best.throughput;
    plantOutput_[source] += best.throughput;
    return best.value;
}

std::vector<double> Bound::warehousePrice() const {
    std::vector<double> price(throughput_.size(), infinity);
    for (std::size_t w = 0; w < price.size(); ++w)
        if (throughput_[w] > 0)
            price[w] = unitCost_[w] + network_->inventoryCost(w, throughput_[w]) / throughput_[w];
    return price;
}

Bound::Doubt Bound::greatestDoubt() const {
    Doubt greatest;
    for (std::size_t w = 0; w < meanThroughput_.size(); ++w) {
        const double cost = network_->inventoryCost(w, meanThroughput_[w]) - meanInventoryCost_[w];
        if (cost > greatest.cost) greatest = {w, meanThroughput_[w], cost};
    }
    return greatest;
}

} // namespace vantore::warelo
