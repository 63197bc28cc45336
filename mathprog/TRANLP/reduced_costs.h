#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "mathprog/TRANLP/index_set.h"
#include "mathprog/TRANLP/problem.h"

namespace vantore::tranlp {

/// The reduced costs of the labelling method, with the set of columns of reduced cost 0 for each row.
///
/// A change of duals goes over most of the cells. It is done a row at a time, on rows of a fixed length whose
/// unused places hold an infinite cost, which never comes into anything.
class ReducedCosts {
  public:
    /// Reduces the costs of rows 1..rows and columns 1..cols by row, then by column minima. Overflow when a
    /// difference leaves the range.
    ReducedCosts(const CellTable<double>& cost, int rows, int cols);

    /// The columns of reduced cost 0.
    const IndexSet& zeros(int row) const { return zeros_[static_cast<std::size_t>(row)]; }

    /// Forgets which rows `least` has seen: an augmentation starts the labels anew.
    void forgetRows() { seen_ = {}; }

    /// The least reduced cost between `rows` and the columns not in `cols`, of which there must be one.
    /// Until `forgetRows` rows may only be added.
    double least(const IndexSet& rows, const IndexSet& cols);

    /// Takes `delta`, which `least` gave, off all cells of `rows`, and then adds it to all cells of `cols`,
    /// each step with its rounding. Overflow when a cost leaves the range.
    void change(double delta, const IndexSet& rows, const IndexSet& cols);

    /// Puts the reduced costs into a table.
    void copyTo(CellTable<double>& table) const;

    static constexpr std::size_t places = mostPlaces + 1;
    static constexpr std::size_t width = (places + 7) / 8 * 8;

  private:
    static constexpr std::size_t spareRows = 3; ///< unused rows that fill up the last four
    using Line = std::array<double, width>;     ///< a place for each column

    Line& line(int row) { return cells_[static_cast<std::size_t>(row)]; }

    template <class Work>
    void inFours(const IndexSet& rows, Work work);
    void measure(const CellTable<double>& cost);
    void takeRow(int row, std::span<const double> cost);
    void reduceColumns();
    void findZeros(int row);
    void setRise(double delta, const IndexSet& cols);
    IndexSet takeOffLeast(double delta, const IndexSet& cols);
    long long lowerRows(double delta, const IndexSet& rows);
    void raiseRows(const IndexSet& rows, const IndexSet& cols);
    void findNewZeros(const IndexSet& rows, const IndexSet& cols, long long count);
    void checkRange();

    int rows_;
    int cols_;
    IndexSet allRows_, allCols_;
    bool large_ = false; // costs so large that a difference may leave the range
    std::vector<Line> cells_;
    std::array<IndexSet, places> zeros_;
    IndexSet seen_; // rows that least_ covers
    Line least_{};  // for each column the least reduced cost in those rows
    Line rise_{};   // what a change adds to each column
};

} // namespace vantore::tranlp
