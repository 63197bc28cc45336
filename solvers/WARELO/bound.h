#pragma once

#include <vector>

#include "solvers/WARELO/allocation.h"

namespace vantore::warelo {

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
/// 0 for nobody. The sum is linear and the inventory's cost concave, so that the best set holds those
/// customers whose bracket is below some limit: trying every limit in a sorted list is enough. Whatever the
/// prices, no allocation costs less than
///
///     L = sum over c of sales(c) v(c) - sum over p of capacity(p) u(p) + sum over w of f(w),
///
/// because an allocation adds up to at least L with customers, plants and warehouses paying each other.
/// The best prices make L at least as high as the linear relaxation, in which a warehouse may serve a share
/// of a customer. They are found by steps along the subgradient, of the length of Polyak. Sources: Geoffrion,
/// "Lagrangean relaxation for integer programming", Mathematical Programming Study 2 (1974); Held, Wolfe and
/// Crowder, "Validation of subgradient optimization", Mathematical Programming 6 (1974).
class Bound {
  public:
    /// Starts from what things cost in an allocation.
    Bound(const Network& network, const Allocation& allocation);

    /// The highest L so far, $ a year.
    double value() const { return best_; }

    /// Takes one step towards an allocation's cost; false when steps have become too short to help.
    bool step(double cost);

    /// What a cwt. costs at the present prices in the warehouses that serve somebody, with the inventory's
    /// share; infinite in others.
    std::vector<double> warehousePrice() const;

  private:
    void evaluate();
    double serve(std::size_t warehouse);
    void learn();

    const Network& network_;
    double meanCapacity_;
    std::vector<double> customerPrice_; ///< v, $/cwt.
    std::vector<double> plantPrice_;    ///< u, $/cwt.
    std::vector<double> unitCost_;      ///< s, $/cwt.
    std::vector<double> throughput_;    ///< of the sets S
    std::vector<double> plantOutput_;   ///< that they call for
    std::vector<int> timesServed_;      ///< of each customer
    double present_ = 0;                ///< L
    double best_ = 0;
    double length_; ///< of the steps, of the distance to the cost
    int stepsWithoutGain_ = 0;
};

} // namespace vantore::warelo
