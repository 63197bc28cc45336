#pragma once

#include <QRect>
#include <vector>

#include "desktop/control_view.h"
#include "shell/forms/data_grid.h"

namespace vantore {

/// A cell by its row and column.
struct GridPlace {
    int row = 0;
    int col = 0;

    bool operator==(const GridPlace&) const = default;
};

/// Where the cells of a grid lie in pixels of its content, before scrolling. Row 0 and column 0 are fixed:
/// they never scroll away.
class GridGeometry {
  public:
    GridGeometry() = default;
    GridGeometry(const DataGrid& grid, const Layout& layout);

    int width() const { return lefts_.back(); }
    int height() const { return tops_.back(); }
    int fixedWidth() const { return lefts_[1]; }
    int fixedHeight() const { return tops_[1]; }
    int rows() const { return static_cast<int>(tops_.size()) - 1; }
    int cols() const { return static_cast<int>(lefts_.size()) - 1; }

    /// The cell's place; its last pixel column and row are grid lines.
    QRect cell(int row, int col) const;

    /// The cell under a point of a view scrolled by `scroll`, the nearest one for a point beside all cells.
    GridPlace at(QPoint point, QPoint scroll) const;

    /// The column whose right edge runs through a point of the headings, within a few pixels; -1 when there
    /// is none.
    int edgeAt(QPoint point, QPoint scroll) const;

    /// First row or column that reaches beyond a position of the content.
    int rowAt(int y) const;
    int colAt(int x) const;

    bool operator==(const GridGeometry&) const = default;

  private:
    std::vector<int> lefts_ = {0, 0};
    std::vector<int> tops_ = {0, 0};
};

} // namespace vantore
