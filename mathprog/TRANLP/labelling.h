#pragma once

#include <cstdint>
#include <functional>

#include "mathprog/TRANLP/problem.h"

namespace vantore::tranlp {

/// The primal-dual labelling method on a transportation problem whose supply equals its demand in whole
/// units.
///
/// Costs are reduced by row and column minima, and units are only placed on cells of reduced cost 0: first
/// greedily, then along augmenting paths. A path is found by labels that spread in sweeps from the rows that
/// still have units: row to column over a cell of reduced cost 0, column to row over a cell that carries
/// units. When no label reaches a column that still needs units, the smallest reduced cost between a labelled
/// row and an unlabelled column is taken off the labelled rows and added to the labelled columns, which makes
/// at least that cell 0.
///
/// Everything is compared exactly. Ties: rows and columns are scanned in ascending order in each sweep, and a
/// needing column is taken at the first moment it is labelled.
///
/// The method always ends. Each augmentation ships at least one unit. A change of duals keeps the cells of
/// cost 0 between labelled rows and labelled columns (0 - d + d is 0 in floating point too), so the labels
/// after it cover those before it and at least one column more; as long as a row has units a column needs
/// some, so it is reached after at most N changes. Only without any column can a row keep its units (there
/// the sum of supplies is 0, some of them negative): the method ends there, too.
///
/// Time: one pass over the cells for each change of duals, a few machine words for each label. There
/// are as many passes as augmentations and changes together; augmentations at most as many as units, in
/// practice about as many as rows and columns. Source: Ford and Fulkerson, "Solving the transportation
/// problem", Management Science 3 (1956).

/// A balanced problem, worked on in place. Indices 1..rows and 1..cols; nothing else is touched.
struct Tableau {
    int rows = 0;                       ///< M with a balancing row
    int cols = 0;                       ///< N with a balancing column
    PlaceTable<std::int32_t> unitsLeft; ///< remaining supply
    PlaceTable<std::int32_t> needLeft;  ///< remaining demand; in sum as much as `unitsLeft`
    CellTable<double> reduced;          ///< costs in front of the method, reduced costs behind it
    CellTable<std::int32_t> alloc;      ///< shipments, all 0 in front of the method
};

/// Told of each augmentation: the row and the column of its last cell, and the units.
using AugmentationWatch = std::function<void(int row, int col, std::int32_t units)>;

/// Runs the method. Overflow when a cost or a count of units leaves its range.
void label(Tableau& tableau, const AugmentationWatch& watch = {});

/// Whole units in 32 bits; Overflow outside their range.
std::int32_t toUnits(std::int64_t units);

} // namespace vantore::tranlp
