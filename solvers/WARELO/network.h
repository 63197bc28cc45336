#pragma once

#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "location/WARELOCA/problem.h"

namespace vantore::warelo {

using wareloca::Case;

/// A figure for each plant and warehouse, and for each warehouse and customer; all numbered from 0.
using SupplyTable = Table2<double, 0, wareloca::mostPlants - 1, 0, wareloca::mostWarehouses - 1>;
using DeliveryTable = Table2<double, 0, wareloca::mostWarehouses - 1, 0, wareloca::mostCustomers - 1>;

/// The share of the capacity by which the rounding of their sum may let the sales exceed it.
constexpr double roundingShare = 1E-12;

/// What a case asks to be decided: which selected warehouse serves each customer, and how much each selected
/// plant sends to each warehouse. All costs of a cwt. that don't depend on how much a warehouse handles are
/// put together. Plants, warehouses and customers are numbered from 0 here; `row` is their row in the case.
struct Network {
    struct Plant {
        int row = 0;
        double capacity = 0; ///< cwt., above 0
    };
    struct Warehouse {
        int row = 0;
        double inventoryRate = 0; ///< $ a year for the inventory of a throughput of 1 cwt.
    };
    struct Customer {
        int row = 0;
        double sales = 0; ///< cwt., above 0
    };

    std::vector<Plant> plants;
    std::vector<Warehouse> warehouses;
    std::vector<Customer> customers;
    SupplyTable supplyCost;     ///< $/cwt.: production and transport
    DeliveryTable deliveryCost; ///< $/cwt.: handling and orders in the warehouse, transport or local delivery
    double exponent = 0;

    double sales() const;    ///< of all customers
    double capacity() const; ///< of all plants

    double supplyCostOf(std::size_t plant, std::size_t warehouse) const {
        return supplyCost(static_cast<long long>(plant), static_cast<long long>(warehouse));
    }
    double deliveryCostOf(std::size_t warehouse, std::size_t customer) const {
        return deliveryCost(static_cast<long long>(warehouse), static_cast<long long>(customer));
    }

    /// $ a year: concave in the throughput, and 0 without any.
    double inventoryCost(std::size_t warehouse, double throughput) const {
        return throughput > 0 ? warehouses[warehouse].inventoryRate * std::pow(throughput, exponent) : 0;
    }
};

/// What makes a case one that can't be evaluated, in words for the user: a figure of a selected row or of a
/// customer that is negative or beyond all measure, an order size of 0, an exponent outside 0 to 1, no
/// selected plant or warehouse, no sales, or less capacity than sales.
std::optional<std::string> faultIn(const Case& problem);

/// The network of a case without a fault. Plants without capacity and customers without sales aren't in it.
Network networkOf(const Case& problem);

} // namespace vantore::warelo
