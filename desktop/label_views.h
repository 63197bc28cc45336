#pragma once

#include "desktop/control_view.h"

class QGroupBox;
class QLabel;

namespace vantore {

class LabelView : public ControlView {
  public:
    LabelView(ViewContext& context, Label& label, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    const Label& data_;
    QLabel& label_;
};

/// The frame alone: the controls in it are its siblings and stand above it.
class FrameView : public ControlView {
  public:
    FrameView(ViewContext& context, Frame& frame, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    QGroupBox& box_;
};

} // namespace vantore
