#include "desktop/text_box_view.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>
#include <memory>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int verticalPadding = 6; // pixels of frame and margin, above and below together

/// A line editor whose undo and redo are the form's, which remember edits of all fields.
class Editor : public QLineEdit {
  public:
    Editor(QWidget* parent, ViewContext& context, TextBox& box)
        : QLineEdit(parent), context_(context), box_(box) {}

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Undo)) return context_.act([this] { context_.form().undo(); });
        if (event->matches(QKeySequence::Redo)) return context_.act([this] { context_.form().redo(); });
        // Without a marked text Ctrl+C is the window's: it may stop a solver.
        const bool windows = event->matches(QKeySequence::Copy) &&
                             (!hasSelectedText() || !context_.form().runningNote.empty());
        if (windows) return event->ignore();
        QLineEdit::keyPressEvent(event);
    }

    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        const bool stays = event->reason() == Qt::ActiveWindowFocusReason ||
                           event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
        if (!stays) context_.left(box_);
    }

    void contextMenuEvent(QContextMenuEvent* event) override {
        QMenu menu;
        const auto add = [&](const char* text, QKeySequence::StandardKey key, bool enabled, auto action) {
            QAction* item = menu.addAction(text);
            item->setShortcut(key);
            item->setEnabled(enabled);
            connect(item, &QAction::triggered, this, action);
        };
        const bool marked = hasSelectedText();
        add("&Undo", QKeySequence::Undo, true, [this] { context_.act([this] { context_.form().undo(); }); });
        add("&Redo", QKeySequence::Redo, true, [this] { context_.act([this] { context_.form().redo(); }); });
        menu.addSeparator();
        add("Cu&t", QKeySequence::Cut, marked, [this] { cut(); });
        add("&Copy", QKeySequence::Copy, marked, [this] { copy(); });
        add("&Paste", QKeySequence::Paste, true, [this] { paste(); });
        add("Select &all", QKeySequence::SelectAll, true, [this] { selectAll(); });
        menu.exec(event->globalPos());
    }

  private:
    ViewContext& context_;
    TextBox& box_;
};

} // namespace

TextBoxView::TextBoxView(ViewContext& context, TextBox& box, QWidget* parent)
    : ControlView(context, box, std::make_unique<Editor>(parent, context, box).release()), box_(box),
      edit_(static_cast<QLineEdit&>(*widget())) {
    QObject::connect(&edit_, &QLineEdit::textEdited, &edit_, [this] { typed(); });
}

void TextBoxView::typed() {
    const std::string text = utf8Text(edit_.text());
    context().act([&] { context().form().type(box_, text); });
}

void TextBoxView::syncContent(const Layout& layout) {
    const QString text = qtText(box_.text());
    if (edit_.text() != text) {
        const int cursor = edit_.cursorPosition();
        edit_.setText(text);
        edit_.setCursorPosition(edit_.hasFocus() ? std::min(cursor, static_cast<int>(text.size())) : 0);
    }
    // The height alone limits the font: a text may be longer than its box.
    const QSize room(10000, edit_.height() - verticalPadding);
    const QFont font = fittedFont("Xg", room, Qt::TextSingleLine, layout);
    if (edit_.font() != font) edit_.setFont(font);
}

} // namespace vantore
