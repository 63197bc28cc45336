#include "desktop/button_views.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <memory>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int horizontalPadding = 6; // pixels, of a button's edge and its focus frame
constexpr int verticalPadding = 4;
constexpr int markGap = 6;

/// A button of any kind that takes the focus before its mnemonic presses it, so that a text box in use is
/// left first, and that the Enter key presses too.
template <class Base>
class Pressable : public Base {
  public:
    explicit Pressable(QWidget* parent) : Base(parent) {}

  protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Shortcut && this->isEnabled()) {
            const bool ambiguous = static_cast<QShortcutEvent*>(event)->isAmbiguous();
            this->setFocus(Qt::ShortcutFocusReason);
            if (!ambiguous) this->click();
            return true;
        }
        return Base::event(event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return this->click();
        Base::keyPressEvent(event);
    }
};

template <class Base>
Base* makePressable(QWidget* parent, ViewContext& context, Control& control) {
    auto* button = std::make_unique<Pressable<Base>>(parent).release(); // the parent's own
    QObject::connect(button, &QAbstractButton::clicked, button, [&context, &control] {
        context.act([&context, &control] { context.form().press(control); });
    });
    return button;
}

QSize roomBesideMark(const QAbstractButton& button, QStyle::PixelMetric mark) {
    const int taken = button.style()->pixelMetric(mark, nullptr, &button) + markGap;
    return {button.width() - taken, button.height()};
}

void setText(QAbstractButton& button, const QString& text) {
    if (button.text() != text) button.setText(text);
}

void setFont(QWidget& widget, const QFont& font) {
    if (widget.font() != font) widget.setFont(font);
}

} // namespace

ButtonView::ButtonView(ViewContext& context, Button& button, QWidget* parent)
    : ControlView(context, button, makePressable<QPushButton>(parent, context, button)),
      button_(static_cast<QPushButton&>(*widget())) {}

void ButtonView::syncContent(const Layout& layout) {
    const QString text = qtText(control().caption);
    const QSize room = button_.size() - QSize(2 * horizontalPadding, verticalPadding);
    setText(button_, text);
    setFont(button_, fittedFont(text, room, Qt::TextShowMnemonic | Qt::TextSingleLine, layout));
}

OptionView::OptionView(ViewContext& context, Option& option, QWidget* parent)
    : ControlView(context, option, makePressable<QRadioButton>(parent, context, option)), option_(option),
      radio_(static_cast<QRadioButton&>(*widget())) {
    radio_.setAutoExclusive(false); // which options exclude each other is the form's
}

void OptionView::syncContent(const Layout& layout) {
    const QString text = qtText(option_.caption);
    setText(radio_, text);
    setFont(radio_, fittedFont(text, roomBesideMark(radio_, QStyle::PM_ExclusiveIndicatorWidth),
                               Qt::TextShowMnemonic, layout));
    radio_.setChecked(option_.selected);
}

CheckBoxView::CheckBoxView(ViewContext& context, CheckBox& box, QWidget* parent)
    : ControlView(context, box, makePressable<QCheckBox>(parent, context, box)), box_(box),
      check_(static_cast<QCheckBox&>(*widget())) {}

void CheckBoxView::syncContent(const Layout& layout) {
    const QString text = qtText(box_.caption);
    setText(check_, text);
    setFont(check_, fittedFont(text, roomBesideMark(check_, QStyle::PM_IndicatorWidth), Qt::TextShowMnemonic,
                               layout));
    check_.setChecked(box_.selected);
}

} // namespace vantore
