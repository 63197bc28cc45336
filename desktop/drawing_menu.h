#pragma once

#include <QPoint>

#include "desktop/control_view.h"

namespace vantore {

/// The menu of a surface or chart: copy it as a picture, save it as SVG, PNG or PDF, print it.
void showDrawingMenu(QWidget* paper, QPoint place, ViewContext& context, const Control& drawing);

} // namespace vantore
