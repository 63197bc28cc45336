#include "desktop/report_view.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>
#include <QTextCursor>
#include <algorithm>
#include <memory>

#include "drawing/drawing.h"
#include "desktop/exports.h"
#include "drawing/fonts.h"

namespace vantore {

ReportBox::ReportBox(QWidget* parent, ViewContext& context, ReportScreen& report)
    : QTextEdit(parent), context_(context), report_(report) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setAcceptRichText(false);
    setLineWrapMode(QTextEdit::NoWrap);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
}

void ReportBox::refresh(double zoom) {
    const std::vector<ReportLine>& lines = report_.lines();
    const bool grown = zoom == zoom_ && shown_.size() <= lines.size() &&
                       std::equal(shown_.begin(), shown_.end(), lines.begin());
    if (grown && shown_.size() == lines.size()) return;
    zoom_ = zoom;
    if (!grown) {
        clear();
        shown_.clear();
    }
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    for (std::size_t i = shown_.size(); i < lines.size(); ++i) append(cursor, lines[i]);
    cursor.endEditBlock();
    if (!grown) moveCursor(QTextCursor::Start);
}

void ReportBox::append(QTextCursor& cursor, const ReportLine& line) {
    QTextCharFormat format;
    format.setFont(qtFont(line.font, zoom_));
    format.setForeground(qtColour(line.colour));
    if (shown_.empty()) {
        cursor.setBlockCharFormat(format);
    } else {
        cursor.insertBlock(QTextBlockFormat(), format);
    }
    cursor.insertText(qtText(line.text), format);
    shown_.push_back(line);
}

void ReportBox::keyPressEvent(QKeyEvent* event) {
    // Without a marked text Ctrl+C is the window's: it may stop a solver.
    if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection()) return event->ignore();
    QTextEdit::keyPressEvent(event);
}

void ReportBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    QAction* copyItem = menu.addAction("&Copy", this, [this] { copy(); });
    copyItem->setShortcut(QKeySequence::Copy);
    copyItem->setEnabled(textCursor().hasSelection());
    menu.addAction("Select &all", this, [this] { selectAll(); })->setShortcut(QKeySequence::SelectAll);
    menu.addSeparator();
    menu.addAction("&Save as text...", this, [this] {
        context_.act([this] { saveReportAs({window(), context_.outputFolder()}, context_.form(), report_); });
    });
    menu.addAction("&Print...", this, [this] {
        context_.act([this] { printReport({window(), context_.outputFolder()}, context_.form(), report_); });
    });
    menu.exec(event->globalPos());
}

ReportView::ReportView(ViewContext& context, ReportScreen& report, QWidget* parent)
    : ControlView(context, report, std::make_unique<ReportBox>(parent, context, report).release()) {}

void ReportView::syncContent(const Layout& layout) {
    static_cast<ReportBox&>(*widget()).refresh(layout.zoom);
}

} // namespace vantore
