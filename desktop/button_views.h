#pragma once

#include "desktop/control_view.h"

class QAbstractButton;

namespace vantore {

/// Anything that is pressed: its caption, and how much of its width a mark beside it takes.
class PressedView : public ControlView {
  public:
    PressedView(ViewContext& context, Control& control, QAbstractButton* button, int taken);

  protected:
    void syncContent(const FormLayout& layout) override;

    QAbstractButton& button() const { return button_; }

  private:
    QAbstractButton& button_;
    int taken_; ///< pixels beside the caption
};

class ButtonView : public PressedView {
  public:
    ButtonView(ViewContext& context, Button& button, QWidget* parent);
};

/// An option: one tab stop with the others on its page, whose arrow keys select.
class OptionView : public PressedView {
  public:
    OptionView(ViewContext& context, Option& option, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    const Option& option_;
};

class CheckBoxView : public PressedView {
  public:
    CheckBoxView(ViewContext& context, CheckBox& box, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    const CheckBox& box_;
};

} // namespace vantore
