#include "tests/solvers/WARELO/cases.h"

#include <cmath>
#include <string>

#include "solvers/WARELO/evaluate.h"

namespace vantore::tests {

using wareloca::Case;
using wareloca::Customer;
using wareloca::Plant;
using wareloca::Warehouse;

namespace {

class Dice {
  public:
    explicit Dice(std::mt19937& random) : random_(random) {}

    double between(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    bool chance(double share) { return between(0, 1) < share; }

    /// To four digits, as a user would type it.
    double typed(double value) {
        const double unit = std::pow(10.0, std::floor(std::log10(value)) - 3);
        return std::round(value / unit) * unit;
    }

  private:
    std::mt19937& random_;
};

template <class Row>
void place(Dice& dice, Row& row, const char* kind, int number) {
    row.x = std::round(dice.between(25, 49) * 100) / 100;
    row.y = std::round(dice.between(67, 124) * 100) / 100;
    row.location = kind + std::to_string(number);
}

Warehouse randomWarehouse(Dice& dice) {
    Warehouse warehouse;
    warehouse.storage = dice.chance(.1) ? 0 : dice.typed(dice.between(.01, .5));
    warehouse.handling = dice.typed(dice.between(.1, 2));
    warehouse.stockOrderProcessing = dice.chance(.1) ? 0 : dice.typed(dice.between(5, 50));
    warehouse.stockOrderSize = dice.typed(dice.between(100, 600));
    warehouse.customerOrderProcessing = dice.typed(dice.between(.5, 5));
    warehouse.customerOrderSize = dice.typed(dice.between(2, 20));
    warehouse.localDelivery = dice.typed(dice.between(.5, 4));
    return warehouse;
}

void addCosts(Dice& dice, Case& problem) {
    problem.plantWarehouseFixed = dice.typed(dice.between(.1, 3));
    problem.plantWarehouseVariable = dice.typed(dice.between(.0005, .005));
    problem.warehouseCustomerFixed = dice.typed(dice.between(.5, 6));
    problem.warehouseCustomerVariable = dice.typed(dice.between(.001, .01));
    problem.capitalCost = dice.typed(dice.between(1, 30));
    problem.productValue = dice.typed(std::pow(10.0, dice.between(0, 4)));
    problem.inventoryConstant = dice.typed(dice.between(.5, 30));
    problem.inventoryExponent = dice.chance(.1)   ? 0
                                : dice.chance(.1) ? 1
                                                  : std::round(dice.between(.2, .95) * 100) / 100;
    problem.desiredDistance = dice.number(50, 1500);
}

double addCustomers(Dice& dice, Case& problem, int most) {
    const double unit = std::pow(10.0, dice.between(0, 5));
    double sales = 0;
    problem.customerCount = dice.number(1, most);
    for (int i = 1; i <= problem.customerCount; ++i) {
        Customer& customer = problem.customers(i);
        place(dice, customer, "C", i);
        customer.region = dice.number(1, 9);
        customer.sales = i > 1 && dice.chance(.1) ? 0 : dice.typed(unit * dice.between(.1, 1));
        sales += customer.sales;
    }
    return sales;
}

void addPlants(Dice& dice, Case& problem, int most, double sales) {
    problem.plantCount = dice.number(1, most);
    double capacity = 0;
    for (int i = 1; i <= problem.plantCount; ++i) {
        Plant& plant = problem.plants(i);
        place(dice, plant, "P", i);
        plant.productionCost = dice.typed(dice.between(5, 30));
        if (i == 1 || dice.chance(.7)) plant.selection = mark;
        plant.capacity = dice.typed(sales * dice.between(.1, 1));
        if (plant.selected()) capacity += plant.capacity;
    }
    // Just enough of it, or plenty.
    const double wanted = sales * (dice.chance(.5) ? 1.001 : dice.between(1.1, 3));
    for (int i = 1; i <= problem.plantCount; ++i) problem.plants(i).capacity *= wanted / capacity;
}

} // namespace

Case randomCase(std::mt19937& random, CaseSize most) {
    Dice dice(random);
    Case problem;
    addCosts(dice, problem);
    const double sales = addCustomers(dice, problem, most.customers);
    addPlants(dice, problem, most.plants, sales);
    problem.warehouseCount = dice.number(1, most.warehouses);
    for (int i = 1; i <= problem.warehouseCount; ++i) {
        problem.warehouses(i) = randomWarehouse(dice);
        place(dice, problem.warehouses(i), "W", i);
        if (i == 1 || dice.chance(.6)) problem.warehouses(i).selection = mark;
    }
    return problem;
}

Case freeCase() {
    Case problem;
    problem.plantCount = problem.warehouseCount = problem.customerCount = 1;
    problem.plants(1) = {.x = 40, .y = 80, .location = "P", .capacity = 100, .selection = mark};
    problem.warehouses(1) = {.x = 40, .y = 80, .location = "W", .selection = mark};
    problem.customers(1) = {.region = 1, .x = 40, .y = 80, .sales = 10, .location = "C"};
    return problem;
}

Case baseCase() {
    return warelo::readCase(std::filesystem::path(VANTORE_SOURCE_FOLDER) / "install");
}

} // namespace vantore::tests
