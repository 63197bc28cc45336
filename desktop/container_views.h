#pragma once

#include "desktop/control_view.h"

class QGroupBox;
class QTabBar;

namespace vantore {

/// A frame with a caption around the controls that stand in it.
class GroupView : public ControlView {
  public:
    GroupView(ViewContext& context, Container& frame, QWidget* parent);

    QWidget* page(int /*number*/) override { return widget(); }

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    QGroupBox& box_;
};

/// Tabs over the page of the selected one.
class TabView : public ControlView {
  public:
    TabView(ViewContext& context, Container& tabs, QWidget* parent);

    QWidget* page(int number) override { return pages_.at(static_cast<std::size_t>(number)); }

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    void syncCaptions();

    Container& tabs_;
    QTabBar& bar_;
    QWidget& edge_;
    std::vector<QWidget*> pages_;
};

} // namespace vantore
