#pragma once

#include <memory>
#include <string>
#include <vector>

namespace vantore {

/// The texts of a grid as a value: rows x columns, both from 0.
///
/// Copies share their rows until one of them is changed, so that a window's history can keep the cells of
/// each step.
class GridCells {
  public:
    GridCells(int rows, int cols);

    int rows() const { return static_cast<int>(rows_.size()); }
    int cols() const { return cols_; }

    /// Cuts rows and columns off at the end or adds empty ones there.
    void resize(int rows, int cols);

    /// SubscriptOutOfRange outside the cells.
    const std::string& operator()(int row, int col) const;

    /// A cell to be changed; SubscriptOutOfRange outside the cells.
    std::string& edit(int row, int col);

    /// Takes one row out; the rows under it move up.
    void erase(int row);

    bool operator==(const GridCells& other) const;

  private:
    using Row = std::vector<std::string>;

    std::vector<std::shared_ptr<Row>> rows_;
    int cols_;
};

} // namespace vantore
