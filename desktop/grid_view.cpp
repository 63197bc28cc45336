#include "desktop/grid_view.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLocale>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "desktop/grid_looks.h"
#include "desktop/views.h"
#include "drawing/fonts.h"
#include "shell/forms/keys.h"

namespace vantore {

namespace {

constexpr int narrowestColumn = 12;     // pixels
constexpr double widestFixedShare = .5; // of the grid for its fixed column

bool moves(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End: return !event.modifiers().testFlag(Qt::AltModifier);
    default: return false;
    }
}

/// The end of a range that lies opposite the current one, from which it was extended.
int opposite(int current, int first, int last) {
    return current == first ? last : first;
}

void resizeTo(QHeaderView& heading, int section, double size) {
    const auto pixels = static_cast<int>(std::lround(size));
    if (heading.sectionSize(section) != pixels) heading.resizeSection(section, pixels);
}

CellBlock cell(int row, int col) {
    return {.startRow = row, .endRow = row, .startCol = col, .endCol = col};
}

NumberMarks usersMarks() {
    return {.decimal = QLocale::system().decimalPoint() == "," ? ',' : '.'};
}

} // namespace

GridView::GridView(QWidget* parent, ViewContext& context, DataGrid& grid)
    : QTableView(parent), context_(context), grid_(grid), model_(*new GridModel(grid, this)),
      columns_(*new Heading(Qt::Horizontal, grid, this)),
      rowNumbers_(*new Heading(Qt::Vertical, grid, this)) {
    setModel(&model_);
    setItemDelegate(new CellDelegate(grid, this));
    setPalette(gridPalette());
    setSelectionMode(ContiguousSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    makeHeadings();
    makeMouse();
}

void GridView::makeHeadings() {
    setHorizontalHeader(&columns_);
    setVerticalHeader(&rowNumbers_);
    columns_.setMinimumSectionSize(narrowestColumn);
    rowNumbers_.setSectionResizeMode(QHeaderView::Fixed);
    connect(&columns_, &QHeaderView::sectionResized, this, [this](int section, int /*before*/, int width) {
        if (!showing_) act([&] { grid_.setColWidth(section + 1, width / pixelsOfTwip_); });
    });
    for (Heading* heading : {&columns_, &rowNumbers_}) {
        const auto marked = [this, heading] { highlightLines(heading->orientation()); };
        connect(heading, &QHeaderView::sectionPressed, this, marked);
        connect(heading, &QHeaderView::sectionEntered, this, marked);
    }
    auto* corner = findChild<QAbstractButton*>();
    corner->installEventFilter(this);
    corner->setAccessibleName("Select all");
}

void GridView::makeMouse() {
    // A cell that was pressed and let go without a drag has been clicked.
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        if (selectionModel()->selectedIndexes().size() == 1)
            act([&] { context_.form().click(grid_, index.row() + 1, index.column() + 1); });
    });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        const auto told = grid_.onDoubleClick ? &Form::doubleClick : &Form::click;
        act([&] { (context_.form().*told)(grid_, index.row() + 1, index.column() + 1); });
    });
}

// Showing the grid

void GridView::refresh(const FormLayout& layout, const QFont& font) {
    const QScopedValueRollback guard(showing_, true);
    pixelsOfTwip_ = layout.x;
    model_.refresh();
    shape(layout);
    const double rowHeight = grid_.rows() > 1 ? grid_.rowHeight(1) : designRowHeight;
    const QFont shown = fittedText("Xg", font, QSizeF(width(), rowHeight * layout.y), 0).font;
    if (this->font() != shown) {
        setFont(shown);
        columns_.setFont(shown);
        rowNumbers_.setFont(shown);
    }
    showHighlight();
    columns_.viewport()->update();
    rowNumbers_.viewport()->update();
}

