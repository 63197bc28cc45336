#pragma once

#include <array>
#include <optional>
#include <string>

#include "shell/base/message.h"
#include "shell/base/record_fields.h"
#include "shell/base/table.h"

namespace vantore::layout {

constexpr int mostProducts = 500;

/// By what the products are ranked, with the numbers of the problem file.
enum class Rule { Popularity = 1, Size = 2, CubePerOrder = 3 };

struct Product {
    std::string label;
    double sales = 0;  ///< units a year
    double size = 0;   ///< cubic feet a unit
    double turns = 0;  ///< of the inventory, a year
    double orders = 0; ///< a year
};

struct Problem {
    std::string label;
    Rule rule = Rule::Popularity;
    int rowCount = 0;
    Table<Product, 1, mostProducts> products;
};

/// The members that the file holds and the user edits, in their order.
inline constexpr std::array<Field<Product>, 5> productFields = {
    &Product::label, &Product::sales, &Product::size, &Product::turns, &Product::orders};

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items; a number that is no rule's stands for popularity. InputPastEnd for a short
/// file, SubscriptOutOfRange for a count of products outside 0 to 500.
Problem read(ItemReader& reader);

/// Writes the items; product labels without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

/// What doesn't allow a solution: a product without inventory turns, by which its space is divided.
std::optional<Message> fault(const Problem& problem);

} // namespace vantore::layout
