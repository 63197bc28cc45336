#include "solvers/WARELO/plan.h"

#include <algorithm>
#include <numeric>

namespace vantore::warelo {

namespace {

/// Flows below this share of the sales are what rounding has left.
constexpr double negligibleShare = 1E-9;

/// What a plant supplies of a warehouse, and the customers counted to it.
struct Share {
    int plant = 0;
    double left = 0; ///< cwt.
    std::vector<Plan::ServedCustomer*> customers = {};
};

void countTo(Share& share, Plan::ServedCustomer& customer, double sales) {
    customer.plant = share.plant;
    share.left -= sales;
    share.customers.push_back(&customer);
}

/// A plant without a customer gets the last, smallest one of the plant that has the most.
void giveTo(Share& share, std::vector<Share>& shares) {
    Share& giver =
        *std::ranges::max_element(shares, {}, [](const Share& other) { return other.customers.size(); });
    if (giver.customers.size() < 2) return;
    share.customers.push_back(giver.customers.back());
    giver.customers.pop_back();
    share.customers.back()->plant = share.plant;
}

void countToPlants(const Case& problem, std::vector<Plan::ServedCustomer*> customers,
                   std::vector<Share> shares) {
    const auto sales = [&](const Plan::ServedCustomer* customer) {
        return problem.customers(customer->row).sales;
    };
    std::ranges::stable_sort(customers, std::ranges::greater(), sales);
    for (Plan::ServedCustomer* customer : customers)
        countTo(*std::ranges::max_element(shares, {}, &Share::left), *customer, sales(customer));
    for (Share& share : shares)
        if (share.customers.empty()) giveTo(share, shares);
}

void takeCustomers(Plan& plan, const Case& problem, const Network& network, const Allocation& allocation) {
    for (std::size_t c = 0; c < allocation.size(); ++c) {
        const int row = network.customers[c].row;
        const int warehouse = network.warehouses[allocation[c]].row;
        plan.customers.push_back({.row = row,
                                  .warehouse = warehouse,
                                  .miles = miles(problem.warehouses(warehouse), problem.customers(row))});
    }
}

void takeFlows(Plan& plan, const Network& network, const std::vector<double>& throughput) {
    const Supply supply = cheapestSupply(network, throughput);
    const double negligible = negligibleShare * network.sales();
    for (std::size_t p = 0; p < network.plants.size(); ++p)
        for (std::size_t w = 0; w < throughput.size(); ++w) {
            const double flow = supply.flows(static_cast<long long>(p), static_cast<long long>(w));
            if (flow > negligible) plan.shipped(network.plants[p].row, network.warehouses[w].row) = flow;
        }
}

Plan::OpenWarehouse opened(Plan& plan, const Case& problem, int row) {
    Plan::OpenWarehouse open{.row = row};
    const Warehouse& warehouse = problem.warehouses(row);
    std::vector<Plan::ServedCustomer*> served;
    for (Plan::ServedCustomer& customer : plan.customers) {
        if (customer.warehouse != row) continue;
        served.push_back(&customer);
        const Customer& buyer = problem.customers(customer.row);
        open.throughput += buyer.sales;
        open.costs += deliveryCosts(problem, warehouse, buyer, buyer.sales);
    }
    open.customers = static_cast<int>(served.size());
    open.costs += handlingCosts(warehouse, open.throughput);
    open.costs += inventoryCosts(problem, warehouse, open.throughput);
    std::vector<Share> shares;
    for (int p = 1; p <= problem.plantCount; ++p) {
        const double amount = plan.shipped(p, row);
        if (amount == 0) continue;
        open.plants.push_back(p);
        open.costs += supplyCosts(problem, problem.plants(p), warehouse, amount);
        shares.push_back({.plant = p, .left = amount});
    }
    if (!shares.empty()) countToPlants(problem, served, std::move(shares));
    return open;
}

} // namespace

double Plan::output(int plant) const {
    double output = 0;
    for (const OpenWarehouse& warehouse : warehouses) output += shipped(plant, warehouse.row);
    return output;
}

Costs Plan::costs() const {
    Costs costs;
    for (const OpenWarehouse& warehouse : warehouses) costs += warehouse.costs;
    return costs;
}

Plan planOf(const Case& problem, const Network& network, const Allocation& allocation) {
    Plan plan;
    const std::vector<double> throughput = throughputOf(network, allocation);
    takeCustomers(plan, problem, network, allocation);
    takeFlows(plan, network, throughput);
    for (std::size_t w = 0; w < throughput.size(); ++w)
        if (throughput[w] > 0) plan.warehouses.push_back(opened(plan, problem, network.warehouses[w].row));
    return plan;
}

std::vector<wareloca::Flow> flowsOf(const Case& problem, const Plan& plan) {
    std::vector<wareloca::Flow> flows;
    for (const Plan::ServedCustomer& served : plan.customers) {
        const Customer& customer = problem.customers(served.row);
        const Warehouse& warehouse = problem.warehouses(served.warehouse);
        const Plant& plant = problem.plants(served.plant);
        flows.push_back({.customer = {customer.x, customer.y},
                         .warehouse = served.warehouse,
                         .from = {warehouse.x, warehouse.y},
                         .plant = served.plant,
                         .source = {plant.x, plant.y}});
    }
    return flows;
}

} // namespace vantore::warelo
