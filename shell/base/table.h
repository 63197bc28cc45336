#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "shell/base/runtime_error.h"

namespace vantore {

/// Throws SubscriptOutOfRange unless first <= index <= last.
inline void checkIndex(long long index, long long first, long long last) {
    if (index < first || index > last) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
}

/// A fixed table with the index bounds of its method, checked on every access.
///
/// Table<double, 1, 500> x; x(1) is the first element, x(0) and x(501) throw SubscriptOutOfRange.
/// The elements start value-initialised and live on the heap, so that a large table may be a local.
template <class T, int First, int Last>
class Table {
    static_assert(First <= Last);

  public:
    Table() : items_(static_cast<std::size_t>(Last - First + 1)) {}

    static constexpr int first = First;
    static constexpr int last = Last;

    T& operator()(long long index) {
        checkIndex(index, First, Last);
        return items_[static_cast<std::size_t>(index - First)];
    }
    const T& operator()(long long index) const {
        checkIndex(index, First, Last);
        return items_[static_cast<std::size_t>(index - First)];
    }

    void fill(const T& value) { items_.assign(items_.size(), value); }

    /// All elements from First on, for loops whose bounds have been checked once.
    std::span<T> span() { return items_; }
    std::span<const T> span() const { return items_; }

  private:
    std::vector<T> items_;
};

/// A table from index 1 to a count that is known only as it is filled, checked on every access.
template <class T>
class CountedTable {
  public:
    int count() const { return static_cast<int>(items_.size()); }
    void add(T item) { items_.push_back(std::move(item)); }

    T& operator()(long long index) {
        checkIndex(index, 1, count());
        return items_[static_cast<std::size_t>(index - 1)];
    }
    const T& operator()(long long index) const {
        checkIndex(index, 1, count());
        return items_[static_cast<std::size_t>(index - 1)];
    }

    /// All elements from index 1 on.
    std::span<const T> span() const { return items_; }

  private:
    std::vector<T> items_;
};

/// A fixed table of two dimensions, row-major, with both index bounds checked on every access.
template <class T, int FirstRow, int LastRow, int FirstCol, int LastCol>
class Table2 {
    static_assert(FirstRow <= LastRow && FirstCol <= LastCol);

  public:
    Table2() : items_(rows * columns) {}

    static constexpr auto rows = static_cast<std::size_t>(LastRow - FirstRow + 1);
    static constexpr auto columns = static_cast<std::size_t>(LastCol - FirstCol + 1);

    T& operator()(long long row, long long col) { return items_[place(row, col)]; }
    const T& operator()(long long row, long long col) const { return items_[place(row, col)]; }

    void fill(const T& value) { items_.assign(items_.size(), value); }

    /// One row from FirstCol on, for loops whose bounds have been checked once.
    std::span<T> row(long long row) { return std::span<T>(items_).subspan(place(row, FirstCol), columns); }
    std::span<const T> row(long long row) const {
        return std::span<const T>(items_).subspan(place(row, FirstCol), columns);
    }

  private:
    static std::size_t place(long long row, long long col) {
        checkIndex(row, FirstRow, LastRow);
        checkIndex(col, FirstCol, LastCol);
        return static_cast<std::size_t>(row - FirstRow) * columns + static_cast<std::size_t>(col - FirstCol);
    }

    std::vector<T> items_;
};

} // namespace vantore
