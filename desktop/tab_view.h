#pragma once

#include "desktop/control_view.h"

namespace vantore {

/// The tabs and the frame of a tab control's page. Where the captions don't fit beside each other, all tabs
/// are as wide as each other and a caption may take two lines.
class TabView : public ControlView {
  public:
    TabView(ViewContext& context, TabControl& tabs, QWidget* parent);

  protected:
    void syncContent(const Layout& layout) override;
};

} // namespace vantore
