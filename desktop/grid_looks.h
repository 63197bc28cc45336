#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

#include "shell/forms/data_grid.h"

namespace vantore {

/// The palette of a grid.
QPalette gridPalette();

/// A column's captions, in one or two lines, or the numbers at the left. One that is too long is smaller, or
/// cut and shown whole as a tip. Those of the highlighted block stand out.
class Heading : public QHeaderView {
  public:
    Heading(Qt::Orientation orientation, const DataGrid& grid, QWidget* parent);

    /// The caption of the corner between both headings.
    void paintCaption(QPainter& painter, const QRect& place, const QString& caption, bool marked) const;

  protected:
    void paintSection(QPainter* painter, const QRect& place, int section) const override;
    bool viewportEvent(QEvent* event) override;

  private:
    bool isMarked(int section) const;
    QString caption(int section) const;

    const DataGrid& grid_;
};

/// Cells: one too narrow for its text shows the beginning, the current one the end, where the user types.
class CellDelegate : public QStyledItemDelegate {
  public:
    CellDelegate(const DataGrid& grid, QObject* parent) : QStyledItemDelegate(parent), grid_(grid) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

  private:
    const DataGrid& grid_;
};

} // namespace vantore
