#include "desktop/button_views.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

#include "drawing/fonts.h"

namespace vantore {

namespace {

constexpr int buttonPadding = 12; // pixels, of a button's edges and its focus frame
constexpr int verticalPadding = 4;
constexpr int markGap = 6;

/// A button of any kind that takes the focus before its mnemonic presses it, so that a text box in use is
/// left first, and that the Enter key presses too.
template <class Base>
class Pressable : public Base {
  public:
    using Base::Base;

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

/// Room of the mark of an option or check box.
int markWidth(const QWidget& parent, QStyle::PixelMetric mark) {
    return parent.style()->pixelMetric(mark, nullptr, &parent) + markGap;
}

} // namespace

PressedView::PressedView(ViewContext& context, Control& control, QAbstractButton* button, int taken)
    : ControlView(context, control, button), button_(*button), taken_(taken) {
    QObject::connect(button, &QAbstractButton::clicked, button, [&context, &control] {
        context.act([&context, &control] { context.form().press(control); });
    });
}

void PressedView::syncContent(const FormLayout& layout) {
    const QSize room = button_.size() - QSize(taken_, verticalPadding);
    const FittedText& shown = fitted(qtText(control().caption), room, Qt::TextShowMnemonic, layout);
    if (button_.text() != shown.text) button_.setText(shown.text);
    if (button_.font() != shown.font) button_.setFont(shown.font);
}

ButtonView::ButtonView(ViewContext& context, Button& button, QWidget* parent)
    : PressedView(context, button, new Pressable<QPushButton>(parent), buttonPadding) {}

OptionView::OptionView(ViewContext& context, Option& option, QWidget* parent)
    : PressedView(context, option, new Pressable<QRadioButton>(parent),
                  markWidth(*parent, QStyle::PM_ExclusiveIndicatorWidth)),
      option_(option) {}

void OptionView::syncContent(const FormLayout& layout) {
    PressedView::syncContent(layout);
    if (button().isChecked() == option_.selected) return;
    button().setAutoExclusive(false); // else the toolkit refuses to clear the only one
    button().setChecked(option_.selected);
    button().setAutoExclusive(true);
}

CheckBoxView::CheckBoxView(ViewContext& context, CheckBox& box, QWidget* parent)
    : PressedView(context, box, new Pressable<QCheckBox>(parent),
                  markWidth(*parent, QStyle::PM_IndicatorWidth)),
      box_(box) {}

void CheckBoxView::syncContent(const FormLayout& layout) {
    PressedView::syncContent(layout);
    button().setChecked(box_.selected);
}

} // namespace vantore
