#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::inpol {

constexpr int mostProducts = 50;

/// One row of each of the three grids. Demands, lead times and the carrying cost are per unit of the
/// problem's time frame; the carrying cost is a fraction of the product's value.
struct Product {
    std::string demandLabel, priceLabel, miscLabel; ///< each grid names its rows on its own

    double avgDemand = 0;
    double sdDemand = 0;
    double avgLeadTime = 0;
    double sdLeadTime = 0;

    double unitPrice = 0;
    double transportRate = 0;
    double carryingCost = 0;
    double orderCost = 0;    ///< for one order
    double stockoutCost = 0; ///< for one unit short

    double initialInventory = 0; ///< kept with the problem; no policy uses it
    double orderQuantity = 0;
    double serviceIndex = 0; ///< probability of no stockout while waiting for an order
};

/// The columns of one grid in their order, which is the order of the file too: the label, then values.
struct ProductTable {
    std::span<const Field<Product>> fields;

    std::string Product::*label() const { return std::get<std::string Product::*>(fields.front()); }
    std::size_t valueCount() const { return fields.size() - 1; }
    double Product::*value(std::size_t k) const { return std::get<double Product::*>(fields[k + 1]); }
};

inline constexpr std::array<Field<Product>, 5> demandFields = {&Product::demandLabel, &Product::avgDemand,
                                                               &Product::sdDemand, &Product::avgLeadTime,
                                                               &Product::sdLeadTime};
inline constexpr std::array<Field<Product>, 6> priceFields = {
    &Product::priceLabel,   &Product::unitPrice, &Product::transportRate,
    &Product::carryingCost, &Product::orderCost, &Product::stockoutCost};
inline constexpr std::array<Field<Product>, 4> miscFields = {&Product::miscLabel, &Product::initialInventory,
                                                             &Product::orderQuantity, &Product::serviceIndex};

/// Demand and lead time, price and cost, miscellaneous.
inline constexpr std::array<ProductTable, 3> productTables = {{{demandFields}, {priceFields}, {miscFields}}};

struct Problem {
    std::string label;
    int productCount = 0;
    double timeFrame = 0;
    std::string jointOrderAnswer; ///< answers as typed; only "Y" in either case counts as yes
    std::string serviceIndexAnswer;
    std::string sensitivityAnswer;
    double jointCost = 0; ///< A, for one joint order
    double cycleTime = 0; ///< in units of the time frame; 0 to have it computed
    std::string orderQuantityAnswer;
    Table<Product, 1, mostProducts> products;

    bool jointlyOrdered() const;
    bool serviceIndexSpecified() const;
    bool wantsSensitivity() const;
    bool orderQuantitySpecified() const;
};

/// The members that the user edits in boxes, in their order in the file; the number of products follows the
/// label.
inline constexpr std::array<Field<Problem>, 8> boxFields = {&Problem::label,
                                                            &Problem::timeFrame,
                                                            &Problem::jointOrderAnswer,
                                                            &Problem::serviceIndexAnswer,
                                                            &Problem::sensitivityAnswer,
                                                            &Problem::jointCost,
                                                            &Problem::cycleTime,
                                                            &Problem::orderQuantityAnswer};

/// Time-frame units in a year: 365 calendar days, 250 working days, 52 weeks, 12 months, else 1.
double periodsPerYear(double timeFrame);

/// "da", "wk", "mo" or "yr".
std::string timeUnit(double timeFrame);

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for a number of products
/// outside 0 to 50.
Problem read(ItemReader& reader);

/// Writes the items; product labels without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

} // namespace vantore::inpol