void GridView::shape(const FormLayout& layout) {
    columns_.setFixedHeight(static_cast<int>(std::lround(grid_.rowHeight(0) * layout.y)));
    // However wide a text makes the fixed column, there is room for another; however wide that one, all of it
    // can be scrolled into view.
    const double fixed = std::min(grid_.colWidth(0) * layout.x, widestFixedShare * width());
    rowNumbers_.setFixedWidth(static_cast<int>(std::lround(fixed)));
    const double room =
        std::max<double>(width() - fixed - verticalScrollBar()->sizeHint().width(), narrowestColumn);
    for (int col = 1; col < grid_.cols(); ++col)
        resizeTo(columns_, col - 1, std::min(grid_.colWidth(col) * layout.x, room));
    for (int row = 1; row < grid_.rows(); ++row)
        resizeTo(rowNumbers_, row - 1, grid_.rowHeight(row) * layout.y);
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    auto* corner = qobject_cast<QAbstractButton*>(watched);
    if (corner == nullptr || event->type() != QEvent::Paint) return QTableView::eventFilter(watched, event);
    QPainter painter(corner);
    columns_.paintCaption(painter, corner->rect(), qtText(grid_.cell(0, 0)).replace("\r\n", "\n"), false);
    return true;
}

// The highlight. In the grid the current cell is the one from which the highlight was extended, in the
// toolkit the one to which.

void GridView::highlight(const CellBlock& block) {
    act([&] { context_.form().select(grid_, block); });
}

/// A press on a heading highlights its whole column, on a row's number the row.
void GridView::highlightLines(Qt::Orientation orientation) {
    const QItemSelection marked = selectionModel()->selection();
    if (showing_ || marked.isEmpty()) return;
    CellBlock block{1, grid_.rows() - 1, 1, grid_.cols() - 1};
    const QItemSelectionRange& range = marked.first();
    const auto take = [](int& start, int& end, int first, int last, int current) {
        start = current == last ? last : first;
        end = opposite(start, first, last);
    };
    if (orientation == Qt::Horizontal) {
        take(block.startCol, block.endCol, range.left() + 1, range.right() + 1, grid_.col());
    } else {
        take(block.startRow, block.endRow, range.top() + 1, range.bottom() + 1, grid_.row());
    }
    highlight(block);
}

void GridView::selectAll() {
    if (model_.rowCount() > 0) highlight({1, grid_.rows() - 1, 1, grid_.cols() - 1});
}

/// The form takes over what the toolkit has highlighted.
void GridView::takeHighlight() {
    const QItemSelection marked = selectionModel()->selection();
    if (showing_ || marked.isEmpty()) return;
    const QItemSelectionRange& range = marked.first();
    const QModelIndex end = currentIndex();
    const int startRow = opposite(end.row(), range.top(), range.bottom());
    const int startCol = opposite(end.column(), range.left(), range.right());
    const CellBlock block{.startRow = startRow + 1,
                          .endRow = opposite(startRow, range.top(), range.bottom()) + 1,
                          .startCol = startCol + 1,
                          .endCol = opposite(startCol, range.left(), range.right()) + 1};
    const CellBlock& known = grid_.selection();
    const bool same = block.startRow == grid_.row() && block.startCol == grid_.col() &&
                      known.endRow - known.startRow == range.height() - 1 &&
                      known.endCol - known.startCol == range.width() - 1 &&
                      known.startRow == range.top() + 1 && known.startCol == range.left() + 1;
    if (!same) highlight(block);
}

void GridView::showHighlight() {
    const CellBlock& block = grid_.selection();
    const QModelIndex start = model_.at(grid_.row(), grid_.col());
    if (!start.isValid()) return selectionModel()->clear();
    const QModelIndex end = model_.at(opposite(grid_.row(), block.startRow, block.endRow),
                                      opposite(grid_.col(), block.startCol, block.endCol));
    const QItemSelection wanted(model_.at(block.startRow, block.startCol),
                                model_.at(block.endRow, block.endCol));
    if (currentIndex() == end && selectionModel()->selection() == wanted) return;
    // Where whole rows or columns are marked nothing scrolls for their far end.
    const bool lines = block.endRow - block.startRow == grid_.rows() - 2 ||
                       block.endCol - block.startCol == grid_.cols() - 2;
    setAutoScroll(!lines || start == end);
    setCurrentIndex(start);
    selectionModel()->select(wanted, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(end, QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

// Mouse

void GridView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        QTableView::mousePressEvent(event);
        return takeHighlight();
    }
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid() && !selectionModel()->isSelected(index))
        highlight(cell(index.row() + 1, index.column() + 1));
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    QTableView::mouseMoveEvent(event);
    if (event->buttons().testFlag(Qt::LeftButton)) takeHighlight();
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    const auto add = [&](const char* text, const QKeySequence& shortcut, bool possible, auto action) {
        QAction* item = menu.addAction(text, this, action);
        item->setShortcut(shortcut);
        item->setEnabled(possible);
    };
    Form& form = context_.form();
    add("&Undo", QKeySequence::Undo, form.canUndo(), [&] { act([&] { form.undo(); }); });
    add("&Redo", QKeySequence::Redo, form.canRedo(), [&] { act([&] { form.redo(); }); });
    menu.addSeparator();
    add("Cu&t", QKeySequence::Cut, true, [this] {
        copyBlock();
        clearBlock();
    });
    add("&Copy", QKeySequence::Copy, true, [this] { copyBlock(); });
    add("&Paste", QKeySequence::Paste, true, [this] { pasteBlock(); });
    add("C&lear", QKeySequence(Qt::Key_Delete), true, [this] { clearBlock(); });
    add("Select &all", QKeySequence::SelectAll, true, [this] { selectAll(); });
    menu.exec(event->globalPos());
}

