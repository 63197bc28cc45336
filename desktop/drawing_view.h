#pragma once

#include <QPixmap>

#include "desktop/control_view.h"

namespace vantore {

/// A picture surface or a chart in a window. Its menu saves, copies and prints what it shows.
class DrawingView : public ControlView {
  public:
    DrawingView(ViewContext& context, Control& drawing, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;

  private:
    bool changed();

    std::vector<SurfaceOperation> operations_; ///< as last shown
    ChartData chart_;
};

} // namespace vantore
