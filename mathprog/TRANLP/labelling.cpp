#include "mathprog/TRANLP/labelling.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <vector>

#include "mathprog/TRANLP/index_set.h"
#include "mathprog/TRANLP/reduced_costs.h"

namespace vantore::tranlp {

namespace {

struct Cell {
    int row = 0;
    int col = 0;
};

/// One run of the method. The cells that carry units are kept as a set of rows for each column; they are all
/// of reduced cost 0.
///
/// Labels aren't written down: those of one sweep are a set, and which row labelled a column is only asked
/// along the path that is found. It is the first row of the sweep before it with a cell of reduced cost 0 in
/// the column; likewise for rows.
class Labelling {
  public:
    Labelling(Tableau& tableau, const AugmentationWatch& watch)
        : t_(tableau), watch_(watch), costs_(tableau.reduced, tableau.rows, tableau.cols) {}

    void run();

  private:
    void allocateGreedily();
    void startSets();
    std::optional<Cell> findPath();
    IndexSet zerosOf(const IndexSet& rows) const;
    IndexSet carriersOf(const IndexSet& cols) const;
    void tracePath(Cell last);
    void augment();
    bool changeDuals();
    IndexSet& carriers(int col) { return carriers_[static_cast<std::size_t>(col)]; }
    const IndexSet& carriers(int col) const { return carriers_[static_cast<std::size_t>(col)]; }

    Tableau& t_;
    const AugmentationWatch& watch_;
    ReducedCosts costs_;
    IndexSet supplied_;                             // rows with units left
    IndexSet needing_;                              // columns with need left
    std::array<IndexSet, mostPlaces + 1> carriers_; // for each column the rows that ship to it
    IndexSet labelledRows_, labelledCols_;
    std::vector<IndexSet> rowSweeps_, colSweeps_; // what each sweep over rows or columns scans
    std::vector<Cell> path_;                      // the cells that gain units, the last one first
};

void Labelling::run() {
    allocateGreedily();
    startSets();
    while (!supplied_.empty())
        if (const std::optional<Cell> last = findPath()) {
            tracePath(*last);
            augment();
        } else if (!changeDuals()) {
            break;
        }
    costs_.copyTo(t_.reduced);
}

void Labelling::allocateGreedily() {
    for (int i = 1; i <= t_.rows; ++i)
        costs_.zeros(i).forEach([&](int j) {
            const std::int32_t units = std::min(t_.unitsLeft(i), t_.needLeft(j));
            t_.alloc(i, j) = units;
            t_.unitsLeft(i) = toUnits(std::int64_t{t_.unitsLeft(i)} - units);
            t_.needLeft(j) = toUnits(std::int64_t{t_.needLeft(j)} - units);
            if (units > 0) carriers(j).add(i);
        });
}

void Labelling::startSets() {
    for (int i = 1; i <= t_.rows; ++i)
        if (t_.unitsLeft(i) > 0) supplied_.add(i);
    for (int j = 1; j <= t_.cols; ++j)
        if (t_.needLeft(j) > 0) needing_.add(j);
}

/// The last cell of an augmenting path; nothing when the labels have spread as far as they can.
std::optional<Cell> Labelling::findPath() {
    labelledRows_ = supplied_;
    labelledCols_ = {};
    rowSweeps_.assign(1, supplied_);
    colSweeps_.clear();
    while (!rowSweeps_.back().empty()) {
        const IndexSet cols = zerosOf(rowSweeps_.back()) - labelledCols_;
        if (!(cols & needing_).empty()) {
            Cell last;
            rowSweeps_.back().anyOf([&](int i) {
                const IndexSet taken = costs_.zeros(i) & needing_;
                if (taken.empty()) return false;
                last = {i, taken.first()};
                return true;
            });
            return last;
        }
        labelledCols_ |= cols;
        colSweeps_.push_back(cols);
        rowSweeps_.push_back(carriersOf(cols) - labelledRows_);
        labelledRows_ |= rowSweeps_.back();
    }
    return std::nullopt;
}

IndexSet Labelling::zerosOf(const IndexSet& rows) const {
    IndexSet cols;
    rows.forEach([&](int i) { cols |= costs_.zeros(i); });
    return cols;
}

IndexSet Labelling::carriersOf(const IndexSet& cols) const {
    IndexSet rows;
    cols.forEach([&](int j) { rows |= carriers(j); });
    return rows;
}

/// Follows the labels back to a row with units left.
void Labelling::tracePath(Cell last) {
    path_.assign(1, last);
    for (std::size_t sweep = colSweeps_.size(); sweep-- > 0;) {
        Cell cell;
        colSweeps_[sweep].anyOf([&](int j) {
            cell.col = j;
            return carriers(j).has(path_.back().row);
        });
        rowSweeps_[sweep].anyOf([&](int i) {
            cell.row = i;
            return costs_.zeros(i).has(cell.col);
        });
        path_.push_back(cell);
    }
}

/// Each cell of the path gains what the cell of its row in the next cell's column gives back.
void Labelling::augment() {
    const Cell last = path_.front();
    std::int32_t units = std::min(t_.needLeft(last.col), t_.unitsLeft(path_.back().row));
    for (std::size_t k = 0; k + 1 < path_.size(); ++k)
        units = std::min(units, t_.alloc(path_[k].row, path_[k + 1].col));
    if (watch_) watch_(last.row, last.col, units);
    t_.needLeft(last.col) -= units;
    if (t_.needLeft(last.col) == 0) needing_.remove(last.col);
    for (std::size_t k = 0; k < path_.size(); ++k) {
        const auto [row, col] = path_[k];
        t_.alloc(row, col) = toUnits(std::int64_t{t_.alloc(row, col)} + units);
        if (t_.alloc(row, col) > 0) carriers(col).add(row);
        if (k + 1 == path_.size()) break;
        std::int32_t& givesBack = t_.alloc(row, path_[k + 1].col);
        givesBack -= units;
        if (givesBack == 0) carriers(path_[k + 1].col).remove(row);
    }
    const int root = path_.back().row;
    t_.unitsLeft(root) -= units;
    if (t_.unitsLeft(root) == 0) supplied_.remove(root);
    costs_.forgetRows();
}

/// False when there is no unlabelled column.
bool Labelling::changeDuals() {
    if (labelledCols_.count() == t_.cols) return false;
    costs_.change(costs_.least(labelledRows_, labelledCols_), labelledRows_, labelledCols_);
    return true;
}

} // namespace

void label(Tableau& tableau, const AugmentationWatch& watch) {
    checkIndex(tableau.rows, 0, mostPlaces);
    checkIndex(tableau.cols, 0, mostPlaces);
    Labelling(tableau, watch).run();
}

std::int32_t toUnits(std::int64_t units) {
    if (units < std::numeric_limits<std::int32_t>::min() || units > std::numeric_limits<std::int32_t>::max())
        throw RuntimeError(ErrorNumber::Overflow);
    return static_cast<std::int32_t>(units);
}

} // namespace vantore::tranlp
