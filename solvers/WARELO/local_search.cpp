#include "solvers/WARELO/local_search.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace vantore::warelo {

namespace {

/// Of the total cost: a smaller saving is rounding.
constexpr double relativeTolerance = 1E-11;

class Search {
  public:
    Search(const Network& network, Allocation start) : network_(network), allocation_(std::move(start)) {
        settle();
    }

    Allocation result() {
        while (shiftSome() || attractSome() || closeSome() || swapSome()) {
        }
        return std::move(allocation_);
    }

  private:
    std::size_t warehouses() const { return network_.warehouses.size(); }
    std::size_t customers() const { return network_.customers.size(); }
    double sales(std::size_t c) const { return network_.customers[c].sales; }

    /// Takes stock of the allocation.
    void settle() {
        throughput_ = throughputOf(network_, allocation_);
        served_.assign(warehouses(), 0);
        for (const std::size_t w : allocation_) ++served_[w];
        price_ = cheapestSupply(network_, throughput_).warehousePrice;
        cost_ = costOf(network_, allocation_);
        tolerance_ = relativeTolerance * cost_;
    }

    /// Takes another allocation if it is cheaper.
    bool accept(const Allocation& other) {
        if (costOf(network_, other) >= cost_ - tolerance_) return false;
        allocation_ = other;
        settle();
        return true;
    }

    /// What a cwt. of a customer costs from a warehouse, but for the inventory.
    double unitCost(std::size_t c, std::size_t w) const { return network_.deliveryCostOf(w, c) + price_[w]; }

    /// What the inventory of a warehouse costs more with `change` added to its throughput and so many
    /// customers more.
    double inventoryChange(std::size_t w, double change, int moreCustomers) const {
        const double after = served_[w] + moreCustomers == 0 ? 0 : throughput_[w] + change;
        return network_.inventoryCost(w, after) - network_.inventoryCost(w, throughput_[w]);
    }

    bool shiftSome() {
        bool any = false;
        for (std::size_t c = 0; c < customers(); ++c)
            for (std::size_t w = 0; w < warehouses(); ++w) any = shift(c, w) || any;
        return any;
    }

    bool shift(std::size_t c, std::size_t to) {
        const std::size_t from = allocation_[c];
        if (from == to) return false;
        const double change = sales(c) * (unitCost(c, to) - unitCost(c, from)) +
                              inventoryChange(from, -sales(c), -1) + inventoryChange(to, sales(c), 1);
        if (change >= -tolerance_) return false;
        Allocation other = allocation_;
        other[c] = to;
        return accept(other);
    }

    bool swapSome() {
        for (std::size_t a = 0; a < customers(); ++a)
            for (std::size_t b = a + 1; b < customers(); ++b)
                if (swap(a, b)) return true;
        return false;
    }

    bool swap(std::size_t a, std::size_t b) {
        const std::size_t atA = allocation_[a];
        const std::size_t atB = allocation_[b];
        if (atA == atB) return false;
        const double moved = sales(b) - sales(a);
        const double change = sales(a) * (unitCost(a, atB) - unitCost(a, atA)) +
                              sales(b) * (unitCost(b, atA) - unitCost(b, atB)) +
                              inventoryChange(atA, moved, 0) + inventoryChange(atB, -moved, 0);
        if (change >= -tolerance_) return false;
        Allocation other = allocation_;
        std::swap(other[a], other[b]);
        return accept(other);
    }

    bool attractSome() {
        bool any = false;
        for (std::size_t w = 0; w < warehouses(); ++w) any = attract(w) || any;
        return any;
    }

    /// The customers of other warehouses, those first who gain most for a cwt. by coming.
    std::vector<std::size_t> byGain(std::size_t to) const {
        std::vector<std::size_t> others;
        for (std::size_t c = 0; c < customers(); ++c)
            if (allocation_[c] != to) others.push_back(c);
        const auto gain = [&](std::size_t c) { return unitCost(c, allocation_[c]) - unitCost(c, to); };
        std::ranges::stable_sort(others, std::ranges::greater(), gain);
        return others;
    }

    bool attract(std::size_t to) {
        Allocation other = allocation_;
        Allocation best;
        std::vector<double> left = throughput_;
        std::vector<int> customersLeft = served_;
        double change = 0;
        double least = -tolerance_;
        for (const std::size_t c : byGain(to)) {
            const std::size_t from = allocation_[c];
            change += sales(c) * (unitCost(c, to) - unitCost(c, from)) -
                      network_.inventoryCost(from, left[from]) - network_.inventoryCost(to, left[to]);
            left[from] = --customersLeft[from] == 0 ? 0 : left[from] - sales(c);
            left[to] += sales(c);
            change += network_.inventoryCost(from, left[from]) + network_.inventoryCost(to, left[to]);
            other[c] = to;
            if (change >= least) continue;
            least = change;
            best = other;
        }
        return !best.empty() && accept(best);
    }

    bool closeSome() {
        bool any = false;
        for (std::size_t w = 0; w < warehouses(); ++w) any = (served_[w] > 0 && close(w)) || any;
        return any;
    }

    /// The others take the customers at what their inventory costs a cwt. as it is.
    bool close(std::size_t closed) {
        std::vector<double> price = price_;
        for (std::size_t w = 0; w < warehouses(); ++w) {
            const bool open = w != closed && throughput_[w] > 0;
            price[w] = open ? price[w] + network_.inventoryCost(w, throughput_[w]) / throughput_[w] *
                                             network_.exponent
                            : std::numeric_limits<double>::infinity();
        }
        if (std::ranges::none_of(price, [](double p) { return p < std::numeric_limits<double>::infinity(); }))
            return false;
        const Allocation cheapest = cheapestAllocation(network_, price);
        Allocation other = allocation_;
        for (std::size_t c = 0; c < customers(); ++c)
            if (other[c] == closed) other[c] = cheapest[c];
        return accept(other);
    }

    const Network& network_;
    Allocation allocation_;
    std::vector<double> throughput_;
    std::vector<int> served_;   ///< customers by warehouse
    std::vector<double> price_; ///< $/cwt. by warehouse, of the cheapest supply
    double cost_ = 0;
    double tolerance_ = 0;
};

} // namespace

Allocation improved(const Network& network, Allocation start) {
    return Search(network, std::move(start)).result();
}

} // namespace vantore::warelo
