#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <string>

#include "desktop/grid_view.h"
#include "shell/grid_rows.h"

namespace vantore {

namespace {

constexpr int narrowestColumn = 12; // pixels

} // namespace

/// Keys and mouse of the grid.

void GridView::highlight(GridPlace from, GridPlace to) {
    act([&] {
        context_.form().select(
            grid_, {.startRow = from.row, .endRow = to.row, .startCol = from.col, .endCol = to.col});
    });
}

void GridView::highlightStill(GridPlace from, GridPlace to) {
    still_ = true;
    highlight(from, to);
    still_ = false;
}

// Mouse

void GridView::mousePressEvent(QMouseEvent* event) {
    const GridPlace place = geometry_.at(event->position().toPoint(), scroll());
    const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->button() == Qt::LeftButton) {
        resized_ = geometry_.edgeAt(event->position().toPoint(), scroll());
        return resized_ >= 0 ? void() : pressAt(place, extends);
    }
    const CellBlock& block = grid_.selection();
    const bool inside = place.row >= block.startRow && place.row <= block.endRow &&
                        place.col >= block.startCol && place.col <= block.endCol;
    if (event->button() == Qt::RightButton && !inside && place.row > 0 && place.col > 0)
        highlight(place, place);
}

void GridView::pressAt(GridPlace place, bool extends) {
    dragged_ = false;
    dragging_ = hasCells();
    if (!dragging_) return;
    if (place.row == 0 || place.col == 0) {
        dragging_ = false;
        return selectLine(place, extends);
    }
    pressed_ = place;
    const bool anchored = extends && grid_.row() > 0 && grid_.col() > 0;
    dragged_ = anchored;
    highlight(anchored ? GridPlace{grid_.row(), grid_.col()} : place, place);
}

/// A press on a heading highlights its whole column, on a row's number the row, on the corner all cells.
void GridView::selectLine(GridPlace head, bool extends) {
    const GridPlace last{grid_.rows() - 1, grid_.cols() - 1};
    GridPlace from{1, 1};
    GridPlace to = last;
    if (head.col > 0) from.col = to.col = head.col;
    if (head.row > 0) from.row = to.row = head.row;
    if (extends && head.col > 0) from.col = std::max(1, grid_.col());
    if (extends && head.row > 0) from.row = std::max(1, grid_.row());
    highlightStill(from, to);
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    const bool pressed = event->buttons().testFlag(Qt::LeftButton);
    if (pressed && resized_ >= 0) return resizeColumn(event->position().toPoint().x());
    const bool onEdge = geometry_.edgeAt(event->position().toPoint(), scroll()) >= 0;
    viewport()->setCursor(onEdge && !pressed ? Qt::SplitHCursor : Qt::ArrowCursor);
    if (!dragging_ || !pressed) return;
    // Beyond the edge of the view lie the cells that are scrolled away.
    const QPoint point = event->position().toPoint() + scroll();
    const GridPlace place{std::max(1, geometry_.rowAt(point.y())), std::max(1, geometry_.colAt(point.x()))};
    if (place == far()) return;
    dragged_ = true;
    highlight({grid_.row(), grid_.col()}, place);
}

/// A dragged edge of a heading makes its column wider or narrower.
void GridView::resizeColumn(int right) {
    const int left = cellRect(0, resized_).left();
    act([&] { grid_.setColWidth(resized_, std::max(narrowestColumn, right - left) / pixelsOfTwip_); });
}

/// A cell that was pressed and let go without a drag has been clicked.
void GridView::mouseReleaseEvent(QMouseEvent* event) {
    resized_ = -1;
    if (event->button() != Qt::LeftButton || !dragging_) return;
    dragging_ = false;
    if (!dragged_) act([this] { context_.form().click(grid_, pressed_.row, pressed_.col); });
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    // Where a double click means nothing, its second press is a click like the first.
    if (!grid_.onDoubleClick || event->button() != Qt::LeftButton) return mousePressEvent(event);
    const GridPlace place = geometry_.at(event->position().toPoint(), scroll());
    if (place.row > 0 && place.col > 0) act([this] { context_.form().doubleClick(grid_); });
}

// Keys

void GridView::keyPressEvent(QKeyEvent* event) {
    const bool done = moveKey(event) || commandKey(event) || editKey(event);
    event->setAccepted(done);
}

