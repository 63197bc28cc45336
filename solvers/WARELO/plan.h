#pragma once

#include <vector>

#include "location/WARELOCA/flows.h"
#include "solvers/WARELO/allocation.h"
#include "solvers/WARELO/costs.h"

namespace vantore::warelo {

/// An allocation in the rows of its case, with what it costs.
struct Plan {
    struct ServedCustomer {
        int row = 0;
        int warehouse = 0; ///< its row
        int plant = 0;     ///< the row of the plant that supplies the warehouse for this customer
        double miles = 0;  ///< from the warehouse
    };
    struct OpenWarehouse {
        int row = 0;
        int customers = 0;
        double throughput = 0;        ///< cwt.
        std::vector<int> plants = {}; ///< rows of those that supply it, in ascending order
        Costs costs = {};             ///< its supply and its deliveries included
    };

    std::vector<ServedCustomer> customers;                                        ///< by row
    std::vector<OpenWarehouse> warehouses;                                        ///< by row
    Table2<double, 1, wareloca::mostPlants, 1, wareloca::mostWarehouses> shipped; ///< cwt., by rows

    double output(int plant) const; ///< of a plant, cwt.
    Costs costs() const;            ///< of the network
};

/// The plan of an allocation with its cheapest supply.
///
/// Where several plants supply a warehouse its goods are one stock. A customer is then counted to one of
/// them: the largest customer first, to the plant whose share has most left. A plant that would get nobody so
/// gets the smallest customer of the plant with the most.
Plan planOf(const Case& problem, const Network& network, const Allocation& allocation);

/// The lines of TEMP.DAT.
std::vector<wareloca::Flow> flowsOf(const Case& problem, const Plan& plan);

} // namespace vantore::warelo
