#include "desktop/text_box_view.h"

#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <algorithm>
#include <limits>
#include <memory>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int frameWidth = 3; // pixels of frame and margin on each side
constexpr int textMargin = 5;

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

} // namespace

TextBoxView::TextBoxView(ViewContext& context, TextBox& box, QWidget* parent)
    : ControlView(context, box, new Editor(parent, context, box)), box_(box),
      edit_(static_cast<QLineEdit&>(*widget())) {}

void TextBoxView::syncContent(const FormLayout& layout) {
    // While a solver runs nothing is edited.
    edit_.setEnabled(box_.enabled() && context().form().runningNote.empty());
    const QString text = qtText(box_.text());
    if (edit_.text() != text) {
        const int cursor = edit_.cursorPosition();
        edit_.setText(text);
        edit_.setCursorPosition(edit_.hasFocus() ? std::min(cursor, static_cast<int>(text.size())) : 0);
    }
    const QSize room = edit_.size() - QSize(2 * (frameWidth + textMargin), 2 * frameWidth);
    const FittedText& shown = fitted(text, room, Qt::TextSingleLine, layout);
    // A text that is only too long is moved through its box; one line too high is smaller.
    const QFont heightFont = fittedText("Xg", font(layout), QSize(room.height() * 10, room.height()), 0).font;
    const QFont& wanted = shown.cut ? heightFont : shown.font;
    if (edit_.font() != wanted) edit_.setFont(wanted);
}

} // namespace vantore
