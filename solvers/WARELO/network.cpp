#include "solvers/WARELO/network.h"

#include <array>
#include <functional>
#include <numeric>
#include <utility>

#include "shell/base/number_text.h"
#include "solvers/WARELO/costs.h"

namespace vantore::warelo {

namespace {

/// Beyond it no figure of a case makes sense, and products of several would leave the range of numbers.
constexpr double largest = 1E+12;

constexpr double mostLatitude = 90;
constexpr double mostLongitude = 360;

using Fault = std::optional<std::string>;

long long index(std::size_t place) {
    return static_cast<long long>(place);
}

template <class Row, int Most>
bool anySelected(int count, const Table<Row, 1, Most>& rows) {
    for (int i = 1; i <= count; ++i)
        if (rows(i).selected()) return true;
    return false;
}

template <class Record>
struct Check {
    double Record::*value;
    const char* name;
};

constexpr std::array<Check<Case>, 9> caseChecks = {
    {{&Case::plantWarehouseFixed, "fixed plant-warehouse transportation cost"},
     {&Case::plantWarehouseVariable, "variable plant-warehouse transportation cost"},
     {&Case::warehouseCustomerFixed, "fixed warehouse-customer transportation cost"},
     {&Case::warehouseCustomerVariable, "variable warehouse-customer transportation cost"},
     {&Case::capitalCost, "capital cost"},
     {&Case::productValue, "product value"},
     {&Case::inventoryConstant, "constant of the inventory function"},
     {&Case::inventoryExponent, "exponent of the inventory function"},
     {&Case::desiredDistance, "desired distance of customers"}}};
constexpr std::array<Check<Plant>, 2> plantChecks = {
    {{&Plant::capacity, "capacity"}, {&Plant::productionCost, "production cost"}}};
constexpr std::array<Check<Warehouse>, 7> warehouseChecks = {
    {{&Warehouse::storage, "storage rate"},
     {&Warehouse::handling, "handling rate"},
     {&Warehouse::stockOrderProcessing, "stock order processing cost"},
     {&Warehouse::stockOrderSize, "stock order size"},
     {&Warehouse::customerOrderProcessing, "customer order processing cost"},
     {&Warehouse::customerOrderSize, "customer order size"},
     {&Warehouse::localDelivery, "local delivery rate"}}};
constexpr std::array<Check<Customer>, 1> customerChecks = {{{&Customer::sales, "sales"}}};

/// The first figure that isn't from 0 to `largest`, with `of` in front of its name.
template <class Record, std::size_t Count>
Fault faultIn(const Record& record, const std::array<Check<Record>, Count>& checks, const std::string& of) {
    for (const Check<Record>& check : checks) {
        const double value = record.*check.value;
        if (value < 0) return of + check.name + " is negative: " + defaultText(value) + ".";
        if (value > largest) return of + check.name + " is too large: " + defaultText(value) + ".";
    }
    return std::nullopt;
}

template <class Row>
std::string named(const char* kind, int row, const Row& record) {
    return std::string(kind) + " " + std::to_string(row) + " (" + record.location + "): its ";
}

template <class Row>
Fault placeFault(const Row& row, const std::string& of) {
    if (std::abs(row.x) > mostLatitude) return of + "latitude is no latitude: " + defaultText(row.x) + ".";
    if (std::abs(row.y) > mostLongitude) return of + "longitude is no longitude: " + defaultText(row.y) + ".";
    return std::nullopt;
}

Fault plantFault(const Case& problem) {
    for (int i = 1; i <= problem.plantCount; ++i) {
        const Plant& plant = problem.plants(i);
        if (!plant.selected()) continue;
        const std::string of = named("Plant", i, plant);
        if (auto fault = faultIn(plant, plantChecks, of)) return fault;
        if (auto fault = placeFault(plant, of)) return fault;
    }
    return std::nullopt;
}

Fault warehouseFault(const Case& problem) {
    for (int i = 1; i <= problem.warehouseCount; ++i) {
        const Warehouse& warehouse = problem.warehouses(i);
        if (!warehouse.selected()) continue;
        const std::string of = named("Warehouse", i, warehouse);
        if (auto fault = faultIn(warehouse, warehouseChecks, of)) return fault;
        if (auto fault = placeFault(warehouse, of)) return fault;
        if (warehouse.stockOrderProcessing > 0 && warehouse.stockOrderSize == 0)
            return of + "stock orders cost something and have no size.";
        if (warehouse.customerOrderProcessing > 0 && warehouse.customerOrderSize == 0)
            return of + "customer orders cost something and have no size.";
    }
    return std::nullopt;
}

Fault customerFault(const Case& problem) {
    for (int i = 1; i <= problem.customerCount; ++i) {
        const Customer& customer = problem.customers(i);
        const std::string of = named("Customer", i, customer);
        if (auto fault = faultIn(customer, customerChecks, of)) return fault;
        if (auto fault = placeFault(customer, of)) return fault;
    }
    return std::nullopt;
}

Fault figureFault(const Case& problem) {
    if (auto fault = faultIn(problem, caseChecks, "The ")) return fault;
    if (problem.inventoryExponent > 1)
        return "The exponent of the inventory function is above 1: " +
               defaultText(problem.inventoryExponent) + ".";
    if (auto fault = plantFault(problem)) return fault;
    if (auto fault = warehouseFault(problem)) return fault;
    return customerFault(problem);
}

std::string amountText(double amount) {
    return format(amount, "###,###,###,##0.##");
}

Fault networkFault(const Case& problem, const Network& network) {
    if (!anySelected(problem.plantCount, problem.plants))
        return "No plant is selected.  Select at least one.";
    if (network.warehouses.empty()) return "No warehouse is selected.  Select at least one.";
    if (network.customers.empty()) return "No customer has any sales.";
    const double sales = network.sales();
    const double capacity = network.capacity();
    if (sales <= capacity * (1 + roundingShare)) return std::nullopt;
    return "The capacity of the selected plants does not suffice.  Capacity: " + amountText(capacity) +
           " cwt. a year.  Sales: " + amountText(sales) +
           " cwt. a year.  Shortfall: " + amountText(sales - capacity) + " cwt. a year.";
}

void takeRows(Network& network, const Case& problem) {
    for (int i = 1; i <= problem.plantCount; ++i) {
        const Plant& plant = problem.plants(i);
        if (plant.selected() && plant.capacity > 0) network.plants.push_back({i, plant.capacity});
    }
    for (int i = 1; i <= problem.warehouseCount; ++i) {
        const Warehouse& warehouse = problem.warehouses(i);
        if (warehouse.selected())
            network.warehouses.push_back({i, inventoryCosts(problem, warehouse, 1).total()});
    }
    for (int i = 1; i <= problem.customerCount; ++i)
        if (problem.customers(i).sales > 0) network.customers.push_back({i, problem.customers(i).sales});
}

void takeCosts(Network& network, const Case& problem) {
    for (std::size_t w = 0; w < network.warehouses.size(); ++w) {
        const Warehouse& warehouse = problem.warehouses(network.warehouses[w].row);
        const double handling = handlingCosts(warehouse, 1).total();
        for (std::size_t p = 0; p < network.plants.size(); ++p)
            network.supplyCost(index(p), index(w)) =
                supplyCosts(problem, problem.plants(network.plants[p].row), warehouse, 1).total();
        for (std::size_t c = 0; c < network.customers.size(); ++c) {
            const Customer& customer = problem.customers(network.customers[c].row);
            network.deliveryCost(index(w), index(c)) =
                handling + deliveryCosts(problem, warehouse, customer, 1).total();
        }
    }
}

} // namespace

double Network::sales() const {
    return std::transform_reduce(customers.begin(), customers.end(), 0.0, std::plus<>(),
                                 [](const Customer& customer) { return customer.sales; });
}

double Network::capacity() const {
    return std::transform_reduce(plants.begin(), plants.end(), 0.0, std::plus<>(),
                                 [](const Plant& plant) { return plant.capacity; });
}

std::optional<std::string> faultIn(const Case& problem) {
    if (auto fault = figureFault(problem)) return fault;
    Network network;
    takeRows(network, problem);
    return networkFault(problem, network);
}

Network networkOf(const Case& problem) {
    Network network;
    network.exponent = problem.inventoryExponent;
    takeRows(network, problem);
    takeCosts(network, problem);
    return network;
}

} // namespace vantore::warelo
