#include "solvers/WARELO/costs.h"

#include <cmath>
#include <functional>
#include <numeric>

namespace vantore::warelo {

namespace {

template <class Row>
EarthPlace placeOf(const Row& row) {
    return {row.x, row.y};
}

double costOf(wareloca::TransportRate rate, double distance, double amount) {
    return (rate.fixed + rate.variable * distance) * amount;
}

/// The cost of the orders that an amount comes in; free orders may be of any size.
double orderCost(double costOfOrder, double amount, double orderSize) {
    return costOfOrder == 0 ? 0 : costOfOrder * amount / orderSize;
}

} // namespace

Costs& Costs::operator+=(const Costs& other) {
    for (std::size_t i = 0; i < amounts_.size(); ++i) amounts_[i] += other.amounts_[i];
    return *this;
}

double Costs::total() const {
    return std::accumulate(amounts_.begin(), amounts_.end(), 0.0);
}

double miles(const Plant& plant, const Warehouse& warehouse) {
    return greatCircleMiles(placeOf(plant), placeOf(warehouse));
}

double miles(const Warehouse& warehouse, const Customer& customer) {
    return greatCircleMiles(placeOf(warehouse), placeOf(customer));
}

Costs supplyCosts(const Case& problem, const Plant& plant, const Warehouse& warehouse, double amount) {
    Costs costs;
    costs(CostKind::Production) = plant.productionCost * amount;
    costs(CostKind::PlantWarehouse) = costOf(problem.plantWarehouse(), miles(plant, warehouse), amount);
    return costs;
}

Costs deliveryCosts(const Case& problem, const Warehouse& warehouse, const Customer& customer,
                    double amount) {
    Costs costs;
    const double distance = miles(warehouse, customer);
    if (distance <= localMiles)
        costs(CostKind::LocalDelivery) = warehouse.localDelivery * amount;
    else
        costs(CostKind::WarehouseCustomer) = costOf(problem.warehouseCustomer(), distance, amount);
    return costs;
}

Costs handlingCosts(const Warehouse& warehouse, double amount) {
    Costs costs;
    costs(CostKind::Handling) = warehouse.handling * amount;
    costs(CostKind::StockOrders) =
        orderCost(warehouse.stockOrderProcessing, amount, warehouse.stockOrderSize);
    costs(CostKind::CustomerOrders) =
        orderCost(warehouse.customerOrderProcessing, amount, warehouse.customerOrderSize);
    return costs;
}

Costs inventoryCosts(const Case& problem, const Warehouse& warehouse, double throughput) {
    Costs costs;
    const double value = inventory(problem, throughput) * problem.productValue;
    costs(CostKind::Storage) = warehouse.storage * value;
    costs(CostKind::Capital) = problem.capitalCost / 100 * value;
    return costs;
}

double inventory(const Case& problem, double throughput) {
    return throughput > 0 ? problem.inventoryConstant * std::pow(throughput, problem.inventoryExponent) : 0;
}

} // namespace vantore::warelo
