#pragma once

#include <random>

#include "location/WARELOCA/problem.h"

namespace vantore::tests {

/// How large a random case is at most.
struct CaseSize {
    int plants = wareloca::mostPlants;
    int warehouses = wareloca::mostWarehouses;
    int customers = wareloca::mostCustomers;
};

/// A case with at least one selected plant and warehouse, sales within the selected capacity, figures of
/// every order of magnitude, and some customers without sales.
wareloca::Case randomCase(std::mt19937& random, CaseSize most);

/// A plant, a warehouse and a customer in one place, selected, whose every cost of a cwt. is 0.
wareloca::Case freeCase();

/// The base case that the suite comes with.
wareloca::Case baseCase();

} // namespace vantore::tests
