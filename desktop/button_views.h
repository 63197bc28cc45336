#pragma once

#include "desktop/control_view.h"

class QPushButton;
class QRadioButton;
class QCheckBox;

namespace vantore {

class ButtonView : public ControlView {
  public:
    ButtonView(ViewContext& context, Button& button, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    QPushButton& button_;
};

class OptionView : public ControlView {
  public:
    OptionView(ViewContext& context, Option& option, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    const Option& option_;
    QRadioButton& radio_;
};

class CheckBoxView : public ControlView {
  public:
    CheckBoxView(ViewContext& context, CheckBox& box, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    const CheckBox& box_;
    QCheckBox& check_;
};

} // namespace vantore
