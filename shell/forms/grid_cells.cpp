#include "shell/forms/grid_cells.h"

#include <algorithm>

#include "shell/base/table.h"

namespace vantore {

namespace {

std::size_t at(int index) {
    return static_cast<std::size_t>(index);
}

} // namespace

GridCells::GridCells(int rows, int cols) : cols_(cols) {
    resize(rows, cols);
}

void GridCells::resize(int rows, int cols) {
    if (cols != cols_)
        for (auto& row : rows_) {
            row = std::make_shared<Row>(*row);
            row->resize(at(cols));
        }
    cols_ = cols;
    rows_.resize(at(std::min(rows, this->rows())));
    while (this->rows() < rows) rows_.push_back(std::make_shared<Row>(at(cols)));
}

const std::string& GridCells::operator()(int row, int col) const {
    checkIndex(row, 0, rows() - 1);
    checkIndex(col, 0, cols_ - 1);
    return (*rows_[at(row)])[at(col)];
}

std::string& GridCells::edit(int row, int col) {
    checkIndex(row, 0, rows() - 1);
    checkIndex(col, 0, cols_ - 1);
    auto& cells = rows_[at(row)];
    if (cells.use_count() > 1) cells = std::make_shared<Row>(*cells);
    return (*cells)[at(col)];
}

void GridCells::erase(int row) {
    checkIndex(row, 0, rows() - 1);
    rows_.erase(rows_.begin() + row);
}

bool GridCells::operator==(const GridCells& other) const {
    return cols_ == other.cols_ &&
           std::equal(rows_.begin(), rows_.end(), other.rows_.begin(), other.rows_.end(),
                      [](const auto& mine, const auto& its) { return mine == its || *mine == *its; });
}

} // namespace vantore
