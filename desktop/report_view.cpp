#include "desktop/report_view.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTextBlock>
#include <QTextCursor>

#include "desktop/exports.h"
#include "desktop/views.h"
#include "drawing/drawing.h"
#include "drawing/fonts.h"

namespace vantore {

ReportBox::ReportBox(QWidget* parent, ViewContext& context, ReportScreen& report)
    : QPlainTextEdit(parent), context_(context), report_(report) {
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
}

void ReportBox::refresh(double zoom) {
    const std::vector<ReportLine>& lines = report_.lines();
    const bool grown = zoom == zoom_ && writing_ == report_.writing() && shown_ > 0;
    if (grown && shown_ == lines.size()) return;
    if (!grown) {
        clear();
        shown_ = 0;
        // The font of nearly all lines is the box's; the others bear theirs.
        bodyFont_ = lines.empty() ? Font{} : lines.back().font;
        setFont(qtFont(bodyFont_, zoom));
    }
    zoom_ = zoom;
    writing_ = report_.writing();
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    for (; shown_ < lines.size(); ++shown_) append(cursor, lines[shown_], shown_ == 0);
    cursor.endEditBlock();
    if (!grown) moveCursor(QTextCursor::Start);
}

void ReportBox::append(QTextCursor& cursor, const ReportLine& line, bool first) {
    QTextCharFormat format;
    if (line.font != bodyFont_) format.setFont(qtFont(line.font, zoom_));
    if (line.colour != colour::black) format.setForeground(qtColour(line.colour));
    if (first) {
        cursor.setBlockCharFormat(format);
    } else {
        cursor.insertBlock(QTextBlockFormat(), format);
    }
    cursor.insertText(qtText(line.text), format);
}

void ReportBox::keyPressEvent(QKeyEvent* event) {
    // Without a marked text Ctrl+C is the window's: it may stop a solver.
    if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection()) return event->ignore();
    QPlainTextEdit::keyPressEvent(event);
}

void ReportBox::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    QAction* copyItem = menu.addAction("&Copy", this, [this] { copy(); });
    copyItem->setShortcut(QKeySequence::Copy);
    copyItem->setEnabled(textCursor().hasSelection());
    menu.addAction("Select &all", this, [this] { selectAll(); })->setShortcut(QKeySequence::SelectAll);
    menu.addSeparator();
    const AskingPlace asking{window(), context_.outputFolder()};
    menu.addAction("&Save as text...", this,
                   [this, asking] { context_.act([&] { saveReportAs(asking, context_.form(), report_); }); });
    menu.addAction("&Print...", this,
                   [this, asking] { context_.act([&] { printReport(asking, context_.form(), report_); }); });
    menu.exec(event->globalPos());
}

namespace {

class ReportView : public ControlView {
  public:
    ReportView(ViewContext& context, ReportScreen& report, QWidget* parent)
        : ControlView(context, report, new ReportBox(parent, context, report)) {}

  protected:
    void syncContent(const FormLayout& layout) override {
        static_cast<ReportBox&>(*widget()).refresh(layout.zoom);
    }
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, ReportScreen& report, QWidget* parent) {
    return std::make_unique<ReportView>(context, report, parent);
}

} // namespace vantore
