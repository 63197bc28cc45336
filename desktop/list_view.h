#pragma once

#include "desktop/control_view.h"

class QListWidget;

namespace vantore {

/// A list of texts. A double click or Enter opens the selected one.
class ListView : public ControlView {
  public:
    ListView(ViewContext& context, ListBox& list, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;

  private:
    ListBox& data_;
    QListWidget& list_;
};

} // namespace vantore
