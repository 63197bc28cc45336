#include "mathprog/TRANLP/reduced_costs.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>

#include "shell/base/arithmetic.h"

namespace vantore::tranlp {

namespace {

constexpr double noCost = std::numeric_limits<double>::infinity();

/// With costs up to here no reduced cost can leave the range: it is at most a sum of M + N differences of
/// reduced costs, each of at most twice the largest cost.
constexpr double safeCost = 1E+300;

IndexSet upTo(int last) {
    IndexSet set;
    for (int index = 1; index <= last; ++index) set.add(index);
    return set;
}

double smaller(double a, double b) {
    return b < a ? b : a;
}

/// One value out of a row of fixed length, by eight at a time; `join` is indifferent to the order.
template <class Line, class Join>
double joined(const Line& line, double start, Join join) {
    std::array<double, 8> lanes;
    lanes.fill(start);
    for (std::size_t at = 0; at < line.size(); at += lanes.size())
        for (std::size_t k = 0; k < lanes.size(); ++k) lanes[k] = join(lanes[k], line[at + k]);
    return std::accumulate(lanes.begin(), lanes.end(), start, join);
}

// The loops over cells. They go over four rows at a time, which halves what has to be loaded and stored.

using Row = double* __restrict;
constexpr std::size_t width = ReducedCosts::width;

void keepLeast(Row least, Row a, Row b, Row c, Row d) {
    for (std::size_t j = 0; j < width; ++j)
        least[j] = smaller(smaller(smaller(smaller(least[j], a[j]), b[j]), c[j]), d[j]);
}

void raise(Row rise, Row a, Row b, Row c, Row d) {
    for (std::size_t j = 0; j < width; ++j) {
        a[j] += rise[j];
        b[j] += rise[j];
        c[j] += rise[j];
        d[j] += rise[j];
    }
}

void lower(double delta, Row rise, Row zeros, Row a, Row b, Row c, Row d) {
    for (std::size_t j = 0; j < width; ++j) {
        a[j] = (a[j] - delta) + rise[j];
        b[j] = (b[j] - delta) + rise[j];
        c[j] = (c[j] - delta) + rise[j];
        d[j] = (d[j] - delta) + rise[j];
        zeros[j] += (a[j] == 0 ? 1.0 : 0.0) + (b[j] == 0 ? 1.0 : 0.0) + (c[j] == 0 ? 1.0 : 0.0) +
                    (d[j] == 0 ? 1.0 : 0.0);
    }
}

} // namespace

template <class Work>
void ReducedCosts::inFours(const IndexSet& rows, Work work) {
    std::array<double*, places + spareRows> data;
    std::size_t count = 0;
    rows.forEach([&](int i) { data[count++] = line(i).data(); });
    for (std::size_t spare = 1; count % 4 != 0; ++spare)
        data[count++] = (cells_.end() - static_cast<std::ptrdiff_t>(spare))->data();
    for (std::size_t k = 0; k < count; k += 4) work(data[k], data[k + 1], data[k + 2], data[k + 3]);
}

ReducedCosts::ReducedCosts(const CellTable<double>& cost, int rows, int cols)
    : rows_(rows), cols_(cols), allRows_(upTo(rows)), allCols_(upTo(cols)),
      cells_(static_cast<std::size_t>(rows) + 1 + spareRows) {
    for (Line& each : cells_) each.fill(noCost);
    if (cols == 0) return;
    measure(cost);
    for (int i = 1; i <= rows; ++i) takeRow(i, cost.row(i).subspan(1, static_cast<std::size_t>(cols)));
    reduceColumns();
    checkRange();
    for (int i = 1; i <= rows; ++i) findZeros(i);
}

void ReducedCosts::measure(const CellTable<double>& cost) {
    double largest = 0;
    for (int i = 1; i <= rows_; ++i)
        for (const double each : cost.row(i).subspan(1, static_cast<std::size_t>(cols_)))
            largest = std::max(largest, std::abs(each));
    large_ = largest > safeCost;
}

void ReducedCosts::takeRow(int row, std::span<const double> cost) {
    Line& reduced = line(row);
    std::copy(cost.begin(), cost.end(), reduced.begin() + 1);
    const double least = joined(reduced, noCost, smaller);
    for (double& each : reduced) each -= least;
}

void ReducedCosts::reduceColumns() {
    Line least;
    least.fill(noCost);
    inFours(allRows_, [&](Row a, Row b, Row c, Row d) { keepLeast(least.data(), a, b, c, d); });
    for (double& cost : least)
        if (cost == noCost) cost = 0;
    for (int i = 1; i <= rows_; ++i) {
        Line& reduced = line(i);
        for (std::size_t j = 0; j < width; ++j) reduced[j] -= least[j];
    }
}

void ReducedCosts::findZeros(int row) {
    const Line& reduced = line(row);
    IndexSet zeros;
    for (int j = 1; j <= cols_; ++j)
        if (reduced[static_cast<std::size_t>(j)] == 0) zeros.add(j);
    zeros_[static_cast<std::size_t>(row)] = zeros;
}

double ReducedCosts::least(const IndexSet& rows, const IndexSet& cols) {
    if (seen_.empty()) least_.fill(noCost);
    inFours(rows - seen_, [&](Row a, Row b, Row c, Row d) { keepLeast(least_.data(), a, b, c, d); });
    seen_ = rows;
    double smallest = noCost;
    (allCols_ - cols).forEach([&](int j) {
        smallest = std::min(smallest, least_[static_cast<std::size_t>(j)]);
    });
    return smallest;
}

void ReducedCosts::change(double delta, const IndexSet& rows, const IndexSet& cols) {
    setRise(delta, cols);
    const IndexSet reached = takeOffLeast(delta, allCols_ - cols);
    raiseRows(allRows_ - rows, cols);
    const long long count = lowerRows(delta, rows);
    findNewZeros(rows, reached, count);
    checkRange();
}

void ReducedCosts::setRise(double delta, const IndexSet& cols) {
    rise_.fill(0);
    cols.forEach([&](int j) { rise_[static_cast<std::size_t>(j)] = delta; });
}

/// Keeps `least_` what it is and gives the columns that have a new cell of cost 0. All rows that it covers
/// lose the same amount, and rounding keeps their order.
IndexSet ReducedCosts::takeOffLeast(double delta, const IndexSet& cols) {
    IndexSet reached;
    cols.forEach([&](int j) {
        double& least = least_[static_cast<std::size_t>(j)];
        if (least == delta) reached.add(j);
        least -= delta;
    });
    return reached;
}

/// Gives the count of cells of cost 0 in these rows.
long long ReducedCosts::lowerRows(double delta, const IndexSet& rows) {
    Line zeros{};
    inFours(rows, [&](Row a, Row b, Row c, Row d) { lower(delta, rise_.data(), zeros.data(), a, b, c, d); });
    return static_cast<long long>(joined(zeros, 0, std::plus()));
}

/// Rows that keep their duals: their cells in `cols` rise above 0.
void ReducedCosts::raiseRows(const IndexSet& rows, const IndexSet& cols) {
    inFours(rows, [&](Row a, Row b, Row c, Row d) { raise(rise_.data(), a, b, c, d); });
    rows.forEach([&](int i) { zeros_[static_cast<std::size_t>(i)] -= cols; });
}

/// The lowered rows keep their cells of cost 0: 0 - d + d is 0. New ones are in the columns reached and,
/// where a tiny cost is lost in rounding, anywhere, which their count tells.
void ReducedCosts::findNewZeros(const IndexSet& rows, const IndexSet& cols, long long count) {
    long long known = 0;
    rows.forEach([&](int i) {
        IndexSet& zeros = zeros_[static_cast<std::size_t>(i)];
        cols.forEach([&](int j) {
            if (line(i)[static_cast<std::size_t>(j)] == 0) zeros.add(j);
        });
        known += zeros.count();
    });
    if (known != count) rows.forEach([&](int i) { findZeros(i); });
}

void ReducedCosts::checkRange() {
    if (!large_) return;
    for (int i = 1; i <= rows_; ++i)
        for (int j = 1; j <= cols_; ++j) finite(line(i)[static_cast<std::size_t>(j)]);
}

void ReducedCosts::copyTo(CellTable<double>& table) const {
    for (int i = 1; i <= rows_; ++i)
        std::copy_n(cells_[static_cast<std::size_t>(i)].begin() + 1, cols_, table.row(i).begin() + 1);
}

} // namespace vantore::tranlp
