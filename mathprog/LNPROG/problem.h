#pragma once

#include <optional>
#include <string>

#include "shell/base/item_stream.h"
#include "shell/base/table.h"

namespace vantore::lnprog {

constexpr int mostConstraints = 50;
constexpr int mostVariables = 100;

/// What stands beside a row's coefficients.
struct Row {
    std::string relation; ///< "<", "=" or ">"; any other text gives the row no variable of its own
    double rightSide = 0;
};

/// A linear programme whose objective is minimised.
struct Problem {
    std::string label;
    int constraints = 0; ///< m
    int variables = 0;   ///< n

    /// Rows 1 to m are the constraints, row m + 1 is the objective: column arithmetic can leave a number
    /// under its right-hand side.
    Table<Row, 1, mostConstraints + 1> rows;

    /// The coefficient of variable j in row i, nothing where the user has left the cell untouched. Row m + 1
    /// holds the objective's.
    Table2<std::optional<double>, 1, mostConstraints + 1, 1, mostVariables> coefficients;

    int objectiveRow() const { return constraints + 1; }
};

/// The text of a new problem's file.
std::string skeleton();

/// Reads a problem file's items. InputPastEnd for a short file, SubscriptOutOfRange for more than 50
/// constraints or 100 variables and for a row or column that the problem hasn't.
Problem read(ItemReader& reader);

/// Writes the items: every coefficient that isn't untouched, row by row.
void write(const Problem& problem, ItemWriter& writer);

} // namespace vantore::lnprog