// Keys

void GridView::keyPressEvent(QKeyEvent* event) {
    if (commandKey(*event) || (!moves(*event) && editKey(*event))) return event->accept();
    if (!moves(*event)) return event->ignore();
    QTableView::keyPressEvent(event);
    takeHighlight();
    event->accept();
}

bool GridView::commandKey(const QKeyEvent& event) {
    // While a solver runs Ctrl+C is the window's.
    if (event.matches(QKeySequence::Copy)) {
        if (!context_.form().runningNote.empty()) return false;
        copyBlock();
    } else if (event.matches(QKeySequence::Cut)) {
        copyBlock();
        clearBlock();
    } else if (event.matches(QKeySequence::Paste)) {
        pasteBlock();
    } else if (event.matches(QKeySequence::SelectAll)) {
        selectAll();
    } else {
        return false;
    }
    return true;
}

bool GridView::editKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Insert: return act([this] { context_.form().insertKey(grid_); }), true;
    case Qt::Key_Delete: return clearBlock(), true;
    case Qt::Key_Escape: return key(keys::escape), true;
    case Qt::Key_Backspace: return key(keys::backspace), true;
    case Qt::Key_Return:
    case Qt::Key_Enter: return act([this] { context_.form().enterKey(grid_); }), true;
    default: break;
    }
    const bool command = event.modifiers().testFlag(Qt::ControlModifier) ||
                         event.modifiers().testFlag(Qt::AltModifier) ||
                         event.modifiers().testFlag(Qt::MetaModifier);
    const QString text = event.text();
    if (command || text.isEmpty() || !text.at(0).isPrint()) return false;
    return typed(text), true;
}

void GridView::key(int code) {
    act([&] { context_.form().key(grid_, code); });
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

// Blocks

void GridView::copyBlock() const {
    QGuiApplication::clipboard()->setText(qtText(Form::copied(grid_)));
}

void GridView::pasteBlock() {
    const std::string text = utf8Text(QGuiApplication::clipboard()->text());
    if (!text.empty()) act([&] { context_.form().paste(grid_, text, usersMarks()); });
}

void GridView::clearBlock() {
    const CellBlock block = grid_.selection();
    if (block.startRow == block.endRow && block.startCol == block.endCol) return key(keys::escape);
    // Pasting empty cells clears them all as one step of undo.
    const std::string row = std::string(static_cast<std::size_t>(block.endCol - block.startCol), '\t') + "\n";
    std::string empty;
    for (int i = block.startRow; i <= block.endRow; ++i) empty += row;
    act([&] {
        context_.form().paste(grid_, empty);
        context_.form().select(grid_, block);
    });
}

namespace {

class GridControlView : public ControlView {
  public:
    GridControlView(ViewContext& context, DataGrid& grid, QWidget* parent)
        : ControlView(context, grid, new GridView(parent, context, grid)) {}

  protected:
    void syncContent(const FormLayout& layout) override {
        static_cast<GridView&>(*widget()).refresh(layout, font(layout));
    }
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, DataGrid& grid, QWidget* parent) {
    return std::make_unique<GridControlView>(context, grid, parent);
}

} // namespace vantore
