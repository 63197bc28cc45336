#include "desktop/grid_painter.h"

#include <QFontMetricsF>

#include "drawing/fonts.h"

namespace vantore {

namespace {

const QColor lineColour(0xD3, 0xD7, 0xDB);
const QColor paperColour(0xFF, 0xFF, 0xFF);
const QColor emptyColour(0xF3, 0xF4, 0xF5);
const QColor headColour(0xE6, 0xE9, 0xEC);
const QColor currentHeadColour(0xC9, 0xDA, 0xEE);
const QColor headLineColour(0xB4, 0xBA, 0xC0);
const QColor blockColour(0xCD, 0xE2, 0xFA);
const QColor currentColour(0x1C, 0x5F, 0xB4);
const QColor unfocusedColour(0x7A, 0x96, 0xB8);
const QColor disabledTextColour(0x80, 0x80, 0x80);
constexpr int textMargin = 3; // pixels
constexpr int currentBorder = 2;

class GridPaint {
  public:
    GridPaint(QPainter& painter, const GridLook& look)
        : painter_(painter), look_(look), grid_(look.grid), geometry_(look.geometry),
          block_(look.grid.selection()),
          cellFont_(fitted(look.font, "Xg", {1e5, cellHeight() - 1.0}, Qt::TextSingleLine)),
          metrics_(cellFont_) {}

    void paint() {
        painter_.fillRect(QRect(QPoint(0, 0), look_.view), emptyColour);
        findVisible();
        paintCells();
        paintCurrent();
        paintHeads();
    }

    bool isCut(GridPlace place) const {
        const QRect cell = geometry_.cell(place.row, place.col);
        return metrics_.horizontalAdvance(qtText(grid_.cell(place.row, place.col))) >
               cell.width() - 2 * textMargin;
    }

  private:
    /// The lowest of the data rows counts: all rows look alike then.
    double cellHeight() const {
        int lowest = geometry_.rows() > 1 ? geometry_.cell(1, 0).height() : geometry_.cell(0, 0).height();
        for (int row = 1; row < geometry_.rows(); ++row)
            if (const int height = geometry_.cell(row, 0).height(); height > 0)
                lowest = std::min(lowest, height);
        return lowest;
    }

    void findVisible() {
        const QPoint first(geometry_.fixedWidth() + look_.scroll.x(),
                           geometry_.fixedHeight() + look_.scroll.y());
        const QPoint last(look_.scroll.x() + look_.view.width() - 1,
                          look_.scroll.y() + look_.view.height() - 1);
        firstRow_ = std::max(1, geometry_.rowAt(first.y()));
        lastRow_ = geometry_.rowAt(last.y());
        firstCol_ = std::max(1, geometry_.colAt(first.x()));
        lastCol_ = geometry_.colAt(last.x());
    }

    QRect onScreen(int row, int col) const {
        return geometry_.cell(row, col).translated(col > 0 ? -look_.scroll.x() : 0,
                                                   row > 0 ? -look_.scroll.y() : 0);
    }

    QRect scrolledArea() const {
        return {geometry_.fixedWidth(), geometry_.fixedHeight(), look_.view.width() - geometry_.fixedWidth(),
                look_.view.height() - geometry_.fixedHeight()};
    }

    bool inBlock(int row, int col) const {
        return row >= block_.startRow && row <= block_.endRow && col >= block_.startCol &&
               col <= block_.endCol;
    }

    bool isCurrent(int row, int col) const { return row == grid_.row() && col == grid_.col(); }

    void paintCells() {
        painter_.setClipRect(scrolledArea());
        painter_.setFont(cellFont_);
        for (int row = firstRow_; row <= lastRow_; ++row)
            for (int col = firstCol_; col <= lastCol_; ++col) paintCell(row, col);
    }

    void paintCell(int row, int col) {
        const QRect cell = onScreen(row, col);
        painter_.fillRect(cell, inBlock(row, col) && !isCurrent(row, col) ? blockColour : paperColour);
        painter_.setPen(lineColour);
        painter_.drawLine(cell.topRight(), cell.bottomRight());
        painter_.drawLine(cell.bottomLeft(), cell.bottomRight());
        const std::string& text = grid_.cell(row, col);
        if (text.empty()) return;
        painter_.setPen(look_.enabled ? QColor(Qt::black) : disabledTextColour);
        paintText(cell.adjusted(textMargin, 0, -textMargin, -1), qtText(text), isCurrent(row, col));
    }

    /// A text too wide for its cell shows its beginning, that of the current cell its end: there the user
    /// types.
    void paintText(const QRect& room, const QString& text, bool current) {
        if (metrics_.horizontalAdvance(text) <= room.width())
            return painter_.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        const Qt::TextElideMode mode = current ? Qt::ElideLeft : Qt::ElideRight;
        painter_.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                          metrics_.elidedText(text, mode, room.width()));
    }

    void paintCurrent() {
        const bool exists = grid_.row() > 0 && grid_.col() > 0 && grid_.row() < geometry_.rows() &&
                            grid_.col() < geometry_.cols();
        if (!exists) return;
        const QRect cell = onScreen(grid_.row(), grid_.col());
        painter_.setPen(QPen(look_.focused ? currentColour : unfocusedColour, currentBorder, Qt::SolidLine,
                             Qt::SquareCap, Qt::MiterJoin));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(cell.adjusted(0, 0, -1, -1));
    }

    void paintHeads() {
        const QRect area = scrolledArea();
        painter_.setClipRect(QRect(area.left(), 0, area.width(), geometry_.fixedHeight()));
        for (int col = firstCol_; col <= lastCol_; ++col)
            paintHead(0, col, col >= block_.startCol && col <= block_.endCol);
        painter_.setClipRect(QRect(0, area.top(), geometry_.fixedWidth(), area.height()));
        for (int row = firstRow_; row <= lastRow_; ++row)
            paintHead(row, 0, row >= block_.startRow && row <= block_.endRow);
        painter_.setClipRect(QRect(0, 0, geometry_.fixedWidth(), geometry_.fixedHeight()));
        paintHead(0, 0, false);
        painter_.setClipping(false);
    }

    void paintHead(int row, int col, bool current) {
        const QRect cell = onScreen(row, col);
        painter_.fillRect(cell, current ? currentHeadColour : headColour);
        painter_.setPen(headLineColour);
        painter_.drawLine(cell.topRight(), cell.bottomRight());
        painter_.drawLine(cell.bottomLeft(), cell.bottomRight());
        const QString text = qtText(grid_.cell(row, col)).replace("\r\n", "\n");
        if (text.isEmpty()) return;
        const QRect room = cell.adjusted(1, 0, -2, -1);
        painter_.setPen(look_.enabled ? QColor(Qt::black) : disabledTextColour);
        painter_.setFont(fitted(cellFont_, text, room.size(), 0));
        painter_.drawText(room, Qt::AlignCenter, text);
    }

    QPainter& painter_;
    const GridLook& look_;
    const DataGrid& grid_;
    const GridGeometry& geometry_;
    const CellBlock block_;
    QFont cellFont_;
    QFontMetricsF metrics_;
    int firstRow_ = 1, lastRow_ = 0, firstCol_ = 1, lastCol_ = 0;
};

} // namespace

void paintGrid(QPainter& painter, const GridLook& look) {
    GridPaint(painter, look).paint();
}

bool isCut(const GridLook& look, GridPlace place) {
    QPixmap unused(1, 1);
    QPainter painter(&unused);
    return GridPaint(painter, look).isCut(place);
}

} // namespace vantore
