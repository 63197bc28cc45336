#pragma once

#include <cstdint>
#include <variant>

#include "mathprog/LNPROG/problem.h"
#include "shell/base/table.h"

namespace vantore::lnprog {

/// The two-phase simplex method on a dense tableau.
///
/// With m constraints and n variables, rows 1 to m of the tableau are the constraints, row m + 1 is the
/// objective, row m + 2 the sum of infeasibilities that phase one drives to 0. Column 1 holds the right-hand
/// sides (the levels of the basic variables; in the objective row the negated objective value), column v + 1
/// variable v. Variables n + 1, n + 2, ... are added in the order of the rows: a slack for "<", an artificial
/// for "=", a surplus and an artificial for ">".
///
/// The entering variable is the one with the most negative cost (Dantzig's rule), the first of equal ones; of
/// equal ratios the upper row leaves. Rows keep the sign of their right-hand side. A row without a relation
/// has no variable of its own, and its entry of `basis` stays what the solve before has left there.
///
/// Source: Dantzig, "Linear Programming and Extensions" (1963), chapter 5.

constexpr int lastTableauRow = mostConstraints + 2;
constexpr int lastTableauColumn = 309;

/// The tables of the method, which a window keeps from solve to solve.
struct Simplex {
    Table2<double, 0, lastTableauRow, 0, lastTableauColumn> tableau;
    Table2<std::int32_t, 0, lastTableauRow, 0, lastTableauColumn>
        artificialMark;                           ///< 1 where the column holds the artificial of the row
    Table<std::int32_t, 0, lastTableauRow> basis; ///< number of the row's basic variable, 0 for none
    int constraints = 0;                          ///< m
    int lastColumn = 0;                           ///< N, the last column in use

    int objectiveRow() const { return constraints + 1; }
    int phaseOneRow() const { return constraints + 2; }
};

struct Optimal {};

/// Artificial variables are left above 0.
struct Infeasible {};

/// No row limits the entering variable.
struct Unbounded {
    int column = 0;    ///< of the tableau
    int iteration = 0; ///< from 1
};

using Outcome = std::variant<Optimal, Infeasible, Unbounded>;

/// Sets up the initial tableau, without the phase-one row.
void buildTableau(Simplex& simplex, const Problem& problem);

/// Sets up the tableau and runs both phases on it; what they end with stays in `simplex`. Overflow when an
/// element leaves the double range or the iterations reach 32767, which only a cycling problem does.
Outcome solve(Simplex& simplex, const Problem& problem);

/// The row in which a variable is basic, the first of several; nothing where it is in none.
std::optional<int> basicRow(const Simplex& simplex, int variable);

} // namespace vantore::lnprog
