#pragma once

#include "desktop/control_view.h"

class QLineEdit;

namespace vantore {

/// A text box. Undo and redo are the form's; a text longer than the box comes as a tip.
class TextBoxView : public ControlView {
  public:
    TextBoxView(ViewContext& context, TextBox& box, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    TextBox& box_;
    QLineEdit& edit_;
};

} // namespace vantore
