#include "desktop/grid_geometry.h"

#include <algorithm>
#include <cmath>

namespace vantore {

namespace {

constexpr int edgeReach = 3; // pixels

int indexAt(const std::vector<int>& edges, int position) {
    const auto beyond = std::upper_bound(edges.begin(), edges.end(), position);
    const auto index = static_cast<int>(beyond - edges.begin()) - 1;
    return std::clamp(index, 0, static_cast<int>(edges.size()) - 2);
}

} // namespace

GridGeometry::GridGeometry(const DataGrid& grid, const Layout& layout) : lefts_{0}, tops_{0} {
    double right = 0;
    for (int col = 0; col < grid.cols(); ++col)
        lefts_.push_back(static_cast<int>(std::lround(right += grid.colWidth(col) * layout.x)));
    double bottom = 0;
    for (int row = 0; row < grid.rows(); ++row)
        tops_.push_back(static_cast<int>(std::lround(bottom += grid.rowHeight(row) * layout.y)));
}

QRect GridGeometry::cell(int row, int col) const {
    const auto r = static_cast<std::size_t>(row);
    const auto c = static_cast<std::size_t>(col);
    return {lefts_.at(c), tops_.at(r), lefts_.at(c + 1) - lefts_.at(c), tops_.at(r + 1) - tops_.at(r)};
}

GridPlace GridGeometry::at(QPoint point, QPoint scroll) const {
    const int x = point.x() < fixedWidth() ? point.x() : point.x() + scroll.x();
    const int y = point.y() < fixedHeight() ? point.y() : point.y() + scroll.y();
    return {rowAt(y), colAt(x)};
}

int GridGeometry::edgeAt(QPoint point, QPoint scroll) const {
    if (point.y() >= fixedHeight()) return -1;
    const int x = point.x() < fixedWidth() ? point.x() : point.x() + scroll.x();
    const int col = colAt(x);
    if (lefts_[static_cast<std::size_t>(col) + 1] - x <= edgeReach) return col;
    return col > 0 && x - lefts_[static_cast<std::size_t>(col)] < edgeReach ? col - 1 : -1;
}

int GridGeometry::rowAt(int y) const {
    return indexAt(tops_, y);
}

int GridGeometry::colAt(int x) const {
    return indexAt(lefts_, x);
}

} // namespace vantore
