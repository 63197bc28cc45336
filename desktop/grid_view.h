#pragma once

#include <QAbstractScrollArea>
#include <QPoint>

#include "desktop/grid_geometry.h"
#include "desktop/grid_painter.h"

namespace vantore {

/// A grid on the screen. It holds no text of its own: each stroke and click goes to the form, and what is
/// seen is read from the grid.
class GridView : public QAbstractScrollArea {
  public:
    GridView(QWidget* parent, ViewContext& context, DataGrid& grid);

    /// Takes over the grid's shape, texts and current cell.
    void refresh(const Layout& layout, const QFont& font);

    /// Where a cell is seen in the viewport.
    QRect cellRect(int row, int col) const;

    void copy() const;
    void cut();
    void paste();
    void selectAll();

    /// Empties the highlighted cells.
    void clearBlock();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    GridLook look() const;
    QPoint scroll() const;
    QSize room() const;
    void updateScrollBars();
    void keepInView(GridPlace place);
    void act(const std::function<void()>& action);
    void highlight(GridPlace from, GridPlace to);
    void highlightStill(GridPlace from, GridPlace to);
    void pressAt(GridPlace place, bool extends);
    void selectLine(GridPlace head, bool extends);
    void resizeColumn(int right);
    bool moveKey(QKeyEvent* event);
    bool commandKey(QKeyEvent* event);
    bool editKey(QKeyEvent* event);
    void typed(const QString& text);
    void enter();
    GridPlace movedBy(const QKeyEvent& event, GridPlace from) const;
    GridPlace far() const;
    int pageRows() const;
    bool hasCells() const { return grid_.rows() > 1 && grid_.cols() > 1; }

    ViewContext& context_;
    DataGrid& grid_;
    GridGeometry geometry_;
    QFont font_;
    GridPlace kept_{-1, -1}; ///< the far corner of the highlight when it was last brought into view
    GridPlace pressed_;
    double pixelsOfTwip_ = 1;
    int resized_ = -1;   ///< the column whose edge is being dragged
    bool still_ = false; ///< a whole column or row is marked: nothing scrolls for its far end
    bool dragging_ = false;
    bool dragged_ = false;
};

/// The grid as a control of a window.
class GridControlView : public ControlView {
  public:
    GridControlView(ViewContext& context, DataGrid& grid, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    GridView& view_;
};

} // namespace vantore
