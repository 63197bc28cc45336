#pragma once

#include <limits>
#include <vector>

#include "solvers/WARELO/allocation.h"

namespace vantore::warelo {

/// Between which throughputs a warehouse may be, cwt.
struct Range {
    double least = 0;
    double most = std::numeric_limits<double>::infinity();
};

/// A lower bound on the cost of all allocations of a network, by Lagrangian relaxation.
///
/// The requirements that each customer is served once and that no plant makes more than its capacity are
/// given prices: a customer pays v(c) $ for a cwt., a plant asks u(p) >= 0 $ more for one. A cwt. then costs
///
///     s(w) = min over p of (supply cost(p, w) + u(p))
///
/// in warehouse w, and each warehouse decides by itself whom it serves. Over the sets S of customers it
/// minimises
///
///     f(w) = min over S of  sum over c in S of sales(c) x (s(w) + delivery cost(w, c) - v(c))
///                           + inventory cost(w, throughput of S),
///
/// 0 for nobody. For a given throughput those customers are best whose bracket is least, the last of them
/// served in part. Between two throughputs at which a customer is served whole the sum is linear and the
/// inventory's cost concave, so that trying these, and the ends of the warehouse's range, is enough. Whatever
/// the prices, no allocation with throughputs in their ranges costs less than
///
///     L = sum over c of sales(c) v(c) - sum over p of capacity(p) u(p) + sum over w of f(w),
///
/// because an allocation adds up to at least L with customers, plants and warehouses paying each other.
/// The best prices make L at least as high as the linear relaxation, in which a warehouse may serve a share
/// of a customer. They are found by steps of the length of Polyak along the subgradient, each bent towards
/// the step before where the two point apart. Two things keep the steps from going to and fro. What a plant
/// asks more is passed on to the customers whose goods it makes in the allocation to start from: a step
/// changes u and, beside u, what v is above the u passed on. And the units in which changes are measured are
/// such that both count alike. Sources: Geoffrion, "Lagrangean relaxation for integer programming",
/// Mathematical Programming Study 2 (1974); Held, Wolfe and Crowder, "Validation of subgradient
/// optimization", Mathematical Programming 6 (1974); Camerini, Fratta and Maffioli, "On improving relaxation
/// methods by modified gradient techniques", Mathematical Programming Study 3 (1975).
class Bound {
  public:
    /// Starts from what things cost in an allocation, for throughputs of every size. The network outlives it.
    Bound(const Network& network, const Allocation& allocation);
    Bound(Network&& network, const Allocation& allocation) = delete;

    /// The same prices once more, for a part of the ranges.
    Bound(Bound whole, std::size_t warehouse, Range part);

    /// The highest L so far, $ a year.
    double value() const { return best_; }

    /// Takes one step towards an allocation's cost; false when steps have become too short to help.
    bool step(double cost);

    /// What a cwt. costs at the present prices in the warehouses that serve somebody, with the inventory's
    /// share; infinite in others.
    std::vector<double> warehousePrice() const;

    /// Where the relaxation deceives itself most: a warehouse that by turns serves many and few, and so seems
    /// to have less inventory than it would have for what it serves on the average.
    struct Doubt {
        std::size_t warehouse = 0;
        double throughput = 0; ///< on the average, cwt.
        double cost = 0;       ///< that is overlooked, $ a year
    };
    Doubt greatestDoubt() const;

    const Range& range(std::size_t warehouse) const { return ranges_[warehouse]; }

  private:
    std::vector<double> subgradient() const;
    void bend(const std::vector<double>& subgradient);
    void move(double stride);
    void evaluate();
    double serve(std::size_t warehouse);
    double chooseUpTo(std::size_t warehouse, std::size_t source);
    void learn();

    const Network* network_;
    double plantUnit_; ///< cwt.: so much of a plant's output counts as one customer
    std::vector<Range> ranges_;
    std::vector<std::vector<double>> passedOn_;              ///< by plant, the share of each customer's goods
    std::vector<double> customerPrice_;                      ///< v, $/cwt.
    std::vector<double> plantPrice_;                         ///< u, $/cwt.
    std::vector<double> unitCost_;                           ///< s, $/cwt.
    std::vector<double> throughput_;                         ///< of the sets S
    std::vector<double> plantOutput_;                        ///< that they call for
    std::vector<double> timesServed_;                        ///< each customer, with shares
    std::vector<double> direction_;                          ///< of the last step: customers, then plants
    std::vector<double> meanThroughput_, meanInventoryCost_; ///< over the last steps
    double present_ = 0;                                     ///< L
    double best_ = 0;
    double length_; ///< of the steps, of the distance to the cost
    int stepsWithoutGain_ = 0;
};

} // namespace vantore::warelo
