#pragma once

#include "desktop/control_view.h"

namespace vantore {

/// A drawing that adorns a window, by its name. A name without a drawing shows a general one.
class PictureView : public ControlView {
  public:
    PictureView(ViewContext& context, Picture& picture, QWidget* parent);

  protected:
    void syncContent(const FormLayout& layout) override;
};

/// The file among the program's resources that holds the drawing of that name.
QString pictureFile(const std::string& name);

} // namespace vantore