int GridView::pageRows() const {
    if (grid_.rows() < 2) return 1;
    const int rowHeight = std::max(1, geometry_.cell(1, 0).height());
    return std::max(1, (room().height() - geometry_.fixedHeight()) / rowHeight - 1);
}

GridPlace GridView::movedBy(const QKeyEvent& event, GridPlace from) const {
    const bool whole = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left: return {from.row, from.col - 1};
    case Qt::Key_Right: return {from.row, from.col + 1};
    case Qt::Key_Up: return {from.row - 1, from.col};
    case Qt::Key_Down: return {from.row + 1, from.col};
    case Qt::Key_PageUp: return {from.row - pageRows(), from.col};
    case Qt::Key_PageDown: return {from.row + pageRows(), from.col};
    case Qt::Key_Home: return {whole ? 1 : from.row, 1};
    case Qt::Key_End: return {whole ? grid_.rows() - 1 : from.row, grid_.cols() - 1};
    default: return {-1, -1};
    }
}

bool GridView::moveKey(QKeyEvent* event) {
    if (!hasCells() || event->modifiers().testFlag(Qt::AltModifier)) return false;
    const bool extends = event->modifiers().testFlag(Qt::ShiftModifier);
    const GridPlace current{grid_.row(), grid_.col()};
    const GridPlace wanted = movedBy(*event, extends ? far() : current);
    if (wanted == GridPlace{-1, -1}) return false;
    const GridPlace place{std::clamp(wanted.row, 1, grid_.rows() - 1),
                          std::clamp(wanted.col, 1, grid_.cols() - 1)};
    const bool anchored = extends && current.row > 0 && current.col > 0;
    highlight(anchored ? current : place, place);
    return true;
}

bool GridView::commandKey(QKeyEvent* event) {
    // While a solver runs Ctrl+C is the window's.
    if (event->matches(QKeySequence::Copy) && context_.form().runningNote.empty()) return copy(), true;
    if (event->matches(QKeySequence::Cut)) return cut(), true;
    if (event->matches(QKeySequence::Paste)) return paste(), true;
    if (event->matches(QKeySequence::SelectAll)) return selectAll(), true;
    if (event->matches(QKeySequence::Undo)) return act([this] { context_.form().undo(); }), true;
    if (event->matches(QKeySequence::Redo)) return act([this] { context_.form().redo(); }), true;
    return false;
}

bool GridView::editKey(QKeyEvent* event) {
    const auto send = [this](int code) { act([this, code] { context_.form().key(grid_, code); }); };
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    switch (event->key()) {
    case Qt::Key_Insert: return act([this] { context_.form().insertKey(grid_); }), true;
    case Qt::Key_Delete: return clearBlock(), true;
    case Qt::Key_Escape: return send(keys::escape), true;
    case Qt::Key_Backspace: return send(keys::backspace), true;
    case Qt::Key_Return:
    case Qt::Key_Enter: return enter(), true;
    default: break;
    }
    const bool plain = modifiers == Qt::NoModifier || modifiers == Qt::ShiftModifier ||
                       modifiers == Qt::GroupSwitchModifier ||
                       modifiers == (Qt::ShiftModifier | Qt::GroupSwitchModifier);
    const QString text = event->text();
    if (!plain || text.isEmpty() || !text.at(0).isPrint()) return false;
    typed(text);
    return true;
}

void GridView::typed(const QString& text) {
    act([&] {
        for (const uint point : text.toUcs4()) context_.form().key(grid_, static_cast<int>(point));
    });
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
    if (!event->commitString().isEmpty()) typed(event->commitString());
    event->accept();
}

void GridView::enter() {
    act([this] {
        Form& form = context_.form();
        form.key(grid_, keys::enter);
        const int row = std::min(grid_.row() + 1, grid_.rows() - 1);
        const int col = grid_.col();
        form.select(grid_, {.startRow = row, .endRow = row, .startCol = col, .endCol = col});
    });
}

void GridView::clearBlock() {
    const CellBlock block = grid_.selection();
    if (block.startRow == block.endRow && block.startCol == block.endCol)
        return act([this] { context_.form().key(grid_, keys::escape); });
    // Pasting empty cells clears them all as one step of undo.
    const std::string row = std::string(static_cast<std::size_t>(block.endCol - block.startCol), '\t') + "\n";
    std::string empty;
    for (int i = block.startRow; i <= block.endRow; ++i) empty += row;
    act([&] {
        context_.form().paste(grid_, empty);
        context_.form().select(grid_, block);
    });
}

} // namespace vantore
