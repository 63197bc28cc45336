#pragma once

#include <array>
#include <string>

#include "location/mark.h"
#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::wareloca {

/// The case of a company with plants, candidate warehouses and customers. Amounts are hundredweights (cwt.) a
/// year, places degrees: x is the north latitude, y the west longitude.

constexpr int mostPlants = 6;
constexpr int mostWarehouses = 48;
constexpr int mostCustomers = 191;

struct Plant {
    double x = 0;
    double y = 0;
    std::string location;
    double capacity = 0;       ///< cwt.
    double productionCost = 0; ///< $/cwt.
    std::string selection;     ///< the mark or nothing

    bool selected() const { return selection == mark; }
};

struct Warehouse {
    double x = 0;
    double y = 0;
    std::string location;
    double storage = 0;                 ///< $ a year for each $ of inventory
    double handling = 0;                ///< $/cwt.
    double stockOrderProcessing = 0;    ///< $/order
    double stockOrderSize = 0;          ///< cwt./order
    double customerOrderProcessing = 0; ///< $/order
    double customerOrderSize = 0;       ///< cwt./order
    double localDelivery = 0;           ///< $/cwt.
    std::string selection;              ///< the mark or nothing

    bool selected() const { return selection == mark; }
};

struct Customer {
    double region = 0;
    double x = 0;
    double y = 0;
    double sales = 0; ///< cwt.
    std::string location;
};

/// A cost of transport: $/cwt. = fixed + variable x miles.
struct TransportRate {
    double fixed = 0;
    double variable = 0;
};

struct Case {
    int plantCount = 0;
    Table<Plant, 1, mostPlants> plants;
    int warehouseCount = 0;
    Table<Warehouse, 1, mostWarehouses> warehouses;
    int customerCount = 0;
    Table<Customer, 1, mostCustomers> customers;
    double plantWarehouseFixed = 0, plantWarehouseVariable = 0; ///< $/cwt., $/cwt./mile
    double warehouseCustomerFixed = 0, warehouseCustomerVariable = 0;
    double capitalCost = 0;                              ///< % of the inventory's value a year
    double productValue = 0;                             ///< $/cwt.
    double inventoryConstant = 0, inventoryExponent = 0; ///< cwt. = constant x throughput ^ exponent
    double desiredDistance = 0;                          ///< of customers from their warehouse, miles

    TransportRate plantWarehouse() const { return {plantWarehouseFixed, plantWarehouseVariable}; }
    TransportRate warehouseCustomer() const { return {warehouseCustomerFixed, warehouseCustomerVariable}; }
};

/// The members that a line of the file holds, and those that a row of the grid shows.
inline constexpr std::array<Field<Plant>, 5> plantItems = {&Plant::x, &Plant::y, &Plant::location,
                                                           &Plant::capacity, &Plant::productionCost};
inline constexpr std::array<Field<Plant>, 4> plantColumns = {&Plant::selection, &Plant::location,
                                                             &Plant::capacity, &Plant::productionCost};
inline constexpr std::array<Field<Warehouse>, 10> warehouseItems = {&Warehouse::x,
                                                                    &Warehouse::y,
                                                                    &Warehouse::location,
                                                                    &Warehouse::storage,
                                                                    &Warehouse::handling,
                                                                    &Warehouse::stockOrderProcessing,
                                                                    &Warehouse::stockOrderSize,
                                                                    &Warehouse::customerOrderProcessing,
                                                                    &Warehouse::customerOrderSize,
                                                                    &Warehouse::localDelivery};
inline constexpr std::array<Field<Warehouse>, 9> warehouseColumns = {&Warehouse::selection,
                                                                     &Warehouse::location,
                                                                     &Warehouse::storage,
                                                                     &Warehouse::handling,
                                                                     &Warehouse::stockOrderProcessing,
                                                                     &Warehouse::stockOrderSize,
                                                                     &Warehouse::customerOrderProcessing,
                                                                     &Warehouse::customerOrderSize,
                                                                     &Warehouse::localDelivery};
inline constexpr std::array<Field<Customer>, 5> customerItems = {
    &Customer::region, &Customer::x, &Customer::y, &Customer::sales, &Customer::location};
inline constexpr std::array<Field<Customer>, 3> customerColumns = {&Customer::region, &Customer::location,
                                                                   &Customer::sales};

/// The cost functions, in the order of the file's last three lines.
inline constexpr std::array<Field<Case>, 2> supplyFields = {&Case::plantWarehouseFixed,
                                                            &Case::plantWarehouseVariable};
inline constexpr std::array<Field<Case>, 4> inventoryFields = {
    &Case::capitalCost, &Case::productValue, &Case::inventoryConstant, &Case::inventoryExponent};
inline constexpr std::array<Field<Case>, 2> deliveryFields = {&Case::warehouseCustomerFixed,
                                                              &Case::warehouseCustomerVariable};

/// The figures in text boxes.
inline constexpr std::array<Field<Case>, 9> scalarFields = {
    &Case::plantWarehouseFixed,    &Case::plantWarehouseVariable,    &Case::capitalCost,
    &Case::productValue,           &Case::inventoryConstant,         &Case::inventoryExponent,
    &Case::warehouseCustomerFixed, &Case::warehouseCustomerVariable, &Case::desiredDistance};

/// The text of a new case's file, which has no rows.
std::string skeleton();

/// Reads a case file's items; nothing is selected. InputPastEnd for a short file, SubscriptOutOfRange for a
/// count outside 0 to 6, 48 or 191.
Case read(ItemReader& reader);

/// Writes the items; locations without blanks at their ends, an empty one as one blank.
void write(const Case& problem, ItemWriter& writer);

/// Reads the items of a selection file: the desired distance, and the marks of the plants and the warehouses
/// of the case. Marks of rows that the case doesn't have are passed over. Errors as of `read`.
void readSelection(Case& problem, ItemReader& reader);

/// Writes the items of a selection file, a row that isn't selected as one blank.
void writeSelection(const Case& problem, ItemWriter& writer);

} // namespace vantore::wareloca
