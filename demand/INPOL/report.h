#pragma once

#include <array>
#include <span>
#include <string>

#include "demand/INPOL/method.h"
#include "demand/INPOL/sensitivity.h"
#include "shell/base/print_lines.h"

namespace vantore::inpol {

/// The lines of the report. A line that begins with a star is a heading.

/// A product's policies and costs; the report's title before product 1. With joint orders the periodic
/// review alone.
void printProduct(PrintLines& page, int product, const StockingPolicies& policies, bool jointlyOrdered);

void printSummary(PrintLines& page, const Summary& summary, bool jointlyOrdered);

/// The tables of each product over the service levels from the second on.
void printSensitivity(PrintLines& page, const Sensitivity& sensitivity, const std::string& timeUnit);

/// A heading of two lines, one over the other.
struct ColumnHeading {
    const char* upper;
    const char* lower;
};

/// The headings of a product table: that of the row number, and those of the values.
struct TableHeading {
    ColumnHeading number;
    std::span<const ColumnHeading> values;
};

/// Headings in the order of `productTables`.
const std::array<TableHeading, 3>& tableHeadings();

/// The three product tables, as the problem's data are printed.
void printTables(PrintLines& page, const Problem& problem);

} // namespace vantore::inpol
