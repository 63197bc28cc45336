#pragma once

#include <QFont>
#include <QPainter>

#include "desktop/grid_geometry.h"

namespace vantore {

/// What a grid looks like at one moment.
struct GridLook {
    const DataGrid& grid;
    const GridGeometry& geometry;
    QPoint scroll;
    QSize view;
    QFont font; ///< as the design says; a cell too low for it has it smaller
    bool focused = false;
    bool enabled = true;
};

/// Paints the visible part of a grid, straight from its cells.
void paintGrid(QPainter& painter, const GridLook& look);

/// True when the cell's text is wider than the cell.
bool isCut(const GridLook& look, GridPlace place);

} // namespace vantore
