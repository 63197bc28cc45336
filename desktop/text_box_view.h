#pragma once

#include "desktop/control_view.h"

class QLineEdit;

namespace vantore {

class TextBoxView : public ControlView {
  public:
    TextBoxView(ViewContext& context, TextBox& box, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    void typed();

    TextBox& box_;
    QLineEdit& edit_;
};

} // namespace vantore
