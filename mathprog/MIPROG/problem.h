#pragma once

#include <string>

#include "shell/base/item_stream.h"
#include "shell/base/table.h"

namespace vantore::miprog {

constexpr int mostRows = 50;    ///< constraints
constexpr int mostColumns = 99; ///< variables

/// The types of a variable; a continuous one has none.
constexpr const char* integerType = "INT";
constexpr const char* binaryType = "0,1";

/// A mixed integer program as the user types it. Rows i run from 1 to m, columns j from 1 to n.
struct Problem {
    std::string label;
    bool maximize = true;
    int m = 0; ///< constraints
    int n = 0; ///< variables
    Table<std::string, 0, 52> rowLabel;
    Table<std::string, 0, 102> columnLabel;
    Table<std::string, 0, 102> type;    ///< "INT", "0,1" or empty
    Table<std::string, 0, 52> relation; ///< "<", "=" or ">" when it is right
    Table<double, 0, 52> rhs;
    Table<double, 0, 102> objCoef;
    Table2<double, 0, 52, 0, 102> coef;
};

/// The labels of a row and a column that the user hasn't named.
std::string defaultRowLabel(int row);
std::string defaultColumnLabel(int column);

/// The type that follows a type when its cell is clicked: none, "INT", "0,1", none.
std::string nextType(const std::string& type);

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for more than 50
/// constraints or 99 variables, more types than variables and a type for a column that isn't there.
Problem read(ItemReader& reader);

/// Writes the items; labels without blanks at their ends, an empty one as one blank.
void write(const Problem& problem, ItemWriter& writer);

} // namespace vantore::miprog
