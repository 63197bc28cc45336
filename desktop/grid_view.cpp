#include "desktop/grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <memory>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int wheelRows = 3;
constexpr int wheelNotch = 120; // eighths of a degree

/// The step within which a scroll bar keeps `position` to `position + size` between `low` and `high`.
void bringIntoView(QScrollBar& bar, int position, int size, int fixed, int view) {
    const int low = bar.value() + fixed;
    const int high = bar.value() + view;
    if (position < low || size > view - fixed) {
        bar.setValue(position - fixed);
    } else if (position + size > high) {
        bar.setValue(position + size - view);
    }
}

} // namespace

GridView::GridView(QWidget* parent, ViewContext& context, DataGrid& grid)
    : QAbstractScrollArea(parent), context_(context), grid_(grid) {
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setCursor(Qt::ArrowCursor);
    viewport()->setMouseTracking(true);
}

void GridView::refresh(const Layout& layout, const QFont& font) {
    GridGeometry geometry(grid_, layout);
    font_ = font;
    pixelsOfTwip_ = layout.x;
    if (!(geometry == geometry_)) {
        geometry_ = std::move(geometry);
        kept_ = {-1, -1};
        updateScrollBars();
    }
    const GridPlace corner = far();
    if (!(corner == kept_) && !still_) keepInView(corner);
    kept_ = corner;
    viewport()->update();
}

QRect GridView::cellRect(int row, int col) const {
    return geometry_.cell(row, col).translated(col > 0 ? -scroll().x() : 0, row > 0 ? -scroll().y() : 0);
}

QPoint GridView::scroll() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

QSize GridView::room() const {
    return viewport()->size();
}

GridLook GridView::look() const {
    return {grid_, geometry_, scroll(), room(), font_, hasFocus(), isEnabled()};
}

void GridView::updateScrollBars() {
    const auto shape = [](QScrollBar& bar, int content, int view, int step) {
        bar.setRange(0, std::max(0, content - view));
        bar.setPageStep(std::max(1, view - step));
        bar.setSingleStep(step);
    };
    const int rowStep = geometry_.rows() > 1 ? std::max(1, geometry_.cell(1, 0).height()) : 1;
    shape(*verticalScrollBar(), geometry_.height(), room().height(), rowStep);
    shape(*horizontalScrollBar(), geometry_.width(), room().width(), rowStep);
}

void GridView::keepInView(GridPlace place) {
    if (place.row < 1 || place.col < 1 || place.row >= geometry_.rows() || place.col >= geometry_.cols())
        return;
    const QRect cell = geometry_.cell(place.row, place.col);
    bringIntoView(*verticalScrollBar(), cell.top(), cell.height(), geometry_.fixedHeight(), room().height());
    bringIntoView(*horizontalScrollBar(), cell.left(), cell.width(), geometry_.fixedWidth(), room().width());
}

/// The corner of the highlight that lies opposite the current cell: the one that Shift moves.
GridPlace GridView::far() const {
    const CellBlock& block = grid_.selection();
    return {block.startRow == grid_.row() ? block.endRow : block.startRow,
            block.startCol == grid_.col() ? block.endCol : block.startCol};
}

void GridView::paintEvent(QPaintEvent* /*event*/) {
    // Between two steps a handler may have changed the grid's shape; the next refresh follows at once.
    if (geometry_.rows() != grid_.rows() || geometry_.cols() != grid_.cols()) return;
    QPainter painter(viewport());
    paintGrid(painter, look());
}

void GridView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    updateScrollBars();
    keepInView(kept_);
}

void GridView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    viewport()->update();
}

void GridView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

/// The full text of a cell that cuts it off comes as a tip.
bool GridView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QAbstractScrollArea::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const GridPlace place = geometry_.at(help->pos(), scroll());
    const bool known = geometry_.rows() == grid_.rows() && geometry_.cols() == grid_.cols();
    const bool inCell = known && cellRect(place.row, place.col).contains(help->pos());
    if (inCell && place.row > 0 && place.col > 0 && isCut(look(), place)) {
        QToolTip::showText(help->globalPos(), qtText(grid_.cell(place.row, place.col)), viewport());
    } else {
        QToolTip::showText(help->globalPos(), toolTip(), viewport());
    }
    return true;
}

void GridView::wheelEvent(QWheelEvent* event) {
    const QPoint turn = event->angleDelta();
    const bool sideways = turn.x() != 0 || event->modifiers().testFlag(Qt::ShiftModifier);
    QScrollBar& bar = sideways ? *horizontalScrollBar() : *verticalScrollBar();
    const int amount = turn.x() != 0 ? turn.x() : turn.y();
    bar.setValue(bar.value() - amount * wheelRows * bar.singleStep() / wheelNotch);
    event->accept();
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    const auto add = [&](const char* text, const QKeySequence& keys, auto action) {
        QAction* item = menu.addAction(text);
        item->setShortcut(keys);
        connect(item, &QAction::triggered, this, action);
    };
    add("&Undo", QKeySequence::Undo, [this] { act([this] { context_.form().undo(); }); });
    add("&Redo", QKeySequence::Redo, [this] { act([this] { context_.form().redo(); }); });
    menu.addSeparator();
    add("Cu&t", QKeySequence::Cut, [this] { cut(); });
    add("&Copy", QKeySequence::Copy, [this] { copy(); });
    add("&Paste", QKeySequence::Paste, [this] { paste(); });
    add("C&lear", QKeySequence(Qt::Key_Delete), [this] { clearBlock(); });
    add("Select &all", QKeySequence::SelectAll, [this] { selectAll(); });
    menu.exec(event->globalPos());
}

void GridView::act(const std::function<void()>& action) {
    context_.act(action);
}

void GridView::copy() const {
    QGuiApplication::clipboard()->setText(qtText(Form::copied(grid_)));
}

void GridView::cut() {
    copy();
    clearBlock();
}

void GridView::paste() {
    const std::string text = utf8Text(QGuiApplication::clipboard()->text());
    if (!text.empty()) act([&] { context_.form().paste(grid_, text); });
}

void GridView::selectAll() {
    if (hasCells()) highlightStill({1, 1}, {grid_.rows() - 1, grid_.cols() - 1});
}

GridControlView::GridControlView(ViewContext& context, DataGrid& grid, QWidget* parent)
    : ControlView(context, grid, std::make_unique<GridView>(parent, context, grid).release()),
      view_(static_cast<GridView&>(*widget())) {}

void GridControlView::syncContent(const Layout& layout) {
    const double size = control().fontSize * context().form().scale().x * layout.zoom;
    view_.refresh(layout, qtFont({.size = size, .bold = control().bold}));
}

} // namespace vantore
