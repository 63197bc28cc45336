#pragma once

#include <array>

#include "location/WARELOCA/problem.h"
#include "solvers/great_circle.h"

namespace vantore::warelo {

using wareloca::Case;
using wareloca::Customer;
using wareloca::Plant;
using wareloca::Warehouse;

/// What a network costs in a year. Amounts are cwt., distances great-circle miles.
///
/// A plant p makes the goods at its production cost and sends them to a warehouse w:
///
///     production                    production cost of p
///     plant-warehouse transport     fixed + variable x miles from p to w              $ for each cwt.
///
/// A warehouse has a throughput D, the sales of its customers. On the average it holds
///
///     inventory = constant x D ^ exponent       (none where D is 0)
///
/// which is worth inventory x product value, and costs
///
///     handling                      handling rate x D
///     stock order processing        cost of an order x D / stock order size
///     customer order processing     cost of an order x D / customer order size
///     storage                       storage rate x value of the inventory
///     capital                       capital cost / 100 x value of the inventory
///
/// A customer within `localMiles` of his warehouse is delivered to by the local carrier, every other one by
/// the general carriers:
///
///     local delivery                local delivery rate of w                          $ for each cwt.
///     warehouse-customer transport  fixed + variable x miles from w to the customer   $ for each cwt.

/// Up to this distance a warehouse delivers locally.
constexpr double localMiles = 30;

enum class CostKind {
    Production,
    PlantWarehouse,
    WarehouseCustomer,
    LocalDelivery,
    Handling,
    StockOrders,
    CustomerOrders,
    Storage,
    Capital
};
constexpr int costKinds = 9;

/// $ a year by kind.
class Costs {
  public:
    double& operator()(CostKind kind) { return amounts_[static_cast<std::size_t>(kind)]; }
    double operator()(CostKind kind) const { return amounts_[static_cast<std::size_t>(kind)]; }
    Costs& operator+=(const Costs& other);
    double total() const;

  private:
    std::array<double, costKinds> amounts_{};
};

double miles(const Plant& plant, const Warehouse& warehouse);
double miles(const Warehouse& warehouse, const Customer& customer);

/// What it costs to make so many cwt. in a plant and to send them to a warehouse.
Costs supplyCosts(const Case& problem, const Plant& plant, const Warehouse& warehouse, double amount);

/// What it costs to deliver so many cwt. from a warehouse to a customer.
Costs deliveryCosts(const Case& problem, const Warehouse& warehouse, const Customer& customer, double amount);

/// What it costs to handle so many cwt. in a warehouse, and to process their orders.
Costs handlingCosts(const Warehouse& warehouse, double amount);

/// What the inventory for a throughput costs in a warehouse.
Costs inventoryCosts(const Case& problem, const Warehouse& warehouse, double throughput);

/// The inventory that a throughput calls for, cwt.
double inventory(const Case& problem, double throughput);

} // namespace vantore::warelo
