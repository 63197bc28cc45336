#pragma once

#include <QPixmap>
#include <optional>

#include "desktop/control_view.h"
#include "drawing/drawing.h"

namespace vantore {

/// A picture surface or a chart in a window: its white paper fills its place. Its menu copies it as a
/// picture, saves it as SVG, PNG or PDF and prints it. Where a surface can be looked at from nearer, the
/// wheel does so, and dragging moves what is seen.
class DrawingView : public ControlView {
  public:
    DrawingView(ViewContext& context, Control& drawing, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    bool changed();

    unsigned revision_ = 0; ///< as last shown
    ChartData chart_;
    double zoom_ = 0;
};

} // namespace vantore
