#pragma once

#include <QTableView>

#include "desktop/control_view.h"
#include "desktop/grid_model.h"

namespace vantore {

class Heading;

/// A grid on the screen. It holds no text of its own: each stroke and click goes to the form, and what is
/// seen is read from the grid. Moving and highlighting are the toolkit's; the form takes them over.
class GridView : public QTableView {
  public:
    GridView(QWidget* parent, ViewContext& context, DataGrid& grid);

    /// Takes over the grid's shape, texts and current cell.
    void refresh(const FormLayout& layout, const QFont& font);

    /// Where a cell is seen in the viewport; row and col from 1.
    QRect cellRect(int row, int col) const { return visualRect(model_.at(row, col)); }

    /// Highlights all cells.
    void selectAll() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

  private:
    void makeHeadings();
    void makeMouse();
    void shape(const FormLayout& layout);

    void act(const std::function<void()>& action) { context_.act(action); }
    void key(int code);
    void typed(const QString& text);
    bool commandKey(const QKeyEvent& event);
    bool editKey(const QKeyEvent& event);
    void copyBlock() const;
    void pasteBlock();
    void clearBlock();

    void highlight(const CellBlock& block);
    void highlightLines(Qt::Orientation orientation);
    void takeHighlight();
    void showHighlight();

    ViewContext& context_;
    DataGrid& grid_;
    GridModel& model_;
    Heading& columns_;
    Heading& rowNumbers_;
    double pixelsOfTwip_ = 1;
    bool showing_ = false; ///< the form's state is being shown: no change is a user's
};

} // namespace vantore
