#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>
#include <limits>
#include <memory>

#include "desktop/views.h"
#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int frameWidth = 3; // pixels of frame and margin on each side
constexpr int textMargin = 5;
constexpr int endless = 1 << 20;
constexpr int longestMeasured = 1000; // characters; no box is wider

class Editor : public QLineEdit {
  public:
    Editor(QWidget* parent, ViewContext& context, TextBox& box)
        : QLineEdit(parent), context_(context), box_(box) {
        setMaxLength(std::numeric_limits<int>::max());
        connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
            context_.act([&] { context_.form().type(box_, utf8Text(text)); });
        });
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride) return QLineEdit::event(event);
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool forms = key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo);
        return !forms && QLineEdit::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        // Without a marked text Ctrl+C is the window's: it may stop a solver.
        if (event->matches(QKeySequence::Copy) && !hasSelectedText()) return event->ignore();
        QLineEdit::keyPressEvent(event);
    }

    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        const bool stays = event->reason() == Qt::ActiveWindowFocusReason ||
                           event->reason() == Qt::PopupFocusReason ||
                           event->reason() == Qt::MenuBarFocusReason;
        if (!stays) context_.left(box_);
    }

    /// The toolkit's menu begins with its own undo and redo.
    void contextMenuEvent(QContextMenuEvent* event) override {
        const std::unique_ptr<QMenu> menu(createStandardContextMenu());
        const auto make = [&](QAction* action, bool possible, void (Form::*step)()) {
            action->disconnect();
            action->setEnabled(possible);
            connect(action, &QAction::triggered, this,
                    [this, step] { context_.act([this, step] { (context_.form().*step)(); }); });
        };
        make(menu->actions().at(0), context_.form().canUndo(), &Form::undo);
        make(menu->actions().at(1), context_.form().canRedo(), &Form::redo);
        menu->exec(event->globalPos());
    }

  private:
    ViewContext& context_;
    TextBox& box_;
};

/// A text box. A text longer than the box comes as a tip.
class TextBoxView : public ControlView {
  public:
    TextBoxView(ViewContext& context, TextBox& box, QWidget* parent)
        : ControlView(context, box, new Editor(parent, context, box)), box_(box),
          edit_(static_cast<QLineEdit&>(*widget())) {}

  protected:
    /// While a solver runs nothing is edited.
    bool enabled() const override { return box_.enabled() && context().form().runningNote.empty(); }

    void syncContent(const FormLayout& layout) override {
        const QString text = qtText(box_.text());
        if (edit_.text() != text) {
            const int cursor = edit_.cursorPosition();
            edit_.setText(text);
            edit_.setCursorPosition(edit_.hasFocus() ? std::min(cursor, static_cast<int>(text.size())) : 0);
        }
        // Only the height limits the font: a text may be longer than its box, in which it is moved.
        const QSize room(endless, edit_.height() - 2 * frameWidth);
        const QFont& wanted = fitted("Xg", room, Qt::TextSingleLine, layout).font;
        if (edit_.font() != wanted) edit_.setFont(wanted);
        const int width = edit_.width() - 2 * (frameWidth + textMargin);
        if (text.size() > longestMeasured || edit_.fontMetrics().horizontalAdvance(text) > width)
            markCut(text);
    }

  private:
    TextBox& box_;
    QLineEdit& edit_;
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, TextBox& box, QWidget* parent) {
    return std::make_unique<TextBoxView>(context, box, parent);
}

} // namespace vantore
