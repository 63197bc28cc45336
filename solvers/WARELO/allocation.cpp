#include "solvers/WARELO/allocation.h"

namespace vantore::warelo {

std::vector<double> throughputOf(const Network& network, const Allocation& allocation) {
    std::vector<double> throughput(network.warehouses.size());
    for (std::size_t c = 0; c < allocation.size(); ++c)
        throughput[allocation[c]] += network.customers[c].sales;
    return throughput;
}

double costOf(const Network& network, const Allocation& allocation) {
    const std::vector<double> throughput = throughputOf(network, allocation);
    double cost = cheapestSupply(network, throughput).cost;
    for (std::size_t c = 0; c < allocation.size(); ++c)
        cost += network.customers[c].sales * network.deliveryCostOf(allocation[c], c);
    for (std::size_t w = 0; w < throughput.size(); ++w) cost += network.inventoryCost(w, throughput[w]);
    return cost;
}

Allocation cheapestAllocation(const Network& network, const std::vector<double>& warehousePrice) {
    Allocation allocation(network.customers.size());
    for (std::size_t c = 0; c < allocation.size(); ++c)
        for (std::size_t w = 1; w < network.warehouses.size(); ++w) {
            const std::size_t best = allocation[c];
            if (warehousePrice[w] + network.deliveryCostOf(w, c) <
                warehousePrice[best] + network.deliveryCostOf(best, c))
                allocation[c] = w;
        }
    return allocation;
}

} // namespace vantore::warelo
