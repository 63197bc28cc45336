#pragma once

#include "desktop/control_view.h"

class QLabel;

namespace vantore {

/// A label. One that stands beside the box that it names has its text on the box's line.
class LabelView : public ControlView {
  public:
    LabelView(ViewContext& context, Label& label, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;
    QRect place(const FormLayout& layout) const override;

  private:
    bool besideBox() const;
    void syncColour();

    const Label& data_;
    QLabel& label_;
};

} // namespace vantore
