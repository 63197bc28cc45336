#include <QCheckBox>
#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>

#include "desktop/views.h"
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

/// Anything that is pressed; `taken` is what a mark beside the caption takes of its width.
class PressedView : public ControlView {
  public:
    PressedView(ViewContext& context, Control& control, QAbstractButton* button, int taken)
        : ControlView(context, control, button), button_(*button), taken_(taken) {
        QObject::connect(button, &QAbstractButton::clicked, button, [&context, &control] {
            context.act([&context, &control] { context.form().press(control); });
        });
    }

  protected:
    void syncContent(const FormLayout& layout) override {
        const QSize room = button_.size() - QSize(taken_, verticalPadding);
        const FittedText& shown = fitted(qtText(control().caption), room, Qt::TextShowMnemonic, layout);
        if (button_.text() != shown.text) button_.setText(shown.text);
        if (button_.font() != shown.font) button_.setFont(shown.font);
        const auto* choice = dynamic_cast<const Choice*>(&control());
        if (choice == nullptr || button_.isChecked() == choice->selected) return;
        button_.setAutoExclusive(false); // else the toolkit refuses to clear the only selected option
        button_.setChecked(choice->selected);
        button_.setAutoExclusive(dynamic_cast<const Option*>(choice) != nullptr);
    }

  private:
    QAbstractButton& button_;
    int taken_; ///< pixels beside the caption
};

} // namespace

std::unique_ptr<ControlView> viewOf(ViewContext& context, Button& button, QWidget* parent) {
    return std::make_unique<PressedView>(context, button, new Pressable<QPushButton>(parent), buttonPadding);
}

/// The options of a page are one tab stop, whose arrow keys select.
std::unique_ptr<ControlView> viewOf(ViewContext& context, Option& option, QWidget* parent) {
    return std::make_unique<PressedView>(context, option, new Pressable<QRadioButton>(parent),
                                         markWidth(*parent, QStyle::PM_ExclusiveIndicatorWidth));
}

std::unique_ptr<ControlView> viewOf(ViewContext& context, CheckBox& box, QWidget* parent) {
    return std::make_unique<PressedView>(context, box, new Pressable<QCheckBox>(parent),
                                         markWidth(*parent, QStyle::PM_IndicatorWidth));
}

} // namespace vantore
