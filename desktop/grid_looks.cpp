#include "desktop/grid_looks.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "desktop/fitted_text.h"

namespace vantore {

namespace {

const QColor emptyColour(0xF3, 0xF4, 0xF5);
const QColor headColour(0xE6, 0xE9, 0xEC);
const QColor markedHeadColour(0xC9, 0xDA, 0xEE);
const QColor headLineColour(0xB4, 0xBA, 0xC0);
const QColor blockColour(0xCD, 0xE2, 0xFA);
const QColor currentColour(0x1C, 0x5F, 0xB4);
const QColor unfocusedColour(0x7A, 0x96, 0xB8);
constexpr int textMargin = 3; // pixels
constexpr int currentBorder = 2;

/// The frame of the current cell, under its text: a low row leaves no room between them.
void paintCurrent(QPainter& painter, const QStyleOptionViewItem& option) {
    const bool focused = option.widget != nullptr && option.widget->hasFocus();
    painter.setPen(QPen(focused ? currentColour : unfocusedColour, currentBorder, Qt::SolidLine,
                        Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
}

QSize textRoom(const QRect& cell) {
    return cell.size() - QSize(2 * textMargin, 1);
}

} // namespace

QPalette gridPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, emptyColour); // where there are no cells
    palette.setColor(QPalette::Highlight, blockColour);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

Heading::Heading(Qt::Orientation orientation, const DataGrid& grid, QWidget* parent)
    : QHeaderView(orientation, parent), grid_(grid) {
    setSectionsClickable(true);
    setMinimumSectionSize(1);
}

bool Heading::isMarked(int section) const {
    const CellBlock& block = grid_.selection();
    const int line = section + 1;
    return orientation() == Qt::Horizontal ? line >= block.startCol && line <= block.endCol
                                           : line >= block.startRow && line <= block.endRow;
}

QString Heading::caption(int section) const {
    return model()->headerData(section, orientation()).toString();
}

void Heading::paintSection(QPainter* painter, const QRect& place, int section) const {
    if (place.isValid()) paintCaption(*painter, place, caption(section), isMarked(section));
}

void Heading::paintCaption(QPainter& painter, const QRect& place, const QString& caption, bool marked) const {
    painter.save();
    painter.fillRect(place, marked ? markedHeadColour : headColour);
    painter.setPen(headLineColour);
    painter.drawLine(place.topRight(), place.bottomRight());
    painter.drawLine(place.bottomLeft(), place.bottomRight());
    const FittedText shown = fittedText(caption, font(), textRoom(place), 0);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    painter.setFont(shown.font);
    painter.drawText(place.adjusted(textMargin - 1, 0, -textMargin, -1), Qt::AlignCenter, shown.text);
    painter.restore();
}

bool Heading::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QHeaderView::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int section = logicalIndexAt(help->pos());
    if (section < 0) return true;
    const QSize place = orientation() == Qt::Horizontal ? QSize(sectionSize(section), height())
                                                        : QSize(width(), sectionSize(section));
    const QString whole = caption(section);
    const bool cut = fittedText(whole, font(), textRoom({QPoint(), place}), 0).cut;
    QToolTip::showText(help->globalPos(), cut ? tipWith(whole, {}) : QString(), this);
    return true;
}

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const bool current = index.row() + 1 == grid_.row() && index.column() + 1 == grid_.col();
    const bool marked = option.state.testFlag(QStyle::State_Selected) && !current;
    painter->fillRect(option.rect, marked ? blockColour : QColor(Qt::white));
    if (current) paintCurrent(*painter, option);
    const QRect room = option.rect.adjusted(textMargin, 0, -textMargin, 0);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    painter->setFont(option.font);
    painter->setPen(option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text));
    painter->drawText(
        room, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine,
        QFontMetricsF(option.font)
            .elidedText(index.data().toString(), current ? Qt::ElideLeft : Qt::ElideRight, room.width()));
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index) {
    const QString text = index.data().toString();
    const bool cut =
        QFontMetricsF(view->font()).horizontalAdvance(text) > option.rect.width() - 2 * textMargin;
    QToolTip::showText(event->globalPos(), cut ? tipWith(text, view->toolTip()) : view->toolTip(),
                       view->viewport());
    return true;
}

} // namespace vantore
